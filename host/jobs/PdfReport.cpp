// SPDX-License-Identifier: Apache-2.0
// Runs the tool within bounds.

#include "host/jobs/PdfReport.h"

#include <QFileInfo>
#include <QStringList>

#include "host/jobs/BoundedTool.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;

constexpr qint64 memoryBytes = 2LL << 30;
constexpr ToolLimits glance{2s, 1 << 20, memoryBytes};
constexpr ToolLimits closeLook{20s, 512 << 20, memoryBytes};
constexpr qint64 headerBytes = 1024;  // readers look for "%PDF-" this far

// Title, author and so on come first, as they are, and may hold lines that look like the tool's.
QByteArray withoutTheDocumentsWords(const QByteArray &report) {
  return report.mid(report.lastIndexOf("\nPages:") + 1);
}

}  // namespace

Result<QByteArray> pdfReport(const QString &pdf, ReportOn pages,
                             const std::atomic<bool> &cancelled) {
  QStringList arguments;
  if (pages == ReportOn::AllPages) {
    arguments << QStringLiteral("-box") << QStringLiteral("-f") << QStringLiteral("1")
              << QStringLiteral("-l") << QStringLiteral("-1");
  }
  // An absolute path, since a name may begin with a dash.
  arguments << QFileInfo(pdf).absoluteFilePath();
  const auto report = runTool(QStringLiteral("pdfinfo"), arguments,
                              pages == ReportOn::AllPages ? closeLook : glance, cancelled);
  if (!report) return report;
  return withoutTheDocumentsWords(report.value());
}

bool beginsAsPdf(const QByteArray &bytes) {
  return bytes.left(headerBytes).contains("%PDF-");
}

}  // namespace orvek
