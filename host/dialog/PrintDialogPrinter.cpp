// SPDX-License-Identifier: Apache-2.0
// Another printer, another session: what was entered goes along as far as it fits. Presets go the
// same way.

#include <QFileDialog>
#include <QGuiApplication>
#include <QLayout>
#include <utility>

#include "host/dialog/NoticeBar.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/SessionView.h"

namespace orvek {

void PrintDialog::choosePrinter(const QString &destination) {
  if (destination.isEmpty()) {
    m_setup.destination = QString();
    showHeader();
    return;
  }
  moveTo(m_setup.openPrinter, destination, destination);
}

void PrintDialog::chooseDescription() {
  const QString path = QFileDialog::getOpenFileName(this, tr("Open a Printer Description"), {},
                                                    tr("Printer descriptions (*.ppd *.ppd.gz)"));
  m_printers->show(m_setup.destination);
  if (!path.isEmpty()) moveTo(m_setup.openDescription, path, {});
}

void PrintDialog::moveTo(const DialogSetup::OpenPrinter &open, const QString &what,
                         const QString &destination) {
  m_printers->show(m_setup.destination);
  if (!open) return;
  QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  Result<std::unique_ptr<PrintSession>> opened = open(what);
  QGuiApplication::restoreOverrideCursor();
  if (!opened) {
    showProblem(opened.failure());
    return;
  }
  const Preset entered = presetOf(*m_session, {});
  const JobSettings settings = m_session->jobSettings();
  takeSession(opened.take(), destination);
  const QList<PresetMisfit> misfits = applyPreset(*m_session, entered);
  m_session->setJobSettings(settings);
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
