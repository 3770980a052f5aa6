// SPDX-License-Identifier: Apache-2.0
// Documents read, opened, chosen and dropped.

#include "host/dialog/JobDocuments.h"

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "host/dialog/DocumentHeader.h"
#include "host/dialog/DocumentPassword.h"
#include "host/jobs/Document.h"
#include "host/translations/FailureText.h"

namespace orvek {
namespace {

// What comes once can be looked at as a copy, which is what will be printed, too.
DocumentInfo knownOf(const QString &document, DocumentFiles &copies,
                     const BackgroundTask::Cancelled &cancelled) {
  DocumentInfo known;
  const auto files = copies.of({document}, cancelled);
  if (files) {
    known = documentInfo(files.value().constFirst(), cancelled);
  } else if (isEmptyDocument(files.failure())) {
    known.state = DocumentState::Empty;
  }
  known.name = documentsInWords({document});
  return known;
}

QStringList filesIn(const QMimeData &data) {
  QStringList files;
  for (const QUrl &url : data.urls()) {
    if (url.isLocalFile()) files << url.toLocalFile();
  }
  return files;
}

}  // namespace

/// What became of a password. Plain data.
struct JobDocuments::Opening {
  qsizetype place = 0;
  /// A failure other than that the password is wrong is said when the job is tried.
  bool isOpen = false;
  std::shared_ptr<ScratchFile> copy;
  DocumentInfo info;
};

QString documentsInWords(const QStringList &files) {
  if (files.isEmpty()) return {};
  const QString &first = files.first();
  const QString name =
      isStandardInput(first) ? translated(documentName(first)) : QFileInfo(first).fileName();
  if (files.size() < 2) return name;
  return JobDocuments::tr("%1 and %2 more").arg(name).arg(files.size() - 1);
}

JobDocuments::JobDocuments(std::shared_ptr<DocumentFiles> copies, QWidget *window)
    : QObject(window), m_copies(std::move(copies)), m_window(window) {
  window->setAcceptDrops(true);
  window->installEventFilter(this);
}

void JobDocuments::begin(const QStringList &files, const QString &name, const DocumentInfo &known) {
  m_files = files;
  m_name = name;
  m_only = known;
  m_known.clear();
}

void JobDocuments::take(const QStringList &files) {
  begin(files, documentsInWords(files), {});
  look();
  Q_EMIT changed();
}

void JobDocuments::look() {
  if (m_files.isEmpty()) return;
  m_reading.start(
      this,
      [files = m_files, copies = m_copies](const BackgroundTask::Cancelled &cancelled) {
        QList<DocumentInfo> known;
        for (const QString &file : files) known << knownOf(file, *copies, cancelled);
        return known;
      },
      [this](const QList<DocumentInfo> &known) { takeKnown(known); });
}

void JobDocuments::takeKnown(const QList<DocumentInfo> &known) {
  m_known = known;
  if (m_known.size() == 1) m_only = m_known.first();
  Q_EMIT changed();
  askPassword(false);
}

DocumentInfo JobDocuments::faulty() const {
  const auto found = std::find_if(m_known.begin(), m_known.end(), [](const DocumentInfo &known) {
    return known.state != DocumentState::Usable;
  });
  return found == m_known.end() ? DocumentInfo() : *found;
}

bool JobDocuments::needsPassword() const {
  return faulty().state == DocumentState::Locked;
}

void JobDocuments::askPassword(bool isRepeated) {
  const auto locked = std::find_if(m_known.begin(), m_known.end(), [](const DocumentInfo &known) {
    return known.state == DocumentState::Locked;
  });
  if (locked == m_known.end()) return;
  const qsizetype place = locked - m_known.begin();
  auto *question = new DocumentPassword(m_known[place].name, isRepeated, m_window);
  question->setAttribute(Qt::WA_DeleteOnClose);
  connect(question, &QDialog::accepted, this,
          [this, question, place] { open(place, question->password()); });
  question->open();
}

void JobDocuments::open(qsizetype place, const QString &password) {
  if (place >= m_known.size()) return;
  m_isOpening = true;
  Q_EMIT changed();
  m_reading.start(
      this,
      [place, password, known = m_known[place]](const BackgroundTask::Cancelled &cancelled) {
        Opening opening;
        opening.place = place;
        const auto opened = openedPdf(known.path, password, cancelled);
        if (!opened || !opened.value()) return opening;
        opening.copy = opened.value();
        opening.info = documentInfo(opening.copy->path(), cancelled);
        opening.info.name = known.name;
        opening.isOpen = true;
        return opening;
      },
      [this](const Opening &opening) { takeOpened(opening); });
}

void JobDocuments::takeOpened(const Opening &opening) {
  m_isOpening = false;
  if (opening.isOpen) {
    m_copies->replace(m_files[opening.place], opening.copy);
    m_known[opening.place] = opening.info;
    if (m_known.size() == 1) m_only = opening.info;
  }
  Q_EMIT changed();
  askPassword(!opening.isOpen);
}

QString JobDocuments::detail() const {
  if (m_files.isEmpty()) return tr("Choose a file, or drop one here");
  if (m_isOpening) return tr("Opening…");
  if (needsPassword()) return tr("Protected by a password");
  if (!problem().isNull()) return tr("Can't be printed");
  const QString pages = pagesInWords(this->pages());
  return pages.isNull() ? tr("Document") : pages;
}

// Of all documents; 0: of one of them nobody knows.
int JobDocuments::pages() const {
  if (m_known.size() < 2) return m_only.pages;
  int pages = 0;
  for (const DocumentInfo &known : m_known) {
    if (known.pages < 1) return 0;
    pages += known.pages;
  }
  return pages;
}

QString JobDocuments::problem() const {
  if (m_files.isEmpty()) return tr("There is no document yet");
  const DocumentInfo document = faulty();
  switch (document.state) {
    case DocumentState::Locked:
      return tr("%1 needs its password").arg(document.name);
    case DocumentState::Damaged:
      return tr("%1 is damaged beyond repair").arg(document.name);
    case DocumentState::NoPages:
      return tr("%1 has no pages").arg(document.name);
    case DocumentState::Empty:
      return tr("%1 is empty").arg(document.name);
    case DocumentState::Unreadable:
      return tr("%1 can't be read").arg(document.name);
    case DocumentState::Usable:
      break;
  }
  return {};
}

QString JobDocuments::remedy() const {
  if (m_isOpening || problem().isNull()) return {};
  return needsPassword() ? tr("Enter Password…") : tr("Choose File…");
}

void JobDocuments::applyRemedy() {
  if (remedy().isNull()) return;
  if (needsPassword()) {
    askPassword(false);
  } else {
    chooseFiles();
  }
}

void JobDocuments::chooseFiles() {
  const QStringList files = QFileDialog::getOpenFileNames(m_window, tr("Choose Documents"));
  if (!files.isEmpty()) take(files);
}

void JobDocuments::addFiles() {
  const QStringList files = QFileDialog::getOpenFileNames(m_window, tr("Add Documents"));
  if (!files.isEmpty() && m_mayChange) take(m_files + files);
}

void JobDocuments::remove(qsizetype place) {
  if (!m_mayChange || m_files.size() < 2 || place < 0 || place >= m_files.size()) return;
  QStringList files = m_files;
  files.removeAt(place);
  take(files);
}

bool JobDocuments::eventFilter(QObject *watched, QEvent *event) {
  const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
  if (!isDrag && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);
  auto *drop = static_cast<QDropEvent *>(event);
  const QStringList files = m_mayChange ? filesIn(*drop->mimeData()) : QStringList();
  drop->setDropAction(Qt::CopyAction);
  drop->setAccepted(!files.isEmpty());
  if (!isDrag && !files.isEmpty()) take(files);
  return true;
}

}  // namespace orvek
