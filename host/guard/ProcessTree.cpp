// SPDX-License-Identifier: Apache-2.0
// Looks for descendants in /proc by their parents: filters lead groups of their own, and may leave
// their session. Allocates nothing by itself, so that no C++ library has to be loaded.

#include "host/guard/ProcessTree.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace orvek::guard {
namespace {

constexpr int pauseMilliseconds = 10;
// Again and again: a program that was just being started may have missed the last one.
constexpr int pausesBetweenSignals = 5;
constexpr int lastPatienceMilliseconds = 2000;
constexpr pid_t firstProcess = 1;

void pause() {
  const timespec time{0, pauseMilliseconds * 1000000L};
  ::nanosleep(&time, nullptr);
}

long milliseconds() {
  timespec now{};
  ::clock_gettime(CLOCK_MONOTONIC, &now);
  return now.tv_sec * 1000 + now.tv_nsec / 1000000;
}

/// 0 where there is no such process.
pid_t parentOf(pid_t process) {
  std::array<char, 32> path{};
  std::snprintf(path.data(), path.size(), "/proc/%d/stat", static_cast<int>(process));
  const int file = ::open(path.data(), O_RDONLY | O_CLOEXEC);
  if (file < 0) return 0;
  std::array<char, 512> text{};
  const ssize_t size = ::read(file, text.data(), text.size() - 1);
  ::close(file);
  // "PID (NAME) STATE PARENT ...": the name may hold anything.
  const char *afterName = size > 0 ? std::strrchr(text.data(), ')') : nullptr;
  constexpr std::size_t stateAndSpaces = 4;
  if (afterName == nullptr || std::strlen(afterName) <= stateAndSpaces) return 0;
  return static_cast<pid_t>(std::strtol(afterName + stateAndSpaces, nullptr, 10));
}

bool descendsFrom(pid_t process, pid_t ancestor) {
  while (process > firstProcess) {
    process = parentOf(process);
    if (process == ancestor) return true;
  }
  return false;
}

}  // namespace

void ProcessTree::adoptOrphans() {
  ::prctl(PR_SET_CHILD_SUBREAPER, 1);
}

bool ProcessTree::isAlive() {
  while (true) {
    int status = 0;
    const pid_t ended = ::waitpid(-1, &status, WNOHANG);
    if (ended <= 0) return ended == 0;
    if (ended != m_tool) continue;
    m_hasEnded = true;
    m_status = status;
  }
}

void ProcessTree::signalAll(int signal) const {
  // Also where there is no /proc to look into.
  if (!m_hasEnded) ::kill(-m_tool, signal);
  DIR *processes = ::opendir("/proc");
  if (processes == nullptr) return;
  const pid_t self = ::getpid();
  while (const dirent *entry = ::readdir(processes)) {
    const auto process = static_cast<pid_t>(std::strtol(entry->d_name, nullptr, 10));
    if (process > firstProcess && descendsFrom(process, self)) ::kill(process, signal);
  }
  ::closedir(processes);
}

void ProcessTree::end(int graceMilliseconds) {
  const long begin = milliseconds();
  for (int round = 0; isAlive(); ++round) {
    const long waited = milliseconds() - begin;
    if (waited > graceMilliseconds + lastPatienceMilliseconds) return;
    const int signal = waited < graceMilliseconds ? SIGTERM : SIGKILL;
    if (round % pausesBetweenSignals == 0) signalAll(signal);
    pause();
  }
}

}  // namespace orvek::guard
