// SPDX-License-Identifier: Apache-2.0
// Looks at what is asked for, then has the filter tool print each document.

#include "host/jobs/FilterChain.h"

#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include "host/jobs/BookletDriver.h"
#include "host/jobs/Document.h"
#include "host/jobs/DocumentInfo.h"
#include "host/jobs/FilterRun.h"
#include "host/jobs/InputSpool.h"
#include "platform/system/FileIdentity.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

const QString printerFormat = QStringLiteral("printer/foo");

Status checkPPDFile(const QString &path) {
  QFile file(path);
  if (QFileInfo(path).isDir()) {
    return Failure{FailureKind::Io, path,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is a folder, not a PPD file"))};
  }
  if (!file.open(QIODevice::ReadOnly)) {
    return Failure{FailureKind::Io, path, Phrase::ofSystem(file.errorString())};
  }
  return {};
}

Status checkOutput(const JobRequest &request) {
  const bool isStream = request.outputFile == QLatin1String("-");
  const auto output =
      isStream ? FileIdentity::behind(STDOUT_FILENO) : FileIdentity::at(request.outputFile);
  if (!output) return {};
  for (const QString &file : effectiveFiles(request)) {
    const auto document =
        isStandardInput(file) ? FileIdentity::behind(STDIN_FILENO) : FileIdentity::at(file);
    if (document != output) continue;
    const Phrase name = isStream ? Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "standard output"))
                                 : request.outputFile;
    return Failure{
        FailureKind::Io, name,
        Phrase(QT_TRANSLATE_NOOP(
            "orvek::Failure", "is the document itself, which would be lost; name another file"))};
  }
  return {};
}

Status printAll(FilterRun &run, const JobRequest &request, const QString &tool,
                const QString &ppd) {
  DocumentFiles copies;
  for (const QString &document : effectiveFiles(request)) {
    const auto files = copies.of({document}, run.control);
    if (!files) return files.failure();
    const QString file = files.value().constFirst();
    const Phrase name = documentName(document);
    if (Status pages = checkPagesOf(file, name, request, run.control); !pages) return pages;
    const auto call = filterToolCall(request, tool, ppd, printerFormat, file);
    if (Status done = runFilters(run, call, name); !done) return done;
    ++run.progress.document;
  }
  return {};
}

}  // namespace

// Filters make anything from nothing to a damaged file where there is nothing to print.
Status checkPagesOf(const QString &file, const Phrase &name, const JobRequest &request,
                    const JobControl &control) {
  const Status checked = checkContents({file}, effectiveOptions(request), control.cancelled);
  if (checked) return {};
  return Failure{checked.failure().kind, name, checked.failure().why};
}

Status checkIntoFile(const JobRequest &request) {
  if (Status ppd = checkPPDFile(request.ppdFile); !ppd) return ppd;
  if (Status documents = checkAllDocuments(effectiveFiles(request)); !documents) return documents;
  return checkOutput(request);
}

QString findFilterTool(const QString &searchPath) {
  QStringList folders = searchPath.split(u':', Qt::SkipEmptyParts);
  folders << QStringLiteral("/usr/local/sbin") << QStringLiteral("/usr/sbin")
          << QStringLiteral("/sbin");
  const QString path = QStandardPaths::findExecutable(QStringLiteral("cupsfilter"), folders);
  return path.isEmpty() ? QString() : path;
}

Result<QString> requiredFilterTool() {
  const QString tool = findFilterTool(qEnvironmentVariable("PATH"));
  if (!tool.isNull()) return tool;
  return Failure{
      FailureKind::Io, QStringLiteral("cupsfilter"),
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "not found; install the package \"cups\""))};
}

Result<JobOutcome> printThroughFilters(const JobRequest &request, JobControl &control) {
  if (Status checked = checkIntoFile(request); !checked) return checked.failure();
  const auto tool = requiredFilterTool();
  if (!tool) return tool.failure();
  const auto ppd =
      ChainPPD::of(request.ppdFile, effectiveOptions(request), DriverPlaces::ofThisProgram());
  if (!ppd) return ppd.failure();
  auto target = OutputTarget::open(request.outputFile);
  if (!target) return target.failure();

  FilterRun run{request.ppdFile, control, *target.value()};
  run.progress.documents = static_cast<int>(effectiveFiles(request).size());
  const Status printed = printAll(run, request, tool.value(), ppd.value().path());
  if (!printed) return printed.failure();
  if (Status placed = target.value()->commit(); !placed) return placed.failure();
  return JobOutcome{0, QString(), run.progress.documents, run.progress.bytes};
}

}  // namespace orvek
