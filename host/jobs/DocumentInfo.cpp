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

QString value(const QString &text, const QString &pattern, int group = 1) {
  const QRegularExpression expression(pattern, QRegularExpression::MultilineOption);
  return expression.match(text).captured(group);
}

void readPdf(DocumentInfo *info) {
  const std::atomic<bool> never = false;
  const Result<QByteArray> said = pdfReport(info->path, ReportOn::FirstPage, never);
  if (!said) return;
  const QString report = QString::fromUtf8(said.value());
  info->pages = value(report, QStringLiteral("^Pages:\\s*(\\d+)\\s*$")).toInt();
  const QString size = QStringLiteral("^Page size:\\s*([\\d.]+) x ([\\d.]+) pts");
  info->pageSizePoints = QSizeF(value(report, size).toDouble(), value(report, size, 2).toDouble());
  const int turn = value(report, QStringLiteral("^Page rot:\\s*(\\d+)")).toInt();
  if (turn % 180 != 0) info->pageSizePoints.transpose();
}

// A count that is "(atend)" is no number there, and stands among the last comments.
void readPostScript(DocumentInfo *info, QFile &file, const QString &start) {
  QString comments = start;
  if (file.size() > commentBytes && file.seek(file.size() - commentBytes)) {
    comments += QLatin1Char('\n') + QString::fromLatin1(file.read(commentBytes));
  }
  comments.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  info->pages = value(comments, QStringLiteral("^%%Pages:\\s*(\\d+)")).toInt();
  const QString media = QStringLiteral("^%%DocumentMedia:\\s*\\S+\\s+([\\d.]+)\\s+([\\d.]+)");
  const QString box = QStringLiteral("^%%BoundingBox:\\s*0\\s+0\\s+(\\d+)\\s+(\\d+)");
  for (const QString &pattern : {media, box}) {
    if (!info->pageSizePoints.isEmpty()) break;
    info->pageSizePoints =
        QSizeF(value(comments, pattern).toDouble(), value(comments, pattern, 2).toDouble());
  }
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
  if (info.pageSizePoints.isEmpty()) info.pageSizePoints = QSizeF();
  return info;
}

}  // namespace orvek
