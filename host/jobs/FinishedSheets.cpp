// SPDX-License-Identifier: Apache-2.0
// Runs the filters and the driver that the server would have run.

#include "host/jobs/FinishedSheets.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>

#include "host/jobs/Document.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/InputSpool.h"
#include "host/jobs/ReadJob.h"
#include "host/jobs/ScratchFile.h"
#include "host/jobs/SheetsPdf.h"
#include "imposition/SheetOptions.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

using Options = QMap<QString, QString>;

const QString copiesOption = QStringLiteral("copies");
const QString formatOption = QStringLiteral("document-format");
const QString bannersOption = QStringLiteral("job-sheets");
const QString noBanner = QStringLiteral("none");

template <typename Names>
void removeAll(Options *options, const Names &names) {
  for (const char *name : names) removeNamed(options, name);
}

void askForSheets(JobRequest *job, const QString &paper) {
  removeAll(&job->options, imposition::doneWithSheets);
  removeAll(&job->options, imposition::againstSheets);
  for (const auto &[name, value] : imposition::sheetOptions) {
    job->options.insert(QLatin1String(name), QLatin1String(value));
  }
  if (paper.isNull()) return;
  removeAll(&job->options, imposition::paperOptions);
  job->options.insert(QLatin1String(imposition::sheetPaperOption), paper);
}

// Printers take copies from the job's bytes; backends would make them once more.
void askForNothingMore(JobRequest *job) {
  removeAll(&job->options, imposition::doneWithSheets);
  job->options.insert(copiesOption, QStringLiteral("1"));
  job->options.insert(bannersOption, noBanner);
  job->options.insert(finishedSheetsMark, QStringLiteral("true"));
  job->options.insert(formatOption, QStringLiteral("application/vnd.cups-raw"));
}

/// The job that prints finished sheets; its documents are still to be named.
JobRequest finished(const JobRequest &request, ServerDriver driver) {
  JobRequest job = request;
  job.title = effectiveTitle(request);
  job.options = effectiveOptions(request);
  removeNamed(&job.options, formatOption);
  if (driver == ServerDriver::StopsEveryJob) {
    askForNothingMore(&job);
  } else {
    askForSheets(&job, request.sheetPaper);
  }
  job.files.clear();
  return job;
}

Status printInto(const OneDocument &document, JobRequest request, JobControl &control) {
  request.title = effectiveTitle(request);
  request.files = QStringList{document.document};
  request.outputFile = document.output;
  const ReadJob job{request, {document.file}};
  const auto printed = printThroughFilters(job.onFiles(), control);
  return printed ? Status() : job.named(printed.failure());
}

}  // namespace

bool losesBanners(const Options &options, ServerDriver driver) {
  if (driver != ServerDriver::StopsEveryJob) return false;
  const QStringList banners = valueNamed(options, bannersOption).value_or(QString()).split(u',');
  return std::any_of(banners.begin(), banners.end(), [](const QString &banner) {
    return !banner.trimmed().isEmpty() && banner.trimmed() != noBanner;
  });
}

// Each under its own name, by which the server knows a document.
Result<QString> FinishedSheets::placeFor(const QString &document, const QString &suffix) {
  const QDir folder(m_folder.filePath(QString::number(++m_places)));
  if (!m_folder.isValid() || !folder.mkpath(QStringLiteral("."))) {
    return Failure{FailureKind::Io, QDir::tempPath(), Phrase::ofSystem(m_folder.errorString())};
  }
  const QString name =
      isStandardInput(document) ? QStringLiteral("stdin") : QFileInfo(document).completeBaseName();
  return folder.filePath(name + suffix);
}

Result<std::unique_ptr<FinishedSheets>> FinishedSheets::of(const JobRequest &request,
                                                           ServerDriver driver, JobControl &control,
                                                           const QByteArray &beginOfStandardInput) {
  const bool areForDevice = driver == ServerDriver::StopsEveryJob;
  const auto scratch = scratchFolder();
  if (!scratch) return scratch.failure();
  std::unique_ptr<FinishedSheets> sheets(
      new FinishedSheets(finished(request, driver), scratch.value()));
  const JobRequest job = areForDevice ? jobForFilters(request) : jobForSheets(request);
  DocumentFiles copies;
  for (const QString &document : effectiveFiles(request)) {
    const auto files = copies.of({document}, control, beginOfStandardInput);
    if (!files) return files.failure();
    const auto place =
        sheets->placeFor(document, areForDevice ? QStringLiteral(".ps") : QStringLiteral(".pdf"));
    if (!place) return place.failure();
    const OneDocument one{document, files.value().constFirst(), place.value()};
    const Status made = areForDevice ? printInto(one, job, control) : makeSheets(one, job, control);
    if (!made) return made.failure();
    sheets->m_request.files << one.output;
  }
  return sheets;
}

}  // namespace orvek
