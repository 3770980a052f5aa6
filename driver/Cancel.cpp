// SPDX-License-Identifier: Apache-2.0
// The signal handler and the little that it may touch.

#include "driver/Cancel.h"

#include <unistd.h>

#include <array>
#include <atomic>
#include <csignal>

namespace orvek::driver {
namespace {

constexpr std::size_t mostFilters = 8;

// A handler may only use what is never half-written.
std::array<std::atomic<pid_t>, mostFilters> runningFilters{};
std::atomic<const char *> fileToRemove{nullptr};
std::atomic<bool> cancelled{false};

static_assert(std::atomic<pid_t>::is_always_lock_free);
static_assert(std::atomic<const char *>::is_always_lock_free);
static_assert(std::atomic<bool>::is_always_lock_free);

bool endRunningFilters() {
  bool areThere = false;
  for (const auto &filter : runningFilters) {
    if (const pid_t process = filter; process > 0) {
      areThere = true;
      ::kill(-process, SIGTERM);
    }
  }
  return areThere;
}

void cancel(int) {
  cancelled = true;
  if (endRunningFilters()) return;
  if (const char *path = fileToRemove) ::unlink(path);
  ::_exit(1);
}

void exchange(pid_t from, pid_t to) {
  for (auto &filter : runningFilters) {
    pid_t expected = from;
    if (filter.compare_exchange_strong(expected, to)) return;
  }
}

}  // namespace

void watchForCancel() {
  struct sigaction action = {};
  action.sa_handler = cancel;
  // Without SA_RESTART: a wait for filters has to notice.
  sigemptyset(&action.sa_mask);
  for (const int signal : {SIGTERM, SIGINT, SIGHUP}) ::sigaction(signal, &action, nullptr);
  // Whoever no longer reads ends the job by way of an error, which leaves no file behind.
  std::signal(SIGPIPE, SIG_IGN);
}

bool isCancelled() {
  return cancelled;
}

void removeWhenCancelled(const char *path) {
  fileToRemove = path;
}

void addRunningFilter(pid_t process) {
  exchange(0, process);
}

void removeRunningFilter(pid_t process) {
  exchange(process, 0);
}

}  // namespace orvek::driver
