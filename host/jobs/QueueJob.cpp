// SPDX-License-Identifier: Apache-2.0
// Creates the job, sends its documents, and cancels what did not go through.

#include "host/jobs/QueueJob.h"

#include <QFileInfo>
#include <algorithm>

#include "host/jobs/BookletDriver.h"
#include "host/jobs/CreateJob.h"
#include "host/jobs/CupsOptions.h"
#include "host/jobs/Document.h"
#include "host/jobs/DocumentReader.h"
#include "host/jobs/FinishedSheets.h"
#include "host/jobs/JobState.h"
#include "host/jobs/ServerDriver.h"
#include "host/printers/CupsConnection.h"
#include "host/printers/PrinterList.h"
#include "host/printers/QueuePPD.h"

namespace orvek {
namespace {

constexpr const char *stateReasons = "printer-state-reasons";

/// One job under way.
struct Submission {
  JobControl &control;
  CupsConnection &connection;
  QByteArray queue;
  const CupsOptions &options;
  QByteArray firstOfStandardInput;
  int jobId = 0;
  JobProgress progress;
};

qint64 expectedBytes(const QStringList &files) {
  qint64 sum = 0;
  for (const QString &file : files) {
    const qint64 size = documentSize(file);
    if (size < 0) return -1;
    sum += size;
  }
  return sum;
}

/// Standard input's first block, before there is a job: an empty input makes none.
Result<QByteArray> beginOfStandardInput(const QStringList &files, const JobControl &control) {
  if (!files.contains(standardInput())) return QByteArray();
  auto reader = DocumentReader::open(standardInput());
  while (!control.cancelled) {
    auto block = reader.value()->read();
    if (!block || !block.value().isEmpty()) return block;
    if (reader.value()->atEnd()) {
      return Failure{
          FailureKind::Io, documentName(standardInput()),
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is empty, so no job has been sent"))};
    }
  }
  return jobCancelled();
}

QByteArray formatOf(const CupsOptions &options) {
  if (options.value("raw")) return CUPS_FORMAT_RAW;
  const char *format = options.value("document-format");
  return format ? format : CUPS_FORMAT_AUTO;
}

Failure lastFailure(const Submission &job, const Phrase &what) {
  return job.control.cancelled ? jobCancelled() : job.connection.lastFailure(what);
}

Status sendBlock(Submission &job, const QString &file, const QByteArray &block) {
  if (job.control.cancelled) return jobCancelled();
  if (block.isEmpty()) return {};
  const http_status_t status = cupsWriteRequestData(job.connection.http(), block.constData(),
                                                    static_cast<size_t>(block.size()));
  if (status != HTTP_STATUS_CONTINUE) return lastFailure(job, documentName(file));
  job.progress.bytes += block.size();
  job.control.report(job.progress);
  return {};
}

Status sendBlocks(Submission &job, const QString &file) {
  auto reader = DocumentReader::open(file);
  if (!reader) return reader.failure();
  if (isStandardInput(file)) {
    if (Status sent = sendBlock(job, file, job.firstOfStandardInput); !sent) return sent;
  }
  while (!reader.value()->atEnd()) {
    const auto block = reader.value()->read();
    if (!block) return block.failure();
    if (Status sent = sendBlock(job, file, block.value()); !sent) return sent;
  }
  return {};
}

Status sendDocument(Submission &job, const QString &file, bool isLast) {
  // Standard input has no name of its own; libcups then gives the document the job's.
  const QByteArray name =
      isStandardInput(file) ? QByteArray() : QFileInfo(file).fileName().toUtf8();
  http_t *http = job.connection.http();
  const http_status_t status = cupsStartDocument(http, job.queue.constData(), job.jobId,
                                                 name.isNull() ? nullptr : name.constData(),
                                                 formatOf(job.options).constData(), isLast ? 1 : 0);
  if (status != HTTP_STATUS_CONTINUE) return lastFailure(job, documentName(file));
  if (Status sent = sendBlocks(job, file); !sent) return sent;
  const ipp_status_t finished = cupsFinishDocument(http, job.queue.constData());
  const bool refused = finished > IPP_STATUS_OK_CONFLICTING;
  if (refused || job.connection.isBroken()) return lastFailure(job, documentName(file));
  return {};
}

Status sendAll(Submission &job, const QStringList &files) {
  job.progress.documents = static_cast<int>(files.size());
  job.progress.expected = expectedBytes(files);
  for (const QString &file : files) {
    const bool isLast = job.progress.document == job.progress.documents;
    if (Status sent = sendDocument(job, file, isLast); !sent) return sent;
    if (!isLast) ++job.progress.document;
  }
  return {};
}

Status createJob(Submission &job, const Queue &queue, const JobRequest &request) {
  job.jobId = createJobOn(job.connection.http(), queue, effectiveTitle(request), job.options,
                          request.texts);
  return job.jobId > 0 ? Status() : Status(lastFailure(job, QString::fromUtf8(job.queue)));
}

ServerAccess accessOf(const JobRequest &request, const std::atomic<bool> *cancelled) {
  return {request.server, request.user, cancelled, request.patience, request.passwords};
}

QMap<QString, QString> savedOptions(const Queue &queue, const JobRequest &request) {
  QMap<QString, QString> options = queue.options;
  options.removeIf([&](const auto &saved) {
    return request.overruled.contains(saved.key(), Qt::CaseInsensitive);
  });
  return options;
}

// An administrator's description counts, whatever one the job was made with.
QString descriptionOf(const CupsConnection &connection, const Queue &queue) {
  const auto path = QueuePPD().fetch(connection, queue.name);
  return path ? path.value() : QString();
}

QString destinationOf(const JobRequest &request) {
  return request.instance.isEmpty() ? request.queue : request.queue + u'/' + request.instance;
}

/// A queue that was found, and the connection to its server.
struct Target {
  std::unique_ptr<CupsConnection> connection;
  Queue queue;
};

Result<Target> findTarget(const JobRequest &request, const JobControl &control) {
  auto connection = CupsConnection::open(accessOf(request, &control.cancelled));
  if (!connection) return connection.failure();
  const auto queue = findPrinter(*connection.value(), destinationOf(request));
  if (!queue) return control.cancelled ? jobCancelled() : queue.failure();
  return Target{connection.take(), queue.value()};
}

void cancelQuietly(const JobRequest &request, const QString &queue, int jobId) {
  ServerAccess quietly = accessOf(request, nullptr);
  if (quietly.passwords) quietly.passwords = quietly.passwords->withoutAsking();
  (void)cancelJob(quietly, queue, jobId);
}

Result<JobOutcome> send(Target &target, const JobRequest &request, const CupsOptions &options,
                        const QByteArray &beginOfInput, JobControl &control) {
  const QString name = target.queue.name;
  Submission job{control, *target.connection, name.toUtf8(), options, beginOfInput, 0, {}};
  if (Status created = createJob(job, target.queue, request); !created) return created.failure();
  if (Status sent = sendAll(job, effectiveFiles(request)); !sent) {
    // The connection may be in the middle of a document; only a new one can be used to cancel.
    target.connection.reset();
    cancelQuietly(request, name, job.jobId);
    return sent.failure();
  }
  return JobOutcome{job.jobId, name, job.progress.documents, job.progress.bytes};
}

/// Makes the sheets of a job, all of whose options are `job`'s, and sends those.
Result<JobOutcome> sendSheets(const JobRequest &job, ServerDriver driver,
                              const QByteArray &beginOfInput, JobControl &control) {
  const auto sheets = FinishedSheets::of(job, driver, control, beginOfInput);
  if (!sheets) return sheets.failure();
  const JobRequest &request = sheets.value()->request();
  // That may have taken longer than a server keeps a connection.
  auto target = findTarget(request, control);
  if (!target) return target.failure();
  auto sent = send(target.value(), request, CupsOptions(request.options), {}, control);
  if (!sent) return sent;
  sent.value().driver = driver;
  return sent;
}

/// Another way for a job, all of whose options are `job`'s, that is not to be sent as it is.
Result<JobOutcome> goAround(ServerDriver driver, const JobRequest &job, const QString &queue,
                            const QByteArray &beginOfInput, JobControl &control) {
  if (!job.mayMakeSheets) return JobOutcome{0, queue, 0, 0, driver, true};
  return sendSheets(job, driver, beginOfInput, control);
}

ServerDriver driverOf(const Target &target, JobRequest *job) {
  const QString reasons = target.queue.options.value(QLatin1String(stateReasons));
  if (!dependsOnServerDriver(job->options, reasons)) return ServerDriver::Works;
  job->ppdFile = descriptionOf(*target.connection, target.queue);
  return serverDriverFor(job->options, reasons, job->ppdFile);
}

// A server forgets that it lacks a filter with every job that needs none, and remembers it with the
// next that does.
bool isStoppedForDriver(const Target &target, const JobRequest &job, int jobId) {
  if (job.ppdFile.isNull() || driverNamedIn(job.ppdFile) != NamedDriver::Ours) return false;
  return isStoppedByServer(target.connection->http(), jobId);
}

Result<JobOutcome> replaceStopped(const JobOutcome &stopped, JobRequest job, JobControl &control) {
  auto target = findTarget(job, control);
  if (!target) return target.failure();
  const ServerDriver driver = driverOf(target.value(), &job);
  if (driver != ServerDriver::StopsEveryJob) return stopped;
  cancelQuietly(job, stopped.queue, stopped.jobId);
  const QStringList files = effectiveFiles(job);
  if (std::none_of(files.begin(), files.end(), comesOnce)) {
    return goAround(driver, job, stopped.queue, {}, control);
  }
  return Failure{FailureKind::Io, stopped.queue,
                 Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                          "%1; print it once more, and its sheets are made "
                                          "on this computer"),
                        {lackOfDriver(driver)})};
}

}  // namespace

