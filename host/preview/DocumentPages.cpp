// SPDX-License-Identifier: Apache-2.0
// PDFs are asked about with pdfinfo; everything else goes through the filter tool first.

#include "host/preview/DocumentPages.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <optional>

#include "host/jobs/BookletDriver.h"
#include "host/jobs/BoundedTool.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/OptionText.h"
#include "host/jobs/PdfReport.h"
#include "host/ppd/Keyword.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;

constexpr qint64 headerBytes = 1024;
constexpr ToolLimits conversionLimits{60s, 1LL << 30, 0};

const QString pdfType = QStringLiteral("application/pdf");
const QString placedType = QStringLiteral("application/vnd.cups-pdf");

Failure unreadable(const QString &path, const char *why) {
  return {FailureKind::Io, path, Phrase(why)};
}

Result<DocumentPages> readPdf(const QString &pdf, const std::atomic<bool> &cancelled) {
  const Result<QByteArray> report = pdfReport(pdf, ReportOn::AllPages, cancelled);
  if (!report) return report.failure();
  DocumentPages pages;
  pages.pages = pagesInReport(report.value());
  pages.pdf = pdf;
  if (pages.pages.isEmpty()) return unreadable(pdf, "can't be read as a PDF");
  return pages;
}

bool isPostScript(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray start = file.read(headerBytes);
  return start.startsWith("%!") || start.startsWith("\x04%!");
}

QStringList conversionArguments(const QString &path, const QString &ppd,
                                const QMap<QString, QString> &options, const QString &type) {
  QStringList arguments{QStringLiteral("-m"), type};
  if (!ppd.isEmpty()) arguments << QStringLiteral("-p") << ppd;
  for (auto option = options.begin(); option != options.end(); ++option) {
    arguments << QStringLiteral("-o") << filterToolOptionText(option.key(), option.value());
  }
  return arguments << path;
}

Result<DocumentPages> convert(const QString &path, const PrintedWith &with,
                              const std::atomic<bool> &cancelled) {
  const QString tool = findFilterTool(qEnvironmentVariable("PATH"));
  if (tool.isNull()) return unreadable(path, "there are no filters to show it with");
  // The driver has no part in it: what makes pages is chosen as if there were none.
  std::optional<ChainPPD> ppd;
  if (!with.ppdFile.isEmpty()) {
    Result<ChainPPD> chosen = ChainPPD::of(with.ppdFile, {}, DriverPlaces::ofThisProgram());
    if (!chosen) return chosen.failure();
    ppd = chosen.take();
  }
  const bool isPicture = !QImageReader::imageFormat(path).isEmpty();
  const QStringList arguments = conversionArguments(path, ppd ? ppd->path() : QString(),
                                                    with.options, isPicture ? placedType : pdfType);
  const Result<QByteArray> pdf = runTool(tool, arguments, conversionLimits, cancelled);
  if (!pdf) return pdf.failure();
  auto made = ScratchFile::with(pdf.value(), QStringLiteral(".pdf"));
  if (!made) return made.failure();
  Result<DocumentPages> pages = readPdf(made.value()->path(), cancelled);
  if (!pages) return unreadable(path, "the filters make no pages of it");
  pages.value().made = made.take();
  pages.value().isPlaced = isPicture;
  pages.value().isScript = isPostScript(path);
  return pages;
}

// No pattern, which takes longer to be made ready than a whole window to be built.
bool comesLater(const QString &option) {
  for (const char *beginning : {"OVK", "com.", "finishings", "job-"}) {
    if (option.startsWith(QLatin1String(beginning), Qt::CaseInsensitive)) return true;
  }
  return isAnyOf(option, {"copies", "collate", "page-ranges", "page-set", "outputorder",
                          "number-up", "number-up-layout", "sides", "duplex", "outputbin",
                          "output-bin", "staplelocation", "punchmedia", "foldtype", "booklet"});
}

}  // namespace

bool isPdfFile(const QString &path) {
  QFile file(path);
  return QFileInfo(path).isFile() && file.open(QIODevice::ReadOnly) &&
         beginsAsPdf(file.read(headerBytes));
}

// What places finished pages on sheets, and what finishes the sheets, changes no page.
QMap<QString, QString> optionsForPages(const QMap<QString, QString> &options) {
  QMap<QString, QString> kept = options;
  kept.removeIf([](const auto &option) { return comesLater(option.key()); });
  return kept;
}

Result<DocumentPages> readDocumentPages(const QString &path, const PrintedWith &with,
                                        const std::atomic<bool> &cancelled) {
  if (path == QLatin1String("-") || !QFileInfo(path).isFile()) {
    return unreadable(path, "is no file whose pages could be looked at");
  }
  // An absolute path can't be taken for an option, whatever the document is called.
  const QString absolute = QFileInfo(path).absoluteFilePath();
  return isPdfFile(absolute) ? readPdf(absolute, cancelled) : convert(absolute, with, cancelled);
}

}  // namespace orvek
