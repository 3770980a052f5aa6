// SPDX-License-Identifier: Apache-2.0
// Limits of the system, and a thread that watches the socket while libcups waits elsewhere.

#include "host/server/Confinement.h"

#include <poll.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>
#include <thread>

#include "platform/system/MemoryLimit.h"

namespace orvek {
namespace {

constexpr std::uint64_t mostMemory = std::uint64_t{512} << 20;
constexpr unsigned leftSeconds = 5;
constexpr int endedWithProgram = 1;

}  // namespace

void stayWithinBounds() {
  limitMemory(mostMemory);
  const rlimit none{0, 0};
  ::setrlimit(RLIMIT_CORE, &none);
}

void endWithProgram(int socket) {
  std::thread([socket] {
    pollfd other{socket, POLLRDHUP, 0};
    constexpr int forEver = -1;
    while (::poll(&other, 1, forEver) <= 0) {
    }
    ::_exit(endedWithProgram);
  }).detach();
}

void endWithThread() {
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
}

void endSoon() {
  ::alarm(leftSeconds);
}

}  // namespace orvek
