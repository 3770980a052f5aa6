// SPDX-License-Identifier: Apache-2.0
// Starts the helper beside this program, and waits for its end.

#include "host/printers/HelperProcess.h"

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <csignal>
#include <mutex>
#include <optional>
#include <vector>

namespace orvek {
namespace {

using namespace std::chrono_literals;

constexpr auto farewell = 1s;
constexpr auto moment = 5ms;

QString helperPath() {
  return QDir::cleanPath(QFile::decodeName(helperProgram("orvek-print-server").c_str()));
}

/// Helpers that nobody waits for until the program ends.
class Finishing {
 public:
  ~Finishing() {
    const auto until = std::chrono::steady_clock::now() + farewell;
    for (HelperProcess &process : m_processes) {
      const auto left = until - std::chrono::steady_clock::now();
      process.hasEnded(std::chrono::duration_cast<std::chrono::milliseconds>(left));
    }
  }
  Finishing() = default;
  Finishing(const Finishing &) = delete;
  Finishing &operator=(const Finishing &) = delete;

  void add(HelperProcess process) {
    const std::lock_guard lock(m_mutex);
    std::vector<HelperProcess> running;
    for (HelperProcess &earlier : m_processes) {
      if (!earlier.hasEnded(0ms)) running.push_back(std::move(earlier));
    }
    running.push_back(std::move(process));
    m_processes.swap(running);
  }

 private:
  std::mutex m_mutex;
  std::vector<HelperProcess> m_processes;
};

/// Helpers that were killed, until the system has told of their end.
class Killed {
 public:
  void add(pid_t process) {
    const std::lock_guard lock(m_mutex);
    m_processes.push_back(process);
    std::erase_if(m_processes, [](pid_t one) { return ::waitpid(one, nullptr, WNOHANG) != 0; });
  }

 private:
  std::mutex m_mutex;
  std::vector<pid_t> m_processes;
};

// Helpers are destroyed until the very end of the program.
Killed &killed() {
  static auto &processes = *new Killed;
  return processes;
}

/// A helper that waits for its first question.
struct Prepared {
  std::mutex mutex;
  std::optional<HelperProcess> process;
};

Prepared &prepared() {
  static Prepared helper;
  return helper;
}

}  // namespace

Result<HelperProcess> HelperProcess::start() {
  {
    const std::lock_guard lock(prepared().mutex);
    if (auto ready = std::exchange(prepared().process, std::nullopt)) {
      if (!ready->hasEnded(0ms)) return std::move(*ready);
    }
  }
  const QString path = helperPath();
  SocketProgram started;
  const int error = startWithSocket(QFile::encodeName(path).toStdString(), &started);
  if (error != 0) return Failure{FailureKind::Io, path, Phrase::ofSystem(error)};
  return HelperProcess(started);
}

void HelperProcess::adopt(const SocketProgram &started) {
  if (started.process < 0) return;
  const std::lock_guard lock(prepared().mutex);
  prepared().process.emplace(HelperProcess(started));
}

// Nobody waits for one that was killed: that takes as long as a small question.
HelperProcess::~HelperProcess() {
  kill();
  if (m_process > 0) killed().add(m_process);
  if (m_socket >= 0) ::close(m_socket);
}

void HelperProcess::kill() {
  if (m_process > 0) ::kill(m_process, SIGKILL);
}

bool HelperProcess::hasEnded(std::chrono::milliseconds patience) {
  const auto until = std::chrono::steady_clock::now() + patience;
  while (m_process > 0 && ::waitpid(m_process, nullptr, WNOHANG) == 0) {
    if (std::chrono::steady_clock::now() >= until) return false;
    ::poll(nullptr, 0, static_cast<int>(moment.count()));
  }
  m_process = -1;
  return true;
}

void HelperProcess::letFinish(HelperProcess process) {
  static Finishing finishing;
  finishing.add(std::move(process));
}

}  // namespace orvek