Result<JobOutcome> submitToQueue(const JobRequest &request, JobControl &control) {
  const QStringList files = effectiveFiles(request);
  if (Status checked = checkAllDocuments(files); !checked) return checked.failure();
  auto begin = beginOfStandardInput(files, control);
  if (!begin) return begin.failure();
  auto target = findTarget(request, control);
  if (!target) return target.failure();

  CupsOptions options(effectiveOptions(request));
  options.addMissing(savedOptions(target.value().queue, request));
  JobRequest job = request;
  job.options = options.all();
  const ServerDriver driver = driverOf(target.value(), &job);
  if (driver != ServerDriver::Works) {
    return goAround(driver, job, target.value().queue.name, begin.value(), control);
  }
  const auto sent = send(target.value(), request, options, begin.value(), control);
  if (!sent || !isStoppedForDriver(target.value(), job, sent.value().jobId)) return sent;
  return replaceStopped(sent.value(), job, control);
}

Status cancelJob(const ServerAccess &access, const QString &queue, int jobId) {
  auto connection = CupsConnection::open(access);
  if (!connection) return connection.failure();
  constexpr int keepHistory = 0;
  const ipp_status_t status =
      cupsCancelJob2(connection.value()->http(), queue.toUtf8().constData(), jobId, keepHistory);
  if (status <= IPP_STATUS_OK_CONFLICTING) return {};
  return connection.value()->lastFailure(QStringLiteral("%1-%2").arg(queue).arg(jobId));
}

QString requestIdLine(const JobRequest &request, const JobOutcome &outcome) {
  const auto files = effectiveFiles(request);
  const qsizetype named = files.size() - files.count(standardInput());
  return QStringLiteral("request id is %1-%2 (%3 file(s))")
      .arg(outcome.queue)
      .arg(outcome.jobId)
      .arg(named);
}

}  // namespace orvek
