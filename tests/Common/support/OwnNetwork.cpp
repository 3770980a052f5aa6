// SPDX-License-Identifier: Apache-2.0
// Makes the two hosts: as root at once, for others inside a user namespace.

#include "tests/Common/support/OwnNetwork.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>

namespace orvek::test {
namespace {

std::string reason;
int printerNetwork = -1;

bool fail(const std::string &what) {
  reason = "two network namespaces are needed (" + what + ": " + std::strerror(errno) + ")";
  return false;
}

bool write(const char *path, const std::string &text) {
  std::ofstream file(path);
  file << text;
  file.close();
  return file.good();
}

bool enterNamespaces() {
  const uid_t user = getuid();
  const gid_t group = getgid();
  const int flags = CLONE_NEWNET | CLONE_NEWNS | CLONE_NEWPID;
  if (user == 0) return unshare(flags) == 0 || fail("unshare");
  if (unshare(flags | CLONE_NEWUSER) != 0) return fail("unshare");
  return (write("/proc/self/setgroups", "deny") &&
          write("/proc/self/uid_map", "0 " + std::to_string(user) + " 1") &&
          write("/proc/self/gid_map", "0 " + std::to_string(group) + " 1")) ||
         fail("user map");
}

/// Process numbers count from 1 in here, so that an echo identifier always holds one.
int runInAChild(const std::function<int()> &tests) {
  const pid_t child = fork();
  if (child == 0) {
    const int result = tests();
    std::fflush(nullptr);
    _exit(result);
  }
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

bool shell(const std::string &command) {
  return std::system(command.c_str()) == 0 || fail(command);
}

bool layCable() {
  const int own = open("/proc/self/ns/net", O_RDONLY);
  if (own < 0 || unshare(CLONE_NEWNET) != 0) return fail("unshare");
  printerNetwork = open("/proc/self/ns/net", O_RDONLY);
  if (printerNetwork < 0 || setns(own, CLONE_NEWNET) != 0) return fail("setns");
  const std::string printer = "/proc/self/fd/" + std::to_string(printerNetwork);
  const std::string onPrinter = "nsenter --net=" + printer + " ip ";
  return shell("ip link add ovk0 type veth peer name ovk1 netns " + printer +
               " && ip addr add 10.99.0.2/24 dev ovk0 && ip link set ovk0 up") &&
         shell(onPrinter + "link set lo up && " + onPrinter + "addr add 10.99.0.1/24 dev ovk1 && " +
               onPrinter + "link set ovk1 up");
}

/// Files that a daemon on the printer writes must not land in the machine's own folders.
bool prepareSystem() {
  if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0) return fail("mount /");
  if (mount("tmpfs", "/run", "tmpfs", 0, nullptr) != 0) return fail("mount /run");
  // The old one shows other process numbers, which confuses leak checkers; where it has to stay,
  // nothing else needs the new one.
  mount("proc", "/proc", "proc", 0, nullptr);
  const std::string group = std::to_string(getgid());
  return write("/proc/sys/net/ipv4/ping_group_range", group + " " + group) ||
         fail("net.ipv4.ping_group_range");
}

}  // namespace

int OwnNetwork::run(const std::function<int()> &tests) {
  if (!enterNamespaces()) return tests();
  const int result = runInAChild([&] {
    // Not as the namespace's first process: that one ignores most signals.
    return runInAChild([&] {
      // First of all: tests that need no second host run on this loopback, whatever else fails.
      if (shell("ip link set lo up") && prepareSystem()) layCable();
      const int own = tests();
      std::exit(own);
      return own;
    });
  });
  // This process has one foot in each namespace; nothing of it is worth checking at its end.
  _exit(result);
}

const std::string &OwnNetwork::whyNot() {
  return reason;
}

bool OwnNetwork::moveThreadToPrinter() {
  return setns(printerNetwork, CLONE_NEWNET) == 0;
}

int OwnNetwork::startOnPrinter(const std::string &command) {
  const pid_t child = fork();
  if (child != 0) return child;
  setpgid(0, 0);
  if (setns(printerNetwork, CLONE_NEWNET) == 0) {
    execl("/bin/sh", "sh", "-c", command.c_str(), static_cast<char *>(nullptr));
  }
  _exit(127);
}

}  // namespace orvek::test
