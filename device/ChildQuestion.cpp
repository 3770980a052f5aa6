// SPDX-License-Identifier: Apache-2.0
// The child hands its answer back through a pipe; its exit status says whether that is whole.

#include "device/ChildQuestion.h"

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>

namespace orvek::device {
namespace {

// Of all that the program says only one line is to be about this: the parent's.
void silenceStandardError() {
  const int nowhere = ::open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nowhere >= 0) ::dup2(nowhere, STDERR_FILENO);
}

bool writeAll(int descriptor, const QByteArray &bytes) {
  qsizetype done = 0;
  while (done < bytes.size()) {
    const auto left = static_cast<size_t>(bytes.size() - done);
    const ssize_t taken = ::write(descriptor, bytes.constData() + done, left);
    if (taken < 0 && errno != EINTR) return false;
    if (taken > 0) done += taken;
  }
  return true;
}

[[noreturn]] void answer(int pipe, pid_t parent, const std::function<QByteArray()> &question) {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  if (::getppid() != parent) ::_exit(1);
  ::prctl(PR_SET_DUMPABLE, 0);
  silenceStandardError();
  const bool isHandedOver = writeAll(pipe, question());
  std::fflush(stdout);
  ::_exit(isHandedOver ? 0 : 1);
}

QByteArray readAll(int descriptor) {
  QByteArray bytes;
  std::array<char, 4096> block;
  for (;;) {
    const ssize_t count = ::read(descriptor, block.data(), block.size());
    if (count == 0 || (count < 0 && errno != EINTR)) return bytes;
    if (count > 0) bytes.append(block.data(), count);
  }
}

bool endedWell(pid_t child) {
  int status = 0;
  while (::waitpid(child, &status, 0) < 0) {
    if (errno != EINTR) return false;
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

std::optional<QByteArray> askInChild(const std::function<QByteArray()> &question) {
  int ends[2];
  if (::pipe2(ends, O_CLOEXEC) != 0) return std::nullopt;
  // What is in the streams' buffers now must not be written twice.
  std::fflush(nullptr);
  const pid_t parent = ::getpid();
  const pid_t child = ::fork();
  if (child == 0) answer(ends[1], parent, question);
  ::close(ends[1]);
  const QByteArray bytes = readAll(ends[0]);
  ::close(ends[0]);
  if (child < 0 || !endedWell(child)) return std::nullopt;
  return bytes;
}

}  // namespace orvek::device
