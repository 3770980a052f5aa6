// SPDX-License-Identifier: Apache-2.0
// Tells documents apart by their first bytes. PDF files are looked into by a process of their own:
// a broken one can't harm the dialog, and one that takes too long can be ended.

#include "host/jobs/DocumentInfo.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QRegularExpression>

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

void readPdf(DocumentInfo *info) {
  const std::atomic<bool> never = false;
  const Result<QByteArray> report = pdfReport(info->path, ReportOn::FirstPage, never);
  if (!report) return;
  info->pages =
      numberIn(QString::fromUtf8(report.value()), QStringLiteral("^Pages:\\s*(\\d+)\\s*$"));
}

// A count that is "(atend)" is no number there, and stands among the last comments.
void readPostScript(DocumentInfo *info, QFile &file, const QString &start) {
  QString comments = start;
  if (file.size() > commentBytes && file.seek(file.size() - commentBytes)) {
    comments += QLatin1Char('\n') + QString::fromLatin1(file.read(commentBytes));
  }
  comments.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  info->pages = numberIn(comments, QStringLiteral("^%%Pages:\\s*(\\d+)"));
}

void readContent(DocumentInfo *info) {
  // A pipe's bytes can be read once, and belong to the job.
  if (!QFileInfo(info->path).isFile()) return;
  QFile file(info->path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QByteArray start = file.read(commentBytes);
  if (beginsAsPdf(start)) {
    readPdf(info);
  } else if (start.startsWith("%!") || start.startsWith("\x04%!")) {
    readPostScript(info, file, QString::fromLatin1(start));
  } else if (!QImageReader::imageFormat(info->path).isEmpty()) {
    info->pages = 1;
  }
}

}  // namespace

DocumentInfo documentInfo(const QString &path) {
  DocumentInfo info;
  info.path = path.isEmpty() ? standardInput() : path;
  if (isStandardInput(info.path)) {
    info.name = Words::tr("(stdin)");
    return info;
  }
  info.name = QFileInfo(path).fileName();
  readContent(&info);
  if (info.pages > mostPages) info.pages = 0;
  return info;
}

}  // namespace orvek
