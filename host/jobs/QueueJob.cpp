// SPDX-License-Identifier: Apache-2.0
// Creates the job, sends its documents, and cancels what did not go through.

#include "host/jobs/QueueJob.h"

#include <QFileInfo>

#include "host/jobs/CreateJob.h"
#include "host/jobs/CupsOptions.h"
#include "host/jobs/Document.h"
#include "host/jobs/DocumentReader.h"
#include "host/jobs/FilterChain.h"
#include "host/printers/CupsConnection.h"
#include "host/printers/PrinterList.h"

namespace orvek {
namespace {

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

QString destinationOf(const JobRequest &request) {
  return request.instance.isEmpty() ? request.queue : request.queue + u'/' + request.instance;
}

}  // namespace

Result<JobOutcome> submitToQueue(const JobRequest &request, JobControl &control) {
  const QStringList files = effectiveFiles(request);
  if (Status checked = checkAllDocuments(files); !checked) return checked.failure();
  auto begin = beginOfStandardInput(files, control);
  if (!begin) return begin.failure();
  auto connection = CupsConnection::open(accessOf(request, &control.cancelled));
  if (!connection) return connection.failure();
  const auto queue = findPrinter(*connection.value(), destinationOf(request));
  if (!queue) return control.cancelled ? jobCancelled() : queue.failure();

  CupsOptions options(effectiveOptions(request));
  options.addMissing(savedOptions(queue.value(), request));
  const QString name = queue.value().name;
  Submission job{control, *connection.value(), name.toUtf8(), options, begin.take(), 0, {}};
  if (Status created = createJob(job, queue.value(), request); !created) return created.failure();
  if (Status sent = sendAll(job, files); !sent) {
    // The connection may be in the middle of a document; only a new one can be used to cancel.
    connection.value().reset();
    ServerAccess quietly = accessOf(request, nullptr);
    if (quietly.passwords) quietly.passwords = quietly.passwords->withoutAsking();
    (void)cancelJob(quietly, name, job.jobId);
    return sent.failure();
  }
  return JobOutcome{job.jobId, name, job.progress.documents, job.progress.bytes};
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
