// SPDX-License-Identifier: Apache-2.0
// Runs a job on a thread of its own, so that a window stays alive meanwhile.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <thread>

#include "host/jobs/InputSpool.h"
#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// One job at a time in the background; one that failed or was cancelled can be tried again, and
/// what came by standard input or a pipe is kept for that. Use it from the thread that owns it; its
/// signals come there. Destroying it cancels the job and waits for it, at most a few seconds.
class BackgroundJob : public QObject {
  Q_OBJECT

 public:
  /// What is run: printThroughFilters or submitToQueue.
  using Work = std::function<Result<JobOutcome>(const JobRequest &, JobControl &)>;

  explicit BackgroundJob(QObject *parent = nullptr);
  ~BackgroundJob() override;

  /// Starts; does nothing while a job runs. Where a document comes once only, or was replaced in
  /// files(), `work` is given a file in its place; what it says of that file is said of the
  /// document.
  void start(const JobRequest &request, Work work);

  /// Asks the job to end. `failed` follows, of the kind Cancelled; at once where possible.
  void cancel();

  bool isRunning() const { return m_running; }

  /// What its jobs have read, and will read: for whoever looks at a document that comes once before
  /// it is printed. Never null.
  std::shared_ptr<DocumentFiles> files() const { return m_files; }

 Q_SIGNALS:
  /// At most some twenty times a second.
  void progressed(const orvek::JobProgress &progress);
  void finished(const orvek::JobOutcome &outcome);
  void failed(const orvek::Failure &failure);

 private:
  Result<JobOutcome> run(const JobRequest &request, const Work &work, JobControl &control);
  void end(const Result<JobOutcome> &result);

  std::shared_ptr<JobControl> m_control;
  const std::shared_ptr<DocumentFiles> m_files = std::make_shared<DocumentFiles>();
  std::thread m_thread;
  bool m_running = false;
};

}  // namespace orvek
