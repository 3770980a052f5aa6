// SPDX-License-Identifier: Apache-2.0
// Asks a server, or anything else that may take its time, without keeping a window waiting.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <atomic>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace orvek {

/// One piece of work that counts at a time, each on a thread of its own. Destroying it cancels the
/// work and waits for it, which takes as long as the work needs to notice. Use it from the thread
/// of its owner only. Owns its threads. What fails is for the work itself to say, in its result.
class BackgroundTask {
 public:
  using Cancelled = std::atomic<bool>;

  BackgroundTask() = default;
  ~BackgroundTask() {
    cancel();
    for (Run &run : m_runs) run.thread.join();
  }
  BackgroundTask(const BackgroundTask &) = delete;
  BackgroundTask &operator=(const BackgroundTask &) = delete;

  /// Runs `work(const Cancelled &)` on the thread, then `done(result)` in `context`'s event loop;
  /// not where the task was cancelled meanwhile. `context` has to outlive the task: be its owner.
  /// Earlier work is cancelled, but not waited for.
  template <typename Work, typename Done>
  void start(QObject *context, Work work, Done done) {
    cancel();
    forgetEnded();
    Run run;
    m_cancelled = run.cancelled;
    run.thread = std::thread([cancelled = run.cancelled, ended = run.ended, context,
                              work = std::move(work), done = std::move(done)]() mutable {
      auto result = work(*cancelled);
      QMetaObject::invokeMethod(
          context,
          [cancelled = std::move(cancelled), result = std::move(result),
           done = std::move(done)]() mutable {
            if (!*cancelled) done(std::move(result));
          },
          Qt::QueuedConnection);
      *ended = true;
    });
    m_runs.push_back(std::move(run));
  }

  /// Asks the work to end; its result is dropped.
  void cancel() {
    if (m_cancelled) *m_cancelled = true;
  }

 private:
  struct Run {
    std::shared_ptr<Cancelled> cancelled = std::make_shared<Cancelled>(false);
    std::shared_ptr<std::atomic<bool>> ended = std::make_shared<std::atomic<bool>>(false);
    std::thread thread;
  };

  void forgetEnded() {
    std::erase_if(m_runs, [](Run &run) {
      if (!*run.ended) return false;
      run.thread.join();
      return true;
    });
  }

  /// Of the last run.
  std::shared_ptr<Cancelled> m_cancelled;
  std::vector<Run> m_runs;
};

}  // namespace orvek
