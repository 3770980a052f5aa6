// SPDX-License-Identifier: Apache-2.0
// Runs a job on a thread of its own, so that a window stays alive meanwhile.
#pragma once

#include <QObject>
#include <functional>
#include <memory>
#include <thread>

#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// One job in the background. Its signals come on the thread that owns the object. Destroying it
/// cancels the job and waits for it, at most a few seconds.
class BackgroundJob : public QObject {
  Q_OBJECT

 public:
  /// What is run: printThroughFilters or submitToQueue.
  using Work = std::function<Result<JobOutcome>(const JobRequest &, JobControl &)>;

  explicit BackgroundJob(QObject *parent = nullptr);
  ~BackgroundJob() override;

  /// Starts; does nothing while a job runs.
  void start(const JobRequest &request, Work work);

  /// Asks the job to end. `failed` follows, with "cancelled"; at once where possible.
  void cancel();

  bool isRunning() const { return m_running; }

 Q_SIGNALS:
  /// At most some twenty times a second.
  void progressed(const orvek::JobProgress &progress);
  void finished(const orvek::JobOutcome &outcome);
  void failed(const orvek::Failure &failure);

 private:
  void end(const Result<JobOutcome> &result);

  std::shared_ptr<JobControl> m_control;
  std::thread m_thread;
  bool m_running = false;
};

}  // namespace orvek
