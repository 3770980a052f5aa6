// SPDX-License-Identifier: Apache-2.0
// The window's parts, and what they show.

#include "host/dialog/PrintDialog.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

#include "host/dialog/ChooserRow.h"
#include "host/dialog/DocumentHeader.h"
#include "host/dialog/DocumentMenu.h"
#include "host/dialog/HistoryKeys.h"
#include "host/dialog/JobBar.h"
#include "host/dialog/JobDocuments.h"
#include "host/dialog/NoticeKeeper.h"
#include "host/dialog/NoticePlace.h"
#include "host/dialog/PrinterChooser.h"
#include "host/dialog/ProgramIcon.h"
#include "host/dialog/ScrollingBody.h"
#include "host/dialog/SessionView.h"
#include "host/dialog/ShownPreset.h"
#include "host/dialog/TabOrder.h"
#include "host/dialog/WheelGuard.h"
#include "host/dialog/WindowRoom.h"
#include "host/jobs/BackgroundJob.h"
#include "host/session/JobWarnings.h"
#include "host/settings/FlowRow.h"
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

}  // namespace

PrintDialog::PrintDialog(PrintSession &session, DialogSetup setup, QWidget *parent)
    : QDialog(parent),
      m_session(&session),
      m_setup(std::move(setup)),
      m_switch(m_setup.beginSession,
               [this](PrinterSwitch::Session opened, const QString &destination) {
                 moveTo(std::move(opened), destination);
               }) {
  setObjectName(QStringLiteral("printDialog"));
  setWindowTitle(tr("Print"));
  setWindowIcon(programIcon());
  build();
  connectParts();
  followSession();
  showHeader();
  beginWithApplied();
  m_notices->sayEarlier();
}

PrintDialog::~PrintDialog() {
  // They borrow from the session, which goes with the members.
  delete m_strip;
  delete m_view;
}

void PrintDialog::build() {
  m_header = new DocumentHeader(this);
  m_header->setPicture(QStyle::SP_FileIcon);
  const auto snapshot = [this](const QString &name) { return presetOf(*m_session, name); };
  m_choosers = new ChooserRow(m_setup.server, m_setup.presets, snapshot, this);
  m_printers = m_choosers->printers();
  if (m_setup.recent) m_printers->setRecent(m_setup.recent->destinations());
  m_noticeBar = new NoticeBar(this);
  m_notices = new NoticeKeeper(*m_noticeBar, this);
  m_job = new BackgroundJob(this);
  m_documents = new JobDocuments(m_job->files(), this);
  m_documents->begin(m_setup.files, m_setup.documentName, m_setup.document);
  buildViews(*m_session);
  m_jobBar = new JobBar(this);
  auto *column = new QVBoxLayout(this);
  column->setContentsMargins(margin, margin, margin, margin);
  column->setSpacing(spacing);
  column->addWidget(new ScrollingBody(buildBody(), this), 1);
  column->addWidget(separator(this));
  column->addWidget(buildFoot());
}

void PrintDialog::buildViews(PrintSession &session) {
  m_strip = new JobStrip(session, this);
  m_view = new SessionView(session, m_documents->only(), this);
  connect(m_view, &SessionView::pageTurned, m_strip, &JobStrip::assignLetters);
}

QWidget *PrintDialog::buildHeader() {
  m_header->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  m_documentMenu = new DocumentMenu(*m_documents, m_header);
  m_header->addButton(m_documentMenu);
  auto *header = new FlowRow(2 * margin, spacing, this);
  header->add(m_header);
  header->add(m_choosers);
  return header;
}

QWidget *PrintDialog::buildBody() {
  auto *body = new QWidget(this);
  m_body = new QVBoxLayout(body);
  m_body->setContentsMargins(0, 0, 0, 0);
  m_body->setSpacing(spacing);
  m_body->addWidget(buildHeader());
  m_body->addWidget(m_strip);
  m_body->addWidget(m_view, 1);
  return body;
}

QWidget *PrintDialog::buildFoot() {
  // Nothing moves for a notice of one line.
  m_jobBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  m_jobBar->setMinimumHeight(m_noticeBar->sizeHint().height());
  auto *foot = new FlowRow(margin, spacing, this);
  foot->add(new NoticePlace(m_noticeBar, foot));
  foot->add(m_jobBar);
  return foot;
}

