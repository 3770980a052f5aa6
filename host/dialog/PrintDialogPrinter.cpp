// SPDX-License-Identifier: Apache-2.0
// Another printer, another session: what was entered goes along as far as it fits. Presets go the
// same way.

#include <QFileDialog>
#include <QFileInfo>
#include <QLayout>
#include <utility>

#include "host/dialog/NoticeBar.h"
#include "host/dialog/PresetChooser.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterChooser.h"
#include "host/dialog/SessionView.h"

namespace orvek {

void PrintDialog::choosePrinter(const QString &destination) {
  if (!m_asked.isNull() && destination == m_asked) return;
  stopAsking();
  if (destination.isEmpty()) m_setup.destination = QString();
  if (destination == m_setup.destination) {
    showHeader();
    return;
  }
  m_printers->showAsked(destination, tr("Asking %1…").arg(destination));
  ask(m_setup.askPrinter, destination, destination);
}

void PrintDialog::chooseDescription() {
  const QString path = QFileDialog::getOpenFileName(this, tr("Open a Printer Description"), {},
                                                    tr("Printer descriptions (*.ppd *.ppd.gz)"));
  if (path.isEmpty()) return;
  stopAsking();
  m_printers->showAsked(m_setup.destination, tr("Reading %1…").arg(QFileInfo(path).fileName()));
  ask(m_setup.readDescription, path, {});
}

// A server may take its time: the window stays as it is, on the old printer, until there is an
// answer. Whoever picks another one meanwhile drops it.
void PrintDialog::ask(const DialogSetup::AskPrinter &asked, const QString &what,
                      const QString &destination) {
  if (!asked) {
    showHeader();
    return;
  }
  m_asked = what;
  updateControls();
  m_asking.start(
      this,
      [asked, what](const BackgroundTask::Cancelled &cancelled) { return asked(what, cancelled); },
      [this, destination](const Result<SessionSetup> &setup) { moveTo(setup, destination); });
}

void PrintDialog::stopAsking() {
  m_asking.cancel();
  m_asked = QString();
}

void PrintDialog::moveTo(const Result<SessionSetup> &setup, const QString &destination) {
  stopAsking();
  auto opened = setup ? m_setup.beginSession(setup.value())
                      : Result<std::unique_ptr<PrintSession>>(setup.failure());
  if (!opened) {
    showHeader();
    showProblem(opened.failure());
    return;
  }
  const Preset entered = presetOf(*m_session, {});
  const JobSettings settings = m_session->job().settings();
  takeSession(opened.take(), destination);
  const QList<PresetMisfit> misfits = applyPreset(*m_session, entered);
  m_session->job().setSettings(settings);
  showMisfits(tr("Not everything fits this printer:"), misfits);
}

void PrintDialog::takeSession(std::unique_ptr<PrintSession> session, const QString &destination) {
  m_session->disconnect(this);
  m_notices->fallSilent();
  // The old view gives back what it borrowed before the old session goes.
  auto *view = new SessionView(*session, m_setup.document, this);
  delete layout()->replaceWidget(m_view, view);
  delete std::exchange(m_view, view);
  m_session = session.get();
  m_ownSession = std::move(session);
  m_setup.destination = destination;
  followSession();
  showHeader();
}

void PrintDialog::applyPicked(const Preset &preset) {
  showMisfits(tr("Not all of the preset fits this printer:"), applyPreset(*m_session, preset));
}

void PrintDialog::showMisfits(const QString &opening, const QList<PresetMisfit> &misfits) {
  if (misfits.isEmpty()) return;
  QStringList sentences =
      std::exchange(m_noticeIsNew, false) ? m_notices->sentences() : QStringList();
  sentences << opening;
  for (const PresetMisfit &misfit : misfits) sentences << misfit.why;
  m_noticedMarks = m_session->marks().snapshot();
  m_notices->say(NoticeBar::Kind::Information, sentences, false);
}

}  // namespace orvek
