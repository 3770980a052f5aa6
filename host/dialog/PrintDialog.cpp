// SPDX-License-Identifier: Apache-2.0
// The window's parts, its notices and its size.

#include "host/dialog/PrintDialog.h"

#include <QComboBox>
#include <QEvent>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/DocumentHeader.h"
#include "host/dialog/JobBar.h"
#include "host/dialog/NoticeBar.h"
#include "host/dialog/PresetChooser.h"
#include "host/dialog/PrinterChooser.h"
#include "host/dialog/SessionView.h"
#include "host/jobs/BackgroundJob.h"
#include "host/translations/FailureText.h"

namespace orvek {
namespace {

constexpr int margin = 12;
constexpr int spacing = 10;
constexpr int labelGap = 6;

QFrame *separator(QWidget *parent) {
  auto *line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

QLabel *labelFor(QWidget *control, const QString &text, QWidget *parent) {
  auto *label = new QLabel(text, parent);
  label->setBuddy(control);
  return label;
}

}  // namespace

PrintDialog::PrintDialog(PrintSession &session, DialogSetup setup, QWidget *parent)
    : QDialog(parent), m_session(&session), m_setup(std::move(setup)) {
  setObjectName(QStringLiteral("printDialog"));
  setWindowTitle(tr("Print"));
  setWindowIcon(QIcon::fromTheme(QStringLiteral("orvek-print")));
  build();
  connectParts();
  followSession();
  showHeader();
  showEarlierNotices();
  makeRoom();
}

PrintDialog::~PrintDialog() {
  // The view borrows from the session, which goes with the members.
  delete m_view;
}

void PrintDialog::build() {
  m_document = new DocumentHeader(this);
  m_document->setPicture(QStyle::SP_FileIcon);
  QWidget *choosers = buildChoosers();
  m_notices = new NoticeBar(this);
  m_view = new SessionView(*m_session, m_setup.document, this);
  m_jobBar = new JobBar(this);
  m_job = new BackgroundJob(this);
  auto *header = new QHBoxLayout;
  header->setSpacing(2 * margin);
  header->addWidget(m_document, 1, Qt::AlignTop);
  header->addWidget(choosers, 0, Qt::AlignTop);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(spacing);
  column->addLayout(header);
  column->addWidget(m_notices);
  column->addWidget(m_view, 1);
  column->addWidget(separator(this));
  column->addWidget(m_jobBar);
}

QWidget *PrintDialog::buildChoosers() {
  auto *choosers = new QWidget(this);
  auto *grid = new QGridLayout(choosers);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(labelGap);
  m_printers = new PrinterChooser(m_setup.server, choosers);
  QLabel *printerLabel = labelFor(m_printers->menu(), tr("P&rinter:"), choosers);
  printerLabel->setFixedHeight(m_printers->menu()->sizeHint().height());
  grid->addWidget(printerLabel, 0, 0, Qt::AlignTop);
  grid->addWidget(m_printers, 0, 1, Qt::AlignTop);
  if (!m_setup.presets) return choosers;
  const auto snapshot = [this](const QString &name) { return presetOf(*m_session, name); };
  m_presets = new PresetChooser(m_setup.presets, snapshot, choosers);
  QLabel *presetLabel = labelFor(m_presets->menu(), tr("Pr&eset:"), choosers);
  presetLabel->setFixedHeight(m_presets->menu()->sizeHint().height());
  grid->setColumnMinimumWidth(2, margin);
  grid->addWidget(presetLabel, 0, 3, Qt::AlignTop);
  grid->addWidget(m_presets, 0, 4, Qt::AlignTop);
  return choosers;
}

void PrintDialog::connectParts() {
  connect(m_printers, &PrinterChooser::chosen, this, &PrintDialog::choosePrinter);
  connect(m_printers, &PrinterChooser::descriptionAsked, this, &PrintDialog::chooseDescription);
  if (m_presets != nullptr) {
    connect(m_presets, &PresetChooser::picked, this, &PrintDialog::applyPicked);
    connect(m_presets, &PresetChooser::failed, this, &PrintDialog::showProblem);
  }
  connect(m_notices, &NoticeBar::undoAsked, this, [this] { m_session->undo(); });
  connect(m_jobBar, &JobBar::printAsked, this, &PrintDialog::print);
  connect(m_jobBar, &JobBar::cancelAsked, this, &PrintDialog::reject);
  connect(m_job, &BackgroundJob::progressed, this, &PrintDialog::showProgress);
  connect(m_job, &BackgroundJob::finished, this, &PrintDialog::end);
  connect(m_job, &BackgroundJob::failed, this, &PrintDialog::showFailure);
  auto *undo = new QShortcut(QKeySequence::Undo, this);
  connect(undo, &QShortcut::activated, this, [this] {
    if (m_session->canUndo()) m_session->undo();
  });
}

void PrintDialog::followSession() {
  connect(m_session, &PrintSession::noticed, this, &PrintDialog::showNotice);
  connect(m_session, &PrintSession::changed, this, &PrintDialog::sessionChanged);
}

void PrintDialog::updateControls() {
  const bool isPrinting = m_job->isRunning();
  const bool isForFile = m_setup.destination.isEmpty();
  const bool hasFile = isForFile && !m_setup.outputFile.isNull();
  m_view->setEnabled(!isPrinting);
  m_notices->setEnabled(!isPrinting);
  m_printers->parentWidget()->setEnabled(!isPrinting);  // with its label, and the presets
  const bool hasPrinter = !isForFile || m_session->origin().printer != nullptr;
  m_jobBar->setState({.canPrint = hasPrinter && m_asked.isNull(),
                      .asksForFile = isForFile && !hasFile && m_asked.isNull(),
                      .isPrinting = isPrinting,
                      .isCancelling = isPrinting && m_isCancelling});
}

void PrintDialog::showHeader() {
  const QString pages = pagesInWords(m_setup.document.pages);
  m_document->setTexts(m_setup.documentName, pages.isNull() ? tr("Document") : pages);
  m_printers->setFileModel(m_session->origin().printer ? m_session->origin().printer->modelName()
                                                       : QString());
  m_printers->setFileIsPossible(m_session->origin().printer != nullptr);
  m_printers->show(m_setup.destination);
  if (m_presets != nullptr) m_presets->reload(m_setup.destination);
  updateControls();
}

void PrintDialog::setDocument(const DocumentInfo &document) {
  m_setup.document = document;
  const QString pages = pagesInWords(document.pages);
  m_document->setTexts(m_setup.documentName, pages.isNull() ? tr("Document") : pages);
  m_view->setDocument(document);
}

void PrintDialog::lookAround() {
  m_printers->refresh();
  const QString path = m_setup.document.path;
  if (path.isEmpty()) return;
  m_reading.start(
      this, [path](const BackgroundTask::Cancelled &) { return documentInfo(path); },
      [this](const DocumentInfo &document) { setDocument(document); });
}

void PrintDialog::showNotice(const QStringList &sentences) {
  const bool addsToNew = std::exchange(m_noticeIsNew, true);
  const QStringList all = addsToNew ? m_notices->sentences() + sentences : sentences;
  m_notices->say(NoticeBar::Kind::Information, all, true);
}

// What constraints did to the command line's options, before there was a window.
void PrintDialog::showEarlierNotices() {
  if (m_session->record().notices().isEmpty()) return;
  m_noticedMarks = m_session->marks().snapshot();
  m_notices->say(NoticeBar::Kind::Information, m_session->record().notices(), m_session->canUndo());
}

void PrintDialog::showProblem(const Failure &failure) {
  m_noticedMarks = m_session->marks().snapshot();
  m_notices->say(NoticeBar::Kind::Problem, {failureText(failure)}, false);
}

// A notice stands until the next choice is made: its Undo would take back that one.
void PrintDialog::sessionChanged() {
  const MarksSnapshot marks = m_session->marks().snapshot();
  if (std::exchange(m_noticeIsNew, false)) {
    m_noticedMarks = marks;
    m_notices->say(NoticeBar::Kind::Information, m_notices->sentences(), m_session->canUndo());
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

}  // namespace orvek
