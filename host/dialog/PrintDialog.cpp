// SPDX-License-Identifier: Apache-2.0
// The window's parts, and what they show.

#include "host/dialog/PrintDialog.h"

#include <QEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/ChooserRow.h"
#include "host/dialog/DocumentHeader.h"
#include "host/dialog/JobBar.h"
#include "host/dialog/NoticeKeeper.h"
#include "host/dialog/PrinterChooser.h"
#include "host/dialog/SessionView.h"
#include "host/jobs/BackgroundJob.h"
#include "host/jobs/Document.h"
#include "host/jobs/InputSpool.h"
#include "host/settings/JobStrip.h"
#include "host/translations/FailureText.h"

namespace orvek {
namespace {

constexpr int margin = 12;
constexpr int spacing = 10;

QFrame *separator(QWidget *parent) {
  auto *line = new QFrame(parent);
  line->setFrameShape(QFrame::HLine);
  line->setFrameShadow(QFrame::Sunken);
  return line;
}

// What comes once can be looked at as a copy, which is what will be printed, too.
DocumentInfo knownOf(const QString &path, DocumentFiles &copies,
                     const BackgroundTask::Cancelled &cancelled) {
  if (!comesOnce(path)) return documentInfo(path);
  const auto files = copies.of({path}, cancelled);
  DocumentInfo known = files ? documentInfo(files.value().constFirst()) : DocumentInfo();
  known.name = documentInfo(path).name;
  return known;
}

}  // namespace

PrintDialog::PrintDialog(PrintSession &session, DialogSetup setup, QWidget *parent)
    : QDialog(parent),
      m_session(&session),
      m_setup(std::move(setup)),
      m_room(*this),
      m_switch(m_setup.beginSession,
               [this](PrinterSwitch::Session opened, const QString &destination) {
                 moveTo(std::move(opened), destination);
               }) {
  setObjectName(QStringLiteral("printDialog"));
  setWindowTitle(tr("Print"));
  setWindowIcon(QIcon::fromTheme(QStringLiteral("orvek-print")));
  build();
  connectParts();
  followSession();
  showHeader();
  m_notices->sayEarlier();
  m_room.make();
}

PrintDialog::~PrintDialog() {
  // They borrow from the session, which goes with the members.
  delete m_strip;
  delete m_view;
}

void PrintDialog::build() {
  m_document = new DocumentHeader(this);
  m_document->setPicture(QStyle::SP_FileIcon);
  const auto snapshot = [this](const QString &name) { return presetOf(*m_session, name); };
  m_choosers = new ChooserRow(m_setup.server, m_setup.presets, snapshot, this);
  m_printers = m_choosers->printers();
  m_noticeBar = new NoticeBar(this);
  m_notices = new NoticeKeeper(*m_noticeBar, this);
  m_strip = new JobStrip(*m_session, this);
  m_view = new SessionView(*m_session, m_setup.document, this);
  connect(m_view, &SessionView::pageTurned, m_strip, &JobStrip::assignLetters);
  m_jobBar = new JobBar(this);
  m_job = new BackgroundJob(this);
  auto *header = new QHBoxLayout;
  header->setSpacing(2 * margin);
  header->addWidget(m_document, 1, Qt::AlignTop);
  header->addWidget(m_choosers, 0, Qt::AlignTop);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(spacing);
  column->addLayout(header);
  column->addWidget(m_noticeBar);
  column->addWidget(m_strip);
  column->addWidget(m_view, 1);
  column->addWidget(separator(this));
  column->addWidget(m_jobBar);
}

void PrintDialog::connectParts() {
  connect(m_printers, &PrinterChooser::chosen, this, &PrintDialog::choosePrinter);
  connect(m_printers, &PrinterChooser::descriptionAsked, this, &PrintDialog::chooseDescription);
  if (PresetChooser *presets = m_choosers->presets()) {
    connect(presets, &PresetChooser::picked, this, &PrintDialog::applyPicked);
    connect(presets, &PresetChooser::failed, this, &PrintDialog::showProblem);
  }
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
  m_notices->follow(*m_session);
  connect(m_session, &PrintSession::changed, this, &PrintDialog::updateControls);
}

void PrintDialog::updateControls() {
  const bool isPrinting = m_job->isRunning();
  const bool isForFile = m_setup.destination.isEmpty();
  const bool hasFile = isForFile && !m_setup.outputFile.isNull();
  m_strip->setEnabled(!isPrinting && !m_awaitsFirst);
  m_view->setEnabled(!isPrinting && !m_awaitsFirst);
  m_noticeBar->setEnabled(!isPrinting);
  m_choosers->setEnabled(!isPrinting);
  const bool hasPrinter = !isForFile || m_session->origin().printer != nullptr;
  m_jobBar->setState({.canPrint = hasPrinter && !m_switch.isAsking(),
                      .asksForFile = isForFile && !hasFile && !m_switch.isAsking(),
                      .isPrinting = isPrinting,
                      .isCancelling = isPrinting && m_isCancelling});
}

void PrintDialog::showDocument() {
  const QString pages = pagesInWords(m_setup.document.pages);
  m_document->setTexts(m_setup.documentName, pages.isNull() ? tr("Document") : pages);
}

void PrintDialog::showHeader() {
  showDocument();
  m_printers->setFileModel(m_session->origin().printer ? m_session->origin().printer->modelName()
                                                       : QString());
  m_printers->setFileIsPossible(m_session->origin().printer != nullptr);
  m_printers->show(m_setup.destination);
  if (PresetChooser *presets = m_choosers->presets()) presets->reload(m_setup.destination);
  updateControls();
}

void PrintDialog::setDocument(const DocumentInfo &document) {
  m_setup.document = document;
  showDocument();
  m_view->setDocument(document);
}

void PrintDialog::lookAround() {
  m_printers->refresh();
  if (m_setup.askFirst) askFirst();
  const QString path = m_setup.document.path;
  if (path.isEmpty()) return;
  m_reading.start(
      this,
      [path, copies = m_job->files()](const BackgroundTask::Cancelled &cancelled) {
        return knownOf(path, *copies, cancelled);
      },
      [this](const DocumentInfo &document) { setDocument(document); });
}

void PrintDialog::showProblem(const Failure &failure) {
  m_notices->say(NoticeBar::Kind::Problem, {failureText(failure)});
}

bool PrintDialog::event(QEvent *event) {
  const bool done = QDialog::event(event);
  // Comes when something in the window needs other room than before.
  if (event->type() == QEvent::LayoutRequest) m_room.make();
  return done;
}

}  // namespace orvek
