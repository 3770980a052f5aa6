// SPDX-License-Identifier: Apache-2.0
// Tells documents apart by their first bytes. PDF files are looked into by a process of their own:
// a broken one can't harm the dialog, and one that takes too long can be ended.

#include "host/jobs/DocumentInfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>
#include <algorithm>
#include <chrono>
#include <future>
#include <map>
#include <memory>
#include <mutex>
#include <utility>

#include "host/jobs/AskedSides.h"
#include "host/jobs/Document.h"
#include "host/jobs/PdfReport.h"

namespace orvek {
namespace {

constexpr qint64 commentBytes = 65536;  // DSC comments stand at the start or at the end
constexpr int mostPages = 1'000'000;    // a file that claims more is taken for damaged

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::DocumentInfo)
};

int numberIn(const QString &text, const QString &pattern) {
  const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
  return expression.match(text).captured(1).toInt();
}

// As a PDF ends that was written to its end. Readers of pages are content with less than those who
// print them.
bool endsWell(QFile &file) {
  constexpr qint64 lastBytes = 2048;
  if (!file.seek(std::max(qint64{0}, file.size() - lastBytes))) return false;
  return file.read(lastBytes).contains("startxref");
}

void readPdf(DocumentInfo *info, QFile &file, const std::atomic<bool> &cancelled) {
  const Result<QByteArray> report = pdfReport(info->path, ReportOn::FirstPage, cancelled);
  if (report) {
    info->pages =
        numberIn(QString::fromUtf8(report.value()), QStringLiteral("^Pages:\\s*(\\d+)\\s*$"));
  }
  if (info->pages > 0 && endsWell(file)) return;
  const PdfFindings found = lookAtPdf(info->path, cancelled);
  info->state = found.state;
  info->pages = found.state == DocumentState::Usable ? std::max(found.pages, info->pages) : 0;
}

// A count that is "(atend)" is no number there, and stands among the last comments.
void readPostScript(DocumentInfo *info, QFile &file, const QString &start) {
  QString comments = start;
  if (file.size() > commentBytes && file.seek(file.size() - commentBytes)) {
    comments += QLatin1Char('\n') + QString::fromLatin1(file.read(commentBytes));
  }
  comments.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  info->isScript = true;
  info->pages = numberIn(comments, QStringLiteral("^%%Pages:\\s*(\\d+)"));
}

void readContent(DocumentInfo *info, const std::atomic<bool> &cancelled) {
  // A pipe's bytes can be read once, and belong to the job.
  if (comesOnce(info->path)) return;
  info->state = DocumentState::Unreadable;
  QFile file(info->path);
  if (!QFileInfo(info->path).isFile() || !file.open(QIODevice::ReadOnly)) return;
  info->state = file.size() > 0 ? DocumentState::Usable : DocumentState::Empty;
  const QByteArray start = file.read(commentBytes);
  if (beginsAsPdf(start)) {
    readPdf(info, file, cancelled);
  } else if (start.startsWith("%!") || start.startsWith("\x04%!")) {
    readPostScript(info, file, QString::fromLatin1(start));
  } else if (!QImageReader::imageFormat(info->path).isEmpty()) {
    info->pages = 1;
  }
}

DocumentInfo look(const QString &path, const std::atomic<bool> &cancelled) {
  DocumentInfo info;
  info.path = path.isEmpty() ? standardInput() : path;
  if (isStandardInput(info.path)) {
    info.name = Words::tr("(stdin)");
    return info;
  }
  info.name = QFileInfo(path).fileName();
  readContent(&info, cancelled);
  if (info.pages > mostPages) info.pages = 0;
  return info;
}

/// A look that was begun ahead. Waits for its end where nobody took what came of it.
class LookAhead {
 public:
  explicit LookAhead(const QString &path)
      : m_info(std::async(std::launch::async, [this, path] { return look(path, m_isCancelled); })) {
  }
  ~LookAhead() { m_isCancelled = true; }
  LookAhead(const LookAhead &) = delete;
  LookAhead &operator=(const LookAhead &) = delete;

  DocumentInfo wait(const std::atomic<bool> &cancelled) {
    using namespace std::chrono_literals;
    while (!cancelled && m_info.wait_for(20ms) != std::future_status::ready) continue;
    m_isCancelled = cancelled.load();
    return m_info.get();
  }

 private:
  std::atomic<bool> m_isCancelled = false;
  /// Behind what its thread uses, so that it goes, and waits for the thread, first.
  std::future<DocumentInfo> m_info;
};

class LooksAhead {
 public:
  void begin(const QString &path) {
    const std::lock_guard guard(m_lock);
    std::unique_ptr<LookAhead> &look = m_looks[path];
    if (!look) look = std::make_unique<LookAhead>(path);
  }

  /// Once: a document may change from then on.
  std::unique_ptr<LookAhead> take(const QString &path) {
    const std::lock_guard guard(m_lock);
    auto taken = m_looks.extract(path);
    return taken ? std::move(taken.mapped()) : nullptr;
  }

 private:
  std::mutex m_lock;
  std::map<QString, std::unique_ptr<LookAhead>> m_looks;
};

LooksAhead &looksAhead() {
  static LooksAhead looks;
  return looks;
}

}  // namespace

void lookAhead(const QString &path) {
  looksAhead().begin(path);
}

DocumentInfo documentInfo(const QString &path, const std::atomic<bool> &cancelled) {
  const std::unique_ptr<LookAhead> ahead = looksAhead().take(path);
  return ahead ? ahead->wait(cancelled) : look(path, cancelled);
}

DocumentInfo documentInfo(const QString &path) {
  const std::atomic<bool> never = false;
  return documentInfo(path, never);
}

Status usable(const QString &path, DocumentState state) {
  const auto failure = [&path](const char *why) {
    return Status(Failure{FailureKind::Io, documentName(path), Phrase(why)});
  };
  switch (state) {
    case DocumentState::Locked:
      return failure(QT_TRANSLATE_NOOP("orvek::Failure",
                                       "it needs a password; print it from a program that opens "
                                       "it with that password"));
    case DocumentState::Damaged:
      return failure(QT_TRANSLATE_NOOP("orvek::Failure", "is damaged beyond repair"));
    case DocumentState::NoPages:
      return failure(
          QT_TRANSLATE_NOOP("orvek::Failure", "has no pages, so there is nothing to print"));
    case DocumentState::Empty:
      return emptyDocument(path);
    // Whoever opens it says why that fails.
    case DocumentState::Unreadable:
    case DocumentState::Usable:
      break;
  }
  return {};
}

Status checkContents(const QStringList &files, const QMap<QString, QString> &options,
                     const std::atomic<bool> &cancelled) {
  for (const QString &file : files) {
    if (comesOnce(file)) continue;
    const DocumentInfo info = documentInfo(file, cancelled);
    if (Status checked = usable(file, info.state); !checked) return checked;
    if (files.size() > 1) continue;
    if (Status sides = checkAskedSides(file, info.pages, info.isScript, options); !sides)
      return sides;
  }
  return {};
}

}  // namespace orvek
