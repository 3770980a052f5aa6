// SPDX-License-Identifier: Apache-2.0
// Starts the helper beside this program, with a socket as its standard input and nothing else open.

#include "host/printers/HelperProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <csignal>
#include <mutex>
#include <optional>
#include <vector>

namespace orvek {
namespace {

using namespace std::chrono_literals;

/// From the program's folder: the same way in the build tree and where both are installed.
constexpr const char *placeOfHelper = "../" ORVEK_HELPER_FOLDER "/orvek-print-server";
constexpr auto farewell = 1s;
constexpr auto moment = 5ms;

QString helperPath() {
  const QString program = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
  return QDir::cleanPath(QFileInfo(program).dir().filePath(QLatin1String(placeOfHelper)));
}

/// Two ends of a socket, neither of them a standard stream.
class SocketPair {
 public:
  SocketPair() {
    std::array<int, 2> ends{-1, -1};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0) return;
    for (std::size_t i = 0; i < ends.size(); ++i) {
      m_ends[i] = ::fcntl(ends[i], F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
      ::close(ends[i]);
    }
    ::fcntl(ours(), F_SETFL, O_NONBLOCK);
  }
  ~SocketPair() {
    for (const int end : m_ends) {
      if (end >= 0) ::close(end);
    }
  }
  SocketPair(const SocketPair &) = delete;
  SocketPair &operator=(const SocketPair &) = delete;

  int ours() const { return m_ends[0]; }
  int theirs() const { return m_ends[1]; }
  int takeOurs() { return std::exchange(m_ends[0], -1); }

 private:
  std::array<int, 2> m_ends{-1, -1};
};

/// What the new process begins with; owned, and freed with its holder.
class Beginning {
 public:
  explicit Beginning(int standardInput) {
    ::posix_spawn_file_actions_init(&m_files);
    ::posix_spawn_file_actions_adddup2(&m_files, standardInput, STDIN_FILENO);
    ::posix_spawn_file_actions_addopen(&m_files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    // What a library complains of there would be a second line beside the failure.
    ::posix_spawn_file_actions_addopen(&m_files, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    ::posix_spawn_file_actions_addclosefrom_np(&m_files, STDERR_FILENO + 1);
    sigset_t all;
    sigset_t none;
    ::sigfillset(&all);
    ::sigemptyset(&none);
    ::posix_spawnattr_init(&m_attributes);
    ::posix_spawnattr_setsigdefault(&m_attributes, &all);
    ::posix_spawnattr_setsigmask(&m_attributes, &none);
    ::posix_spawnattr_setflags(&m_attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
  }
  ~Beginning() {
    ::posix_spawn_file_actions_destroy(&m_files);
    ::posix_spawnattr_destroy(&m_attributes);
  }
  Beginning(const Beginning &) = delete;
  Beginning &operator=(const Beginning &) = delete;

  int start(const QByteArray &path, pid_t *process) const {
    QByteArray name = path;
    std::array<char *, 2> arguments{name.data(), nullptr};
    return ::posix_spawn(process, path.constData(), &m_files, &m_attributes, arguments.data(),
                         environ);
  }

 private:
  posix_spawn_file_actions_t m_files{};
  posix_spawnattr_t m_attributes{};
};

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

/// Helpers that wait for their first question.
class Prepared {
 public:
  void add(HelperProcess process) {
    const std::lock_guard lock(m_mutex);
    m_processes.push_back(std::move(process));
  }

  std::optional<HelperProcess> take() {
    const std::lock_guard lock(m_mutex);
    while (!m_processes.empty()) {
      HelperProcess process = std::move(m_processes.back());
      m_processes.pop_back();
      if (!process.hasEnded(0ms)) return process;
    }
    return std::nullopt;
  }

 private:
  std::mutex m_mutex;
  std::vector<HelperProcess> m_processes;
};

Prepared &prepared() {
  static Prepared processes;
  return processes;
}

}  // namespace

Result<HelperProcess> HelperProcess::start() {
  if (auto ready = prepared().take()) return std::move(*ready);
  return startNew();
}

void HelperProcess::prepare() {
  // Whoever asks will hear why there is none.
  if (auto process = startNew()) prepared().add(process.take());
}

Result<HelperProcess> HelperProcess::startNew() {
  const QString path = helperPath();
  SocketPair sockets;
  if (sockets.theirs() < 0) return Failure{FailureKind::Io, path, Phrase::ofSystem(errno)};
  const Beginning beginning(sockets.theirs());
  pid_t process = -1;
  const int error = beginning.start(QFile::encodeName(path), &process);
  if (error != 0) return Failure{FailureKind::Io, path, Phrase::ofSystem(error)};
  return HelperProcess(process, sockets.takeOurs());
}

HelperProcess::~HelperProcess() {
  kill();
  if (m_process > 0) ::waitpid(m_process, nullptr, 0);
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
