// SPDX-License-Identifier: Apache-2.0
// Asks a server, or anything else that may take its time, without keeping a window waiting.
#pragma once

#include <QMetaObject>
#include <QObject>
#include <atomic>
#include <memory>
#include <thread>
#include <utility>

namespace orvek {

/// One piece of work at a time on a thread of its own. Destroying it cancels the work and waits for
/// it, which takes as long as the work needs to notice. Use it from the thread of its owner only.
class BackgroundTask {
 public:
  using Cancelled = std::atomic<bool>;

  BackgroundTask() = default;
  ~BackgroundTask() { cancelAndWait(); }
  BackgroundTask(const BackgroundTask &) = delete;
  BackgroundTask &operator=(const BackgroundTask &) = delete;

  /// Runs `work(const Cancelled &)` on the thread, then `done(result)` in `context`'s event loop;
  /// not where the task was cancelled meanwhile. `context` has to outlive the task: be its owner.
  /// Earlier work is cancelled first.
  template <typename Work, typename Done>
  void start(QObject *context, Work work, Done done) {
    cancelAndWait();
    m_cancelled = std::make_shared<Cancelled>(false);
    m_thread = std::thread([cancelled = m_cancelled, context, work = std::move(work),
                            done = std::move(done)]() mutable {
      auto result = work(*cancelled);
      QMetaObject::invokeMethod(
          context,
          [cancelled = std::move(cancelled), result = std::move(result),
           done = std::move(done)]() mutable {
            if (!*cancelled) done(std::move(result));
          },
          Qt::QueuedConnection);
    });
  }

  /// Asks the work to end; its result is dropped.
  void cancel() {
    if (m_cancelled) *m_cancelled = true;
  }

 private:
  void cancelAndWait() {
    cancel();
    if (m_thread.joinable()) m_thread.join();
  }

  std::shared_ptr<Cancelled> m_cancelled;
  std::thread m_thread;
};

}  // namespace orvek