void PrintDialog::connectParts() {
  connect(m_printers, &PrinterChooser::chosen, this, &PrintDialog::choosePrinter);
  connect(m_printers, &PrinterChooser::descriptionAsked, this, &PrintDialog::chooseDescription);
  connect(m_printers, &PrinterChooser::listed, this, &PrintDialog::followPrinters);
  if (PresetChooser *presets = m_choosers->presets()) {
    connect(presets, &PresetChooser::picked, this, &PrintDialog::applyPicked);
    connect(presets, &PresetChooser::failed, this,
            [this](const Failure &failure) { showProblem(failure); });
    m_shownPreset = new ShownPreset(*presets, this);
  }
  connect(m_header, &DocumentHeader::actionAsked, m_documents, &JobDocuments::applyRemedy);
  connect(m_documents, &JobDocuments::changed, this, &PrintDialog::followDocuments);
  connect(m_jobBar, &JobBar::printAsked, this, &PrintDialog::print);
  connect(m_jobBar, &JobBar::cancelAsked, this, &PrintDialog::reject);
  connect(m_job, &BackgroundJob::progressed, this, &PrintDialog::showProgress);
  connect(m_job, &BackgroundJob::finished, this, &PrintDialog::end);
  connect(m_job, &BackgroundJob::failed, this, &PrintDialog::showFailure);
  new WheelGuard(*this);
  auto *keys = new HistoryKeys(*this);
  connect(keys, &HistoryKeys::undoAsked, this, [this] {
    if (!m_job->isRunning()) m_session->undo();
  });
  connect(keys, &HistoryKeys::redoAsked, this, [this] {
    if (!m_job->isRunning()) m_session->redo();
  });
}

void PrintDialog::followSession() {
  m_notices->follow(*m_session);
  connect(m_session, &PrintSession::changed, this, &PrintDialog::updateControls);
  m_session->job().setDocumentPages(m_documents->only().pages, m_documents->only().isScript);
}

// Where it is the interface that is busy, that is said elsewhere.
QString PrintDialog::obstacle() const {
  if (m_switch.isAsking()) return {};
  if (m_printers->isGone()) return tr("The printer is no longer there");
  const bool isForFile = m_setup.destination.isEmpty();
  if (isForFile && m_session->origin().printer == nullptr) return tr("No printer is chosen");
  if (const QString problem = m_documents->problem(); !problem.isNull()) return problem;
  return pagesProblem(m_session->job().settings(), documentSides(*m_session));
}

void PrintDialog::updateControls() {
  const bool isPrinting = m_job->isRunning();
  const bool isForFile = m_setup.destination.isEmpty();
  const bool hasFile = isForFile && !m_setup.outputFile.isNull();
  m_strip->setEnabled(!isPrinting && !awaitsFirst());
  m_view->setEnabled(!isPrinting && !awaitsFirst());
  m_noticeBar->setEnabled(!isPrinting);
  m_choosers->setEnabled(!isPrinting);
  m_documents->setMayChange(!isPrinting);
  m_documentMenu->setEnabled(!isPrinting);
  const QString obstacle = this->obstacle();
  m_jobBar->setState({.canPrint = obstacle.isNull() && !m_switch.isAsking(),
                      .asksForFile = isForFile && !hasFile && !m_switch.isAsking(),
                      .isPrinting = isPrinting,
                      .isCancelling = isPrinting && m_isCancelling,
                      .obstacle = obstacle});
}

void PrintDialog::followDocuments() {
  const DocumentInfo &only = m_documents->only();
  m_header->setTexts(m_documents->files().isEmpty() ? tr("No document") : m_documents->name(),
                     m_documents->detail());
  m_header->setAction(m_documents->remedy());
  m_session->job().setDocumentPages(only.pages, only.isScript);
  m_view->setDocument(only, !m_documents->files().isEmpty());
  updateControls();
}

const DocumentInfo &PrintDialog::document() const {
  return m_documents->only();
}

const QStringList &PrintDialog::files() const {
  return m_documents->files();
}

void PrintDialog::showHeader() {
  followDocuments();
  m_printers->setFileModel(m_session->origin().printer ? m_session->origin().printer->modelName()
                                                       : QString());
  m_printers->setFileIsPossible(m_session->origin().printer != nullptr);
  m_printers->show(m_setup.destination);
  if (PresetChooser *presets = m_choosers->presets()) presets->reload(m_setup.destination);
}

void PrintDialog::lookAround() {
  m_printers->refresh();
  if (m_setup.askFirst) askFirst();
  m_documents->look();
}

void PrintDialog::showProblem(const Failure &failure, const std::function<void()> &again) {
  m_notices->say(NoticeBar::Kind::Problem, {failureText(failure)}, again);
}

bool PrintDialog::focusNextPrevChild(bool next) {
  return moveFocus(*this, next);
}

// Whoever made the window may have chosen its screen or its size since.
void PrintDialog::setVisible(bool isVisible) {
  if (isVisible && !testAttribute(Qt::WA_Resized)) makeRoom(*this);
  QDialog::setVisible(isVisible);
}

}  // namespace orvek
