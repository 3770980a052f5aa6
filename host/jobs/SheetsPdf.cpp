// SPDX-License-Identifier: Apache-2.0
// Pages come from the filter tool, booklets from the driver, and one PDF of several from a tool.

#include "host/jobs/SheetsPdf.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include "host/jobs/BookletDriver.h"
#include "host/jobs/BoundedTool.h"
#include "host/jobs/Document.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/FilterRun.h"
#include "host/jobs/InputSpool.h"
#include "host/jobs/OptionText.h"
#include "host/jobs/OutputTarget.h"
#include "host/jobs/ScratchFile.h"
#include "host/printers/Queue.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;
using Options = QMap<QString, QString>;

constexpr qint64 blockBytes = 1 << 16;
constexpr ToolLimits unitingLimits{600s, 1 << 20, 0};

QString textOf(const Options &options) {
  QStringList texts;
  for (auto option = options.cbegin(); option != options.cend(); ++option) {
    texts << optionText(option.key(), option.value());
  }
  return texts.join(u' ');
}

Status runInto(const QString &file, const FilterProgram &program, const Phrase &document,
               const QString &ppd, JobControl &control) {
  auto target = OutputTarget::open(file);
  if (!target) return target.failure();
  FilterRun run{ppd, control, *target.value()};
  if (Status done = runFilters(run, program, document); !done) return done;
  return target.value()->commit();
}

/// The tools and the printer description that a document's sheets are made with.
struct Makers {
  QString tool;
  ChainPPD ppd;
};

Result<Makers> makersFor(const JobRequest &request) {
  auto tool = requiredFilterTool();
  if (!tool) return tool.failure();
  auto ppd = ChainPPD::of(request.ppdFile, {}, DriverPlaces::ofThisProgram());
  if (!ppd) return ppd.failure();
  return Makers{tool.take(), ppd.take()};
}

Status makePages(const Makers &makers, const OneDocument &document, const QString &pages,
                 const JobRequest &request, JobControl &control) {
  const auto toPages = filterToolCall(request, makers.tool, makers.ppd.path(),
                                      QStringLiteral("application/vnd.cups-pdf"), document.file);
  return runInto(pages, toPages, document.name(), request.ppdFile, control);
}

Status impose(const Makers &makers, const OneDocument &document, const QString &pages,
              const JobRequest &request, JobControl &control) {
  const auto driver = requiredBookletDriver(DriverPlaces::ofThisProgram());
  if (!driver) return driver.failure();
  const QString anything = QStringLiteral("1");
  const FilterProgram toSheets{
      driver.value(),
      {QStringLiteral("--sheets"), anything, request.user, effectiveTitle(request), anything,
       textOf(effectiveOptions(request)), pages},
      {{QStringLiteral("PPD"), makers.ppd.path()}}};
  return runInto(document.output, toSheets, document.name(), request.ppdFile, control);
}

/// One PDF of several, in their order.
Result<QString> united(const QStringList &parts, const QString &whole, const JobControl &control) {
  if (parts.size() == 1) return parts.first();
  const auto done = runTool(QStringLiteral("pdfunite"), parts + QStringList{whole}, unitingLimits,
                            control.cancelled);
  if (control.cancelled) return jobCancelled();
  if (!done) return done.failure();
  if (QFileInfo(whole).size() > 0) return whole;
  return Failure{FailureKind::Io, QStringLiteral("pdfunite"),
                 Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                          "the sheets of several documents can't be put into one "
                                          "PDF; print them one by one"))};
}

Result<qint64> copyInto(const QString &path, const QString &from, const JobControl &control) {
  auto target = OutputTarget::open(path);
  if (!target) return target.failure();
  QFile file(from);
  if (!file.open(QIODevice::ReadOnly)) {
    return Failure{FailureKind::Io, from, Phrase::ofSystem(file.errorString())};
  }
  qint64 bytes = 0;
  while (!file.atEnd() && !control.cancelled) {
    const QByteArray block = file.read(blockBytes);
    if (block.isEmpty()) {
      return Failure{FailureKind::Io, from, Phrase::ofSystem(file.errorString())};
    }
    const auto keepWaiting = [&control] { return !control.cancelled.load(); };
    if (Status done = target.value()->write(block, keepWaiting); !done) return done.failure();
    bytes += block.size();
  }
  if (control.cancelled) return jobCancelled();
  if (Status placed = target.value()->commit(); !placed) return placed.failure();
  return bytes;
}

Result<QStringList> makeAllSheets(const JobRequest &request, const QString &folder,
                                  JobControl &control) {
  JobRequest all = request;
  all.options = effectiveOptions(request);
  const JobRequest job = jobForSheets(all);
  DocumentFiles copies;
  QStringList parts;
  JobProgress progress;
  progress.documents = static_cast<int>(effectiveFiles(request).size());
  for (const QString &document : effectiveFiles(request)) {
    control.report(progress);
    const auto files = copies.of({document}, control);
    if (!files) return files.failure();
    const QString part = folder + QStringLiteral("/%1.pdf").arg(parts.size());
    const OneDocument one{document, files.value().constFirst(), part};
    if (Status pages = checkPagesOf(one.file, one.name(), request, control); !pages) {
      return pages.failure();
    }
    if (Status made = makeSheets(one, job, control); !made) return made.failure();
    parts << part;
    ++progress.document;
  }
  return parts;
}

}  // namespace

Phrase OneDocument::name() const {
  return documentName(document);
}

JobRequest jobForFilters(const JobRequest &request) {
  JobRequest job = request;
  job.saved.clear();
  job.options.removeIf([](const auto &option) {
    return describesQueue(option.key()) || option.key() == QLatin1String("job-sheets");
  });
  removeNamed(&job.options, "document-format");
  return job;
}

JobRequest jobForSheets(const JobRequest &request) {
  JobRequest job = jobForFilters(request);
  removeNamed(&job.options, "copies");
  return job;
}

Status makeSheets(const OneDocument &document, const JobRequest &request, JobControl &control) {
  const auto makers = makersFor(request);
  if (!makers) return makers.failure();
  if (!asksForBooklet(request.options)) {
    return makePages(makers.value(), document, document.output, request, control);
  }
  const QString pages = document.output + QStringLiteral(".pages");
  if (Status made = makePages(makers.value(), document, pages, request, control); !made) {
    return made;
  }
  Status imposed = impose(makers.value(), document, pages, request, control);
  QFile::remove(pages);
  return imposed;
}

Result<JobOutcome> printIntoPdf(const JobRequest &request, JobControl &control) {
  if (Status checked = checkIntoFile(request); !checked) return checked.failure();
  const auto scratch = scratchFolder();
  if (!scratch) return scratch.failure();
  const QTemporaryDir folder(scratch.value() + QStringLiteral("/pdf-XXXXXX"));
  if (!folder.isValid()) {
    return Failure{FailureKind::Io, scratch.value(), Phrase::ofSystem(folder.errorString())};
  }
  const auto parts = makeAllSheets(request, folder.path(), control);
  if (!parts) return parts.failure();
  const auto whole = united(parts.value(), folder.filePath(QStringLiteral("whole.pdf")), control);
  if (!whole) return whole.failure();
  const auto bytes = copyInto(request.outputFile, whole.value(), control);
  if (!bytes) return bytes.failure();
  return JobOutcome{0, QString(), static_cast<int>(parts.value().size()), bytes.value()};
}

}  // namespace orvek
