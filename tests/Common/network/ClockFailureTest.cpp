// SPDX-License-Identifier: Apache-2.0
// The wait for echo replies on a system whose clock fails: this program brings a clock that can.

#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <ctime>

#include "Common/SimplePing.h"

namespace {

constexpr int always = -1;

/// How often the calling thread may still read the clock, and what errno says from then on.
thread_local int readingsLeft = always;
thread_local int clockError = 0;

}  // namespace

extern "C" int clock_gettime(clockid_t clock, timespec *time) noexcept {
  if (clock == CLOCK_MONOTONIC && readingsLeft == 0) {
    errno = clockError;
    return -1;
  }
  if (clock == CLOCK_MONOTONIC && readingsLeft > 0) --readingsLeft;
  return static_cast<int>(syscall(SYS_clock_gettime, clock, time));
}

namespace {

class FailingClock : public testing::Test {
 protected:
  void SetUp() override {
    if (getpid() > 0xFFFF) GTEST_SKIP() << "a process number below 65536 is needed";
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_DGRAM, 0, sockets.data()), 0);
    const auto own = static_cast<std::uint16_t>(getpid());
    reply[0] = 0x45;
    std::memcpy(&reply[24], &own, sizeof own);
    send(sockets[1], reply.data(), reply.size(), 0);
  }
  void TearDown() override {
    for (const int socket : sockets) close(socket);
  }

  /// The wait for the reply that is there, on a clock that works `readings` times.
  int wait(int readings, int error) {
    clockError = error;
    readingsLeft = readings;
    const int result = WaitAndPrintICMPs(sockets[0], 200, 0, &seen);
    readingsLeft = always;
    return result;
  }

  std::array<int, 2> sockets{-1, -1};
  std::array<unsigned char, 68> reply{};
  unsigned int seen = 9;
};

TEST_F(FailingClock, GivesItsErrorWhereItFailsAtTheFirstReceive) {
  EXPECT_EQ(wait(0, EIO), EIO);
  EXPECT_EQ(seen, 0U);
}

TEST_F(FailingClock, GivesOneWhereThereIsNoErrorNumber) {
  EXPECT_EQ(wait(0, 0), 1);
}

TEST_F(FailingClock, GivesItsErrorWhereItFailsAtTheReply) {
  EXPECT_EQ(wait(1, EIO), EIO);
  EXPECT_EQ(seen, 1U);
}

TEST_F(FailingClock, EndsTheWaitWhereItFailsLater) {
  EXPECT_EQ(wait(2, EIO), 0);
  EXPECT_EQ(seen, 1U);
}

}  // namespace
