// SPDX-License-Identifier: Apache-2.0
// Another printer, another session: what was entered goes along as far as it fits. Presets go the
// same way.

#include <QFileDialog>
#include <QFileInfo>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/JobDocuments.h"
#include "host/dialog/NoticeKeeper.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterChooser.h"
#include "host/dialog/SessionView.h"
#include "host/dialog/ShownPreset.h"
#include "host/settings/JobStrip.h"

namespace orvek {

void PrintDialog::choosePrinter(const QString &destination) {
  if (m_switch.isAskingFor(destination)) return;
  m_switch.stop();
  if (destination.isEmpty()) m_setup.destination = QString();
  if (destination == m_setup.destination) {
    showHeader();
    return;
  }
  ask({m_setup.askPrinter, destination, destination, destination,
       tr("Asking %1…").arg(destination)});
}

void PrintDialog::chooseDescription() {
  const QString path = QFileDialog::getOpenFileName(this, tr("Open a Printer Description"), {},
                                                    tr("Printer descriptions (*.ppd *.ppd.gz)"));
  if (path.isEmpty()) return;
  m_switch.stop();
  constexpr bool isForServer = false;
  ask({m_setup.readDescription,
       path,
       {},
       m_setup.destination,
       tr("Reading %1…").arg(QFileInfo(path).fileName()),
       isForServer});
}

// Another printer brings another session, whose notices begin anew.
void PrintDialog::followPrinters() {
  const QString words =
      tr("%1 is no longer on the print server. Choose another printer.").arg(m_setup.destination);
  const QStringList said = m_printers->isGone() ? QStringList{words} : QStringList();
  const QStringList before = std::exchange(m_goneWords, said);
  if (before == said) return;
  m_notices->withdraw(before);
  if (!said.isEmpty()) m_notices->say(NoticeBar::Kind::Problem, said);
  updateControls();
}

// Nothing can be picked so far, so nothing goes along.
void PrintDialog::askFirst() {
  m_lacksFirst = true;
  const QString &first = m_setup.firstPrinter;
  ask({m_setup.askFirst, first, first, first, tr("Asking %1…").arg(first)});
}

// A server may take its time: the window stays as it is, on the old printer, until there is an
// answer. Whoever picks another one meanwhile drops it.
void PrintDialog::ask(const Question &question) {
  if (!question.asked) {
    showHeader();
    return;
  }
  m_printers->showAsked(question.shown, question.words);
  m_question = question;
  m_switch.ask(question.asked, question.what, question.destination);
  updateControls();
}

void PrintDialog::askAgain(const Question &question) {
  m_switch.stop();
  m_printers->refresh();
  ask(question);
}

void PrintDialog::moveTo(PrinterSwitch::Session opened, const QString &destination) {
  if (!opened) {
    showHeader();
    const bool mayHelp = m_question.isForServer && opened.failure().kind == FailureKind::Io;
    const auto again = [this, question = m_question] { askAgain(question); };
    showProblem(opened.failure(), mayHelp ? NoticeKeeper::Again(again) : NoticeKeeper::Again());
    if (m_lacksFirst && destination == m_setup.firstPrinter) Q_EMIT firstFailed(opened.failure());
    return;
  }
  if (std::exchange(m_lacksFirst, false)) {
    takeFirst(opened.take(), destination);
    return;
  }
  const Preset entered = entriesOf(*m_session);
  const JobSettings settings = m_session->job().settings();
  const JobSettings began = m_session->job().firstSettings();
  takeSession(opened.take(), destination);
  QList<PresetMisfit> misfits;
  {
    const ActionScope action(*m_session);
    misfits = applyPreset(*m_session, entered);
    m_session->job().setSettings(carriedOver(settings, began, m_session->job().settings()));
  }
  if (m_shownPreset != nullptr) m_shownPreset->follow(*m_session);
  showMisfits(tr("Not everything fits this printer:"), misfits);
}

// It may be another one than was asked for at first, if the user did not wait.
void PrintDialog::takeFirst(std::unique_ptr<PrintSession> session, const QString &destination) {
  const bool goesIntoFile = destination == m_setup.firstPrinter && !m_setup.outputFile.isNull();
  const QString place = session->origin().destination;
  takeSession(std::move(session), goesIntoFile ? QString() : place);
  beginWithApplied();
  m_notices->sayEarlier();
  Q_EMIT firstTaken();
}

void PrintDialog::takeSession(std::unique_ptr<PrintSession> session, const QString &destination) {
  m_session->disconnect(this);
  // The old ones give back what they borrowed before the old session goes.
  JobStrip *oldStrip = m_strip;
  SessionView *oldView = m_view;
  buildViews(*session);
  delete m_body->replaceWidget(oldStrip, m_strip);
  delete m_body->replaceWidget(oldView, m_view);
  delete oldStrip;
  delete oldView;
  const std::unique_ptr<PrintSession> old = std::exchange(m_ownSession, std::move(session));
  m_session = m_ownSession.get();
  m_setup.destination = destination;
  followSession();
  showHeader();
}

void PrintDialog::beginWithApplied() {
  if (m_shownPreset == nullptr) return;
  m_shownPreset->follow(*m_session);
  const bool isApplied = m_setup.applied && m_setup.applied->entry != PresetEntry();
  if (isApplied) m_shownPreset->beginWith(*m_setup.applied);
}

void PrintDialog::applyPicked(const PresetEntry &entry, const Preset &preset) {
  m_shownPreset->noteBefore();
  const QList<PresetMisfit> misfits = applyPreset(*m_session, preset);
  m_shownPreset->noteApplied(entry);
  showMisfits(tr("Not all of the preset fits this printer:"), misfits);
}

void PrintDialog::showMisfits(const QString &opening, const QList<PresetMisfit> &misfits) {
  if (misfits.isEmpty()) return;
  QStringList sentences{opening};
  for (const PresetMisfit &misfit : misfits) sentences << misfit.why;
  m_notices->sayFurther(sentences);
}

}  // namespace orvek
