// SPDX-License-Identifier: Apache-2.0
// The window's parts, its size, and a job's way through it.

#include "host/dialog/PrintDialog.h"

#include <QEvent>
#include <QFileDialog>
#include <QFrame>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/DocumentHeader.h"
#include "host/dialog/JobBar.h"
#include "host/dialog/JobRunner.h"
#include "host/dialog/NoticeBar.h"
#include "host/dialog/SessionView.h"
#include "host/jobs/FilterChain.h"

namespace orvek {
namespace {

constexpr int margin = 12;
constexpr int spacing = 10;
constexpr int wholeJob = 100;

int percentDone(const JobProgress &progress, int pages) {
  if (progress.expected > 0) return int(progress.bytes * wholeJob / progress.expected);
  if (progress.pages > 0 && progress.documents == 1 && pages >= progress.pages)
    return progress.pages * wholeJob / pages;
  return -1;
}

QFrame *separator(QWidget *parent) {
  auto *line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

}  // namespace

PrintDialog::PrintDialog(PrintSession &session, DialogSetup setup, QWidget *parent)
    : QDialog(parent), m_session(session), m_setup(std::move(setup)) {
  setObjectName(QStringLiteral("printDialog"));
  setWindowTitle(tr("Print"));
  setWindowIcon(QIcon::fromTheme(QStringLiteral("orvek-print")));
  build();
  connectParts();
  showHeader();
  updateControls();
  makeRoom();
}

PrintDialog::~PrintDialog() = default;

void PrintDialog::build() {
  m_document = new DocumentHeader(this);
  m_document->setPicture(QStyle::SP_FileIcon);
  m_printer = new DocumentHeader(this);
  m_notices = new NoticeBar(this);
  m_view = new SessionView(m_session, this);
  m_jobBar = new JobBar(this);
  m_runner = new JobRunner(this);
  auto *header = new QHBoxLayout;
  header->setSpacing(2 * margin);
  header->addWidget(m_document, 1);
  header->addWidget(m_printer, 1);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(spacing);
  column->addLayout(header);
  column->addWidget(m_notices);
  column->addWidget(m_view, 1);
  column->addWidget(separator(this));
  column->addWidget(m_jobBar);
}

void PrintDialog::connectParts() {
  connect(&m_session, &PrintSession::noticed, this, &PrintDialog::showNotice);
  connect(&m_session, &PrintSession::changed, this, &PrintDialog::followSession);
  connect(m_notices, &NoticeBar::undoAsked, this, [this] { m_session.undo(); });
  connect(m_jobBar, &JobBar::printAsked, this, &PrintDialog::print);
  connect(m_jobBar, &JobBar::cancelAsked, this, &PrintDialog::reject);
  connect(m_runner, &JobRunner::progressed, this, &PrintDialog::showProgress);
  connect(m_runner, &JobRunner::finished, this, &PrintDialog::end);
  connect(m_runner, &JobRunner::failed, this, &PrintDialog::showFailure);
  auto *undo = new QShortcut(QKeySequence::Undo, this);
  connect(undo, &QShortcut::activated, this, [this] {
    if (m_session.canUndo()) m_session.undo();
  });
}

void PrintDialog::updateControls() {
  const bool isPrinting = m_runner->isRunning();
  const JobRequest request = m_setup.jobRequest(m_session);
  m_view->setEnabled(!isPrinting);
  m_notices->setEnabled(!isPrinting);
  m_jobBar->setState({.canPrint = true,
                      .asksForFile = request.queue.isNull() && request.outputFile.isNull(),
                      .isPrinting = isPrinting,
                      .isCancelling = isPrinting && m_isCancelling});
}

void PrintDialog::showHeader() {
  const QString pages = pagesInWords(m_setup.pages);
  m_document->setTexts(m_setup.documentName, pages.isNull() ? tr("Document") : pages);
  const QString model = m_session.printer() ? m_session.printer()->modelName() : QString();
  m_printer->setTexts(model.isNull() ? tr("Printer") : model, tr("Prints into a file"));
}

void PrintDialog::showNotice(const QStringList &sentences) {
  const bool addsToNew = m_noticeIsNew;
  m_noticeIsNew = true;
  const QStringList all = addsToNew ? m_notices->sentences() + sentences : sentences;
  m_notices->say(NoticeBar::Kind::Information, all, true);
}

// A notice stands until the next choice is made: its Undo would take back that one.
void PrintDialog::followSession() {
  const MarksSnapshot marks = m_session.marks().snapshot();
  if (std::exchange(m_noticeIsNew, false)) {
    m_noticedMarks = marks;
    m_notices->say(NoticeBar::Kind::Information, m_notices->sentences(), m_session.canUndo());
  } else if (marks != m_noticedMarks) {
    m_notices->fallSilent();
  }
  updateControls();
}

bool PrintDialog::event(QEvent *event) {
  const bool done = QDialog::event(event);
  // Comes when something in the window needs other room than before.
  if (event->type() == QEvent::LayoutRequest) makeRoom();
  return done;
}

// Grows and shrinks with its content; a size that the user chose only grows, where it must.
void PrintDialog::makeRoom() {
  layout()->activate();
  const QSize wanted = sizeHint().expandedTo(minimumSizeHint());
  // The layout itself has the window grow to its minimum.
  const bool isUsersSize =
      m_ownSize.isValid() && size() != m_ownSize && size() != m_ownSize.expandedTo(minimumSize());
  const QSize next = isUsersSize ? size().expandedTo(minimumSizeHint()) : wanted;
  if (size() != next) resize(next);
  if (!isUsersSize) m_ownSize = next;
}

bool PrintDialog::completeRequest(JobRequest *request) {
  if (!request->queue.isNull() || !request->outputFile.isNull()) return true;
  request->outputFile = QFileDialog::getSaveFileName(this, tr("Print into a File"));
  return !request->outputFile.isEmpty();
}

void PrintDialog::print() {
  if (m_runner->isRunning()) return;
  JobRequest request = m_setup.jobRequest(m_session);
  if (!completeRequest(&request)) return;
  m_notices->fallSilent();
  m_isCancelling = false;
  m_runner->start(request, printThroughFilters);
  showProgress({});
  updateControls();
}

void PrintDialog::reject() {
  if (!m_runner->isRunning()) {
    QDialog::reject();
    return;
  }
  m_isCancelling = true;
  updateControls();
  m_runner->cancel();
}

void PrintDialog::showProgress(const JobProgress &progress) {
  if (m_isCancelling) return;
  m_jobBar->setProgress(progressInWords(progress), percentDone(progress, m_setup.pages));
}

void PrintDialog::end(const JobOutcome &outcome) {
  m_outcome = outcome;
  accept();
}

void PrintDialog::showFailure(const Failure &failure) {
  const QString words = m_isCancelling ? tr("The job was cancelled.") : failure.line();
  const auto kind = m_isCancelling ? NoticeBar::Kind::Information : NoticeBar::Kind::Problem;
  m_isCancelling = false;
  m_noticedMarks = m_session.marks().snapshot();
  m_notices->say(kind, {words}, false);
  updateControls();
}

}  // namespace orvek
