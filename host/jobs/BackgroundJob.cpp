// SPDX-License-Identifier: Apache-2.0
// The thread, and the way back from it: everything it has to tell is posted to the owner's event
// loop. A document that can be read only once is made readable again.

#include "host/jobs/BackgroundJob.h"

#include <QElapsedTimer>
#include <QMetaObject>

#include "host/jobs/Document.h"
#include "host/jobs/ReadJob.h"

namespace orvek {
namespace {

constexpr qint64 millisecondsBetweenReports = 50;

}  // namespace

BackgroundJob::BackgroundJob(QObject *parent) : QObject(parent) {}

BackgroundJob::~BackgroundJob() {
  cancel();
  if (m_thread.joinable()) m_thread.join();
}

void BackgroundJob::start(const JobRequest &request, Work work) {
  if (m_running) return;
  if (m_thread.joinable()) m_thread.join();
  m_running = true;
  m_control = std::make_shared<JobControl>();
  // Reports come per block of data; a window needs far fewer, and a queue of them would lag behind.
  auto sinceReport = std::make_shared<QElapsedTimer>();
  m_control->progress = [this, sinceReport](const JobProgress &now) {
    if (sinceReport->isValid() && sinceReport->elapsed() < millisecondsBetweenReports) return;
    sinceReport->start();
    QMetaObject::invokeMethod(
        this, [this, now] { Q_EMIT progressed(now); }, Qt::QueuedConnection);
  };
  m_thread = std::thread([this, request, control = m_control, work = std::move(work)] {
    const auto result = run(request, work, *control);
    QMetaObject::invokeMethod(
        this, [this, result] { end(result); }, Qt::QueuedConnection);
  });
}

Result<JobOutcome> BackgroundJob::run(const JobRequest &request, const Work &work,
                                      JobControl &control) {
  const QStringList documents = effectiveFiles(request);
  const auto files = m_files->of(documents, control);
  if (!files) return files.failure();
  if (files.value() == documents) return work(request, control);
  const ReadJob job{request, files.value()};
  auto outcome = work(job.onFiles(), control);
  if (outcome) return outcome;
  return job.named(outcome.failure());
}

void BackgroundJob::cancel() {
  if (m_control) m_control->cancelled = true;
}

void BackgroundJob::end(const Result<JobOutcome> &result) {
  m_running = false;
  if (result) {
    Q_EMIT finished(result.value());
  } else {
    Q_EMIT failed(result.failure());
  }
}

}  // namespace orvek
