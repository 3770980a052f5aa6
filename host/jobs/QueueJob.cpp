// SPDX-License-Identifier: Apache-2.0
// Finds the queue, has the job sent, and cancels what did not go through.

#include "host/jobs/QueueJob.h"

#include <algorithm>
#include <future>

#include "host/jobs/BookletDriver.h"
#include "host/jobs/Document.h"
#include "host/jobs/DocumentInfo.h"
#include "host/jobs/DocumentReader.h"
#include "host/jobs/FinishedSheets.h"
#include "host/jobs/JobState.h"
#include "host/jobs/QueueUpload.h"
#include "host/jobs/ServerDriver.h"
#include "host/printers/CupsOptions.h"
#include "host/printers/PrinterList.h"
#include "host/printers/QueuePPD.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

constexpr const char *stateReasons = "printer-state-reasons";

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

// What is sent as it is, or as what somebody said it is, is for the printer to judge.
Status checkedContents(const JobRequest &request, const JobControl &control) {
  const QMap<QString, QString> options = effectiveOptions(request);
  for (const QStringView sentAsIs : {u"raw", u"document-format"}) {
    if (valueNamed(options, sentAsIs)) return {};
  }
  return checkContents(effectiveFiles(request), options, control.cancelled);
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
QString descriptionOf(ServerTalk &talk, const Queue &queue) {
  const auto path = QueuePPD().fetch(talk, queue.name);
  return path ? path.value() : QString();
}

QString destinationOf(const JobRequest &request) {
  return request.instance.isEmpty() ? request.queue : request.queue + u'/' + request.instance;
}

/// A queue that was found, and the connection to its server.
struct Target {
  std::unique_ptr<ServerTalk> talk;
  Queue queue;
};

Result<Target> findTarget(const JobRequest &request, const JobControl &control) {
  auto talk = ServerTalk::open(accessOf(request, &control.cancelled));
  if (!talk) return control.cancelled ? jobCancelled() : talk.failure();
  const auto queue = findPrinter(*talk.value(), destinationOf(request));
  if (!queue) return control.cancelled ? jobCancelled() : queue.failure();
  return Target{talk.take(), queue.value()};
}

QCborMap cancelFields(const QString &queue, int jobId) {
  return {{QLatin1String("queue"), fieldOf(queue)}, {QLatin1String("job"), jobId}};
}

void cancelQuietly(const JobRequest &request, const QString &queue, int jobId) {
  ServerAccess quietly = accessOf(request, nullptr);
  if (quietly.passwords) quietly.passwords = quietly.passwords->withoutAsking();
  (void)cancelJob(quietly, queue, jobId);
}

Result<JobOutcome> send(Target &target, const JobRequest &request, const CupsOptions &options,
                        const QByteArray &beginOfInput, JobControl &control) {
  QueueUpload upload(*target.talk, control, beginOfInput);
  const auto sent = upload.send(target.queue, request, options.all());
  if (!sent && upload.jobId() > 0) {
    // That connection may be in the middle of a document, and nobody is to wait for another one.
    ServerTalk::leave(accessOf(request, nullptr), target.talk->serverName(), ServerTask::Cancel,
                      cancelFields(target.queue.name, upload.jobId()));
  }
  return sent;
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
  auto outcome = job.mayMakeSheets ? sendSheets(job, driver, beginOfInput, control)
                                   : Result<JobOutcome>(JobOutcome{0, queue, 0, 0, driver, true});
  if (outcome) outcome.value().lacksBanners = losesBanners(job.options, driver);
  return outcome;
}

QueueState stateOf(const Queue &queue) {
  return {queue.options.value(QLatin1String(stateReasons)), queue.stateMessage};
}

ServerDriver driverOf(const Target &target, JobRequest *job) {
  const QueueState state = stateOf(target.queue);
  if (!dependsOnServerDriver(job->options, state)) return ServerDriver::Works;
  job->ppdFile = descriptionOf(*target.talk, target.queue);
  return serverDriverFor(job->options, state, job->ppdFile);
}

/// The same before anything was sent: where the state says nothing, the queue's last job may.
ServerDriver driverFor(const Target &target, JobRequest *job) {
  const ServerDriver driver = driverOf(target, job);
  const bool mayTell = driver == ServerDriver::Works &&
                       mayHaveForgotten(job->options, stateOf(target.queue), job->ppdFile);
  if (!mayTell || !hasMarkedJob(*target.talk, target.queue.name, finishedSheetsMark)) return driver;
  const QString ppdFile = descriptionOf(*target.talk, target.queue);
  if (driverNamedIn(ppdFile) != NamedDriver::Ours) return driver;
  job->ppdFile = ppdFile;
  return ServerDriver::StopsEveryJob;
}

bool isStoppedForDriver(const Target &target, const JobRequest &job, int jobId) {
  if (job.ppdFile.isNull() || driverNamedIn(job.ppdFile) != NamedDriver::Ours) return false;
  return isStoppedByServer(*target.talk, jobId);
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
  // The server takes its time, in which documents can be looked at.
  auto looking = std::async(std::launch::async, [&] { return checkedContents(request, control); });
  auto target = findTarget(request, control);
  if (!target) return target.failure();
  if (const Status checked = looking.get(); !checked) return checked.failure();

  CupsOptions options(effectiveOptions(request));
  options.addMissing(savedOptions(target.value().queue, request));
  JobRequest job = request;
  job.options = options.all();
  const ServerDriver driver = driverFor(target.value(), &job);
  if (driver != ServerDriver::Works) {
    return goAround(driver, job, target.value().queue.name, begin.value(), control);
  }
  const auto sent = send(target.value(), request, options, begin.value(), control);
  if (!sent || !isStoppedForDriver(target.value(), job, sent.value().jobId)) return sent;
  return replaceStopped(sent.value(), job, control);
}

void askAheadForJob(const ServerAccess &access, const QString &queue, const QString &queuePPD) {
  if (queuePPD.isNull() || driverNamedIn(queuePPD) != NamedDriver::Ours) return;
  auto talk = ServerTalk::open(access);
  if (!talk) return;
  askAheadForMarkedJob(*talk.value(), queue, finishedSheetsMark);
  ServerTalk::close(talk.take());
}

Status cancelJob(const ServerAccess &access, const QString &queue, int jobId) {
  auto talk = ServerTalk::open(access);
  if (!talk) return talk.failure();
  const auto cancelled = talk.value()->ask(ServerTask::Cancel, cancelFields(queue, jobId));
  return cancelled ? Status() : cancelled.failure();
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
