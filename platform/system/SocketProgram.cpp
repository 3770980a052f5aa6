// SPDX-License-Identifier: Apache-2.0
// posix_spawn(3) with a pair of sockets.

#include "platform/system/SocketProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <climits>
#include <csignal>
#include <utility>

namespace orvek {
namespace {

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
    ::fcntl(m_ends[0], F_SETFL, O_NONBLOCK);
  }
  ~SocketPair() {
    for (const int end : m_ends) {
      if (end >= 0) ::close(end);
    }
  }
  SocketPair(const SocketPair &) = delete;
  SocketPair &operator=(const SocketPair &) = delete;

  int theirs() const { return m_ends[1]; }
  int takeOurs() { return std::exchange(m_ends[0], -1); }

 private:
  std::array<int, 2> m_ends{-1, -1};
};

/// What the new process begins with; owned, and freed with its holder.
class Beginning {
 public:
  Beginning(int standardInput, bool isApart) {
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
    const int apart = isApart ? POSIX_SPAWN_SETSID : 0;
    ::posix_spawnattr_setflags(
        &m_attributes, static_cast<short>(POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK | apart));
  }
  ~Beginning() {
    ::posix_spawn_file_actions_destroy(&m_files);
    ::posix_spawnattr_destroy(&m_attributes);
  }
  Beginning(const Beginning &) = delete;
  Beginning &operator=(const Beginning &) = delete;

  int start(ProgramStart program, pid_t *process) const {
    std::vector<char *> words{program.path.data()};
    for (std::string &argument : program.arguments) words.push_back(argument.data());
    words.push_back(nullptr);
    return ::posix_spawn(process, words[0], &m_files, &m_attributes, words.data(), environ);
  }

 private:
  posix_spawn_file_actions_t m_files{};
  posix_spawnattr_t m_attributes{};
};

}  // namespace

int startWithSocket(const ProgramStart &start, SocketProgram *started) {
  SocketPair sockets;
  if (sockets.theirs() < 0) return errno;
  const Beginning beginning(sockets.theirs(), start.isApart);
  pid_t process = -1;
  const int error = beginning.start(start, &process);
  if (error == 0) *started = {process, sockets.takeOurs()};
  return error;
}

std::string besideThisProgram(const std::string &path) {
  std::array<char, PATH_MAX> program{};
  const ssize_t length = ::readlink("/proc/self/exe", program.data(), program.size());
  const std::string whole(program.data(), static_cast<std::size_t>(length > 0 ? length : 0));
  return whole.substr(0, whole.rfind('/') + 1) + path;
}

std::string helperProgram(const std::string &name) {
  return besideThisProgram("../" ORVEK_HELPER_FOLDER "/" + name);
}

}  // namespace orvek
