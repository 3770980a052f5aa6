// SPDX-License-Identifier: Apache-2.0
// Starts the tool and waits for whichever end comes first.

#include "host/guard/ToolRun.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/prctl.h>
#include <sys/signalfd.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>

#include "host/guard/Folder.h"
#include "host/guard/ProcessTree.h"
#include "host/jobs/GuardCall.h"

namespace orvek::guard {
namespace {

constexpr int forEver = -1;

sigset_t watchedSignals() {
  sigset_t signals;
  ::sigemptyset(&signals);
  for (const int signal : {SIGCHLD, SIGTERM, SIGINT, SIGHUP}) ::sigaddset(&signals, signal);
  return signals;
}

bool hasProgramGone() {
  pollfd program{STDIN_FILENO, POLLIN, 0};
  return ::poll(&program, 1, 0) > 0;
}

void limitSelf(const ToolCall &call) {
  if (call.niceness != 0) ::setpriority(PRIO_PROCESS, 0, call.niceness);
  // An image of its memory would be a copy of the document that nobody looks for.
  const rlimit noCore{0, 0};
  ::setrlimit(RLIMIT_CORE, &noCore);
  if (call.memoryBytes == 0) return;
  const rlimit memory{call.memoryBytes, call.memoryBytes};
  ::setrlimit(RLIMIT_AS, &memory);
}

[[noreturn]] void become(const ToolCall &call, const sigset_t &signals) {
  // Should it be this process that is killed.
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
  ::setpgid(0, 0);
  const int nothing = ::open("/dev/null", O_RDONLY);
  if (nothing != STDIN_FILENO) {
    ::dup2(nothing, STDIN_FILENO);
    ::close(nothing);
  }
  ::sigprocmask(SIG_SETMASK, &signals, nullptr);
  limitSelf(call);
  ::execv(call.words[0], call.words);
  ::_exit(noTool);
}

/// Returns once the tool has ended, or its end is wanted.
void waitFor(ProcessTree &tree, int signals) {
  std::array<pollfd, 2> events{{{STDIN_FILENO, POLLIN, 0}, {signals, POLLIN, 0}}};
  while (true) {
    tree.isAlive();
    if (tree.hasToolEnded()) return;
    if (::poll(events.data(), events.size(), forEver) <= 0) continue;
    if (events[0].revents != 0) return;
    signalfd_siginfo signal{};
    const ssize_t size = ::read(signals, &signal, sizeof signal);
    if (size == sizeof signal && signal.ssi_signo != SIGCHLD) return;
  }
}

int endAs(int status) {
  if (!WIFSIGNALED(status)) return WEXITSTATUS(status);
  // The image of the memory would not be the tool's.
  ::prctl(PR_SET_DUMPABLE, 0);
  std::signal(WTERMSIG(status), SIG_DFL);
  sigset_t none;
  ::sigemptyset(&none);
  ::sigprocmask(SIG_SETMASK, &none, nullptr);
  ::raise(WTERMSIG(status));
  return noTool;
}

int statusOf(const ToolCall &call) {
  const sigset_t watched = watchedSignals();
  sigset_t before;
  ::sigprocmask(SIG_BLOCK, &watched, &before);
  const int signals = ::signalfd(-1, &watched, SFD_CLOEXEC);
  ProcessTree::adoptOrphans();
  const OwnFolder folder;
  const pid_t tool = hasProgramGone() ? -1 : ::fork();
  if (tool < 0) return W_EXITCODE(noTool, 0);
  if (tool == 0) become(call, before);
  ::setpgid(tool, tool);
  ProcessTree tree(tool);
  waitFor(tree, signals);
  tree.end(call.graceMilliseconds);
  return tree.toolStatus();
}

}  // namespace

int runTool(const ToolCall &call) {
  return endAs(statusOf(call));
}

}  // namespace orvek::guard
