// SPDX-License-Identifier: Apache-2.0
// A job's way: gathered, warned of, sent, watched, ended.

#include <QFileInfo>
#include <QPushButton>

#include "host/dialog/JobBar.h"
#include "host/dialog/JobDocuments.h"
#include "host/dialog/NoticeKeeper.h"
#include "host/dialog/PrintDialog.h"
#include "host/dialog/PrinterChooser.h"
#include "host/dialog/ProgressText.h"
#include "host/dialog/SavePlace.h"
#include "host/jobs/BookletDriver.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/QueueJob.h"
#include "host/jobs/SheetsPdf.h"
#include "host/printers/Queue.h"
#include "host/session/JobWarnings.h"
#include "host/settings/Announcement.h"
#include "host/translations/FailureText.h"
#include "platform/ui/PlainText.h"

namespace orvek {

JobRequest PrintDialog::gatherRequest() {
  {
    const ActionScope action(*m_session, ActionOf::Host);
    m_session->panels().save();
  }
  JobRequest request = m_setup.jobRequest ? m_setup.jobRequest(*m_session) : JobRequest();
  const bool isForFile = m_setup.destination.isEmpty();
  const Destination destination = destinationFrom(isForFile ? QString() : m_setup.destination);
  request.queue = destination.queue;
  request.instance = destination.instance;
  request.files = m_documents->files();
  request.outputFile = isForFile ? m_setup.outputFile : QString();
  return request;
}

bool PrintDialog::completeRequest(JobRequest *request) {
  if (!request->queue.isNull() || !request->outputFile.isNull()) return true;
  request->outputFile = askForPlace(this, proposedPlace(m_documents->files()));
  return !request->outputFile.isEmpty();
}

bool PrintDialog::acceptsWarnings() {
  const QStringList warnings = jobWarnings(*m_session, m_documents->only().pages);
  if (warnings.isEmpty()) return true;
  PlainMessageBox question(QMessageBox::Warning, tr("Print"),
                           warnings.join(QStringLiteral(".\n")) + QLatin1Char('.'),
                           QMessageBox::Cancel, this);
  question.setInformativeText(tr("Print all the same?"));
  QPushButton *print = question.addButton(tr("&Print"), QMessageBox::AcceptRole);
  question.setDefaultButton(QMessageBox::Cancel);
  question.button(QMessageBox::Cancel)->setText(tr("Cancel"));
  question.exec();
  return question.clickedButton() == print;
}

// Of a job that was held back.
bool PrintDialog::acceptsSheets(const JobOutcome &outcome) {
  const Failure lack{FailureKind::Io, outcome.queue, lackOfDriver(outcome.driver)};
  PlainMessageBox question(QMessageBox::Question, tr("Print"), failureText(lack) + QLatin1Char('.'),
                           QMessageBox::Cancel, this);
  QString offer = tr("The sheets can be made on this computer and sent finished.");
  if (outcome.lacksBanners) offer += u' ' + tr("Banner pages would be left out.");
  question.setInformativeText(offer);
  const QString words = asksForBooklet(m_request.options) ? tr("&Impose here and print")
                                                          : tr("&Prepare here and print");
  QPushButton *print = question.addButton(words, QMessageBox::AcceptRole);
  question.setDefaultButton(print);
  question.setEscapeButton(QMessageBox::Cancel);
  question.button(QMessageBox::Cancel)->setText(tr("Cancel"));
  question.exec();
  return question.clickedButton() == print;
}

void PrintDialog::print() {
  if (m_job->isRunning() || m_switch.isAsking() || !obstacle().isNull()) return;
  JobRequest request = gatherRequest();
  if (!acceptsWarnings() || !completeRequest(&request)) return;
  m_request = request;
  start();
}

bool PrintDialog::hasAskedForPlace() const {
  return m_request.queue.isNull() && m_setup.outputFile.isNull();
}

// What the command line names is the printer's own language, whatever it is called.
BackgroundJob::Work PrintDialog::workFor(const JobRequest &request) const {
  if (!request.queue.isNull()) return submitToQueue;
  const bool isPdf = hasAskedForPlace() && isPdfPlace(request.outputFile);
  return isPdf ? printIntoPdf : printThroughFilters;
}

void PrintDialog::start() {
  m_notices->forgetOthers();
  m_isCancelling = false;
  m_job->start(m_request, workFor(m_request));
  showProgress({});
  updateControls();
}

void PrintDialog::reject() {
  if (!m_job->isRunning()) {
    m_switch.stop();
    QDialog::reject();
    return;
  }
  m_isCancelling = true;
  updateControls();
  m_job->cancel();
}

void PrintDialog::showProgress(const JobProgress &progress) {
  if (m_isCancelling) return;
  m_jobBar->setProgress(progressInWords(progress),
                        percentDone(progress, m_documents->only().pages));
}

void PrintDialog::end(const JobOutcome &outcome) {
  if (outcome.isHeldBack) {
    updateControls();
    m_request.mayMakeSheets = acceptsSheets(outcome);
    if (m_request.mayMakeSheets) start();
    return;
  }
  m_outcome = outcome;
  announce(*this, m_request.queue.isNull()
                      ? tr("Printed into %1").arg(QFileInfo(m_request.outputFile).fileName())
                      : tr("Sent to %1, job %2").arg(m_request.queue).arg(outcome.jobId));
  if (m_setup.presets && !m_request.queue.isNull() && m_setup.presets->remembers()) {
    // The job went; that it can't be remembered is no reason to stay.
    static_cast<void>(m_setup.presets->saveLastUsed(m_setup.destination, lastUsedOf(*m_session)));
  }
  if (m_setup.recent && !m_request.queue.isNull()) {
    static_cast<void>(m_setup.recent->add(m_setup.destination));
  }
  if (hasAskedForPlace()) showPlace(this, m_request.outputFile);
  accept();
}

void PrintDialog::showFailure(const Failure &failure) {
  const bool isCancelled = failure.kind == FailureKind::Cancelled;
  QStringList words{isCancelled ? tr("The job was cancelled.") : failureText(failure)};
  const auto kind = isCancelled ? NoticeBar::Kind::Information : NoticeBar::Kind::Problem;
  if (!isCancelled && !m_request.queue.isNull() && m_session->origin().printer) {
    words << tr("It can still be printed into a file: choose File as the printer.");
  }
  m_isCancelling = false;
  const bool mayHelp = !m_request.queue.isNull() && failure.kind == FailureKind::Io;
  m_notices->say(kind, words,
                 mayHelp ? NoticeKeeper::Again([this] { print(); }) : NoticeKeeper::Again());
  m_printers->refresh();
  updateControls();
}

}  // namespace orvek
