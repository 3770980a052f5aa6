// SPDX-License-Identifier: Apache-2.0
// The wait for echo replies across the turn of a second, on hand-made datagrams, and a request as
// it leaves: the kernel rewrites those it knows for echoes, so this one goes to a socket of another
// kind.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <cstring>
#include <thread>
#include <vector>

#include "Common/SimplePing.h"

namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;
using std::chrono::steady_clock;

std::vector<unsigned char> ownReply() {
  constexpr std::size_t identifierOffset = 24;
  std::vector<unsigned char> reply(68);
  reply[0] = 0x45;
  const auto identifier = static_cast<std::uint16_t>(getpid());
  std::memcpy(&reply[identifierOffset], &identifier, sizeof identifier);
  return reply;
}

struct Wait {
  int result = -2;
  /// Whether the datagrams left when they were to; a busy machine may be late.
  bool wasOnTime = false;
};

/// What a wait of `limit` milliseconds gives where something else comes shortly before a second
/// turns and 90 ms later, and the reply 60 ms after that.
Wait waitOnce(int limit) {
  std::array<int, 2> pair{-1, -1};
  if (socketpair(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0, pair.data()) != 0) return {};
  // As the socket of an echo has it: a wait that hears nothing ends.
  constexpr timeval longestSilence{1, 0};
  setsockopt(pair[0], SOL_SOCKET, SO_RCVTIMEO, &longestSilence, sizeof longestSilence);
  const auto turn = std::chrono::ceil<seconds>(steady_clock::now() + milliseconds(150));
  Wait wait;
  wait.wasOnTime = true;
  std::thread sender([&] {
    const auto reply = ownReply();
    const auto sendAt = [&](milliseconds offset, const void *bytes, std::size_t size) {
      std::this_thread::sleep_until(turn + offset);
      send(pair[1], bytes, size, 0);
      if (steady_clock::now() - turn - offset > milliseconds(8)) wait.wasOnTime = false;
    };
    sendAt(milliseconds(-60), "?", 1);
    sendAt(milliseconds(30), "?", 1);
    sendAt(milliseconds(90), reply.data(), reply.size());
  });
  unsigned int seen = 0;
  wait.result = WaitAndPrintICMPs(pair[0], limit, 0, &seen);
  sender.join();
  for (const int descriptor : pair) close(descriptor);
  return wait;
}

int waitAcrossASecond(int limit) {
  constexpr int tries = 8;
  Wait wait = waitOnce(limit);
  for (int i = 1; i < tries && !wait.wasOnTime; ++i) wait = waitOnce(limit);
  return wait.result;
}

class EchoWait : public testing::Test {
 protected:
  void SetUp() override {
    if (getpid() > 0xFFFF) GTEST_SKIP() << "a process number below 65536 is needed";
  }
};

TEST_F(EchoWait, GoesOnAcrossTheTurnOfASecond) {
  EXPECT_EQ(waitAcrossASecond(140), 0);
}

TEST_F(EchoWait, EndsAtItsLimitAcrossTheTurnOfASecond) {
  EXPECT_EQ(waitAcrossASecond(70), -1);
}

std::int64_t microsecondsNow() {
  timeval now{};
  gettimeofday(&now, nullptr);
  return std::int64_t{now.tv_sec} * 1000000 + now.tv_usec;
}

TEST(EchoRequest, CarriesIdentifierTimeAndAChecksumThatHolds) {
  const int listener = socket(AF_INET, SOCK_DGRAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  ASSERT_EQ(bind(listener, reinterpret_cast<sockaddr *>(&address), size), 0);
  ASSERT_EQ(getsockname(listener, reinterpret_cast<sockaddr *>(&address), &size), 0);

  const std::int64_t before = microsecondsNow();
  ASSERT_EQ(CreateAndSendICMPPacket(&address, 7, listener), 0);
  const std::int64_t after = microsecondsNow();
  std::array<unsigned char, 100> packet{};
  const ssize_t length = recv(listener, packet.data(), packet.size(), 0);
  close(listener);
  ASSERT_EQ(length, 48);

  EXPECT_EQ(in_cksum(packet.data(), 48), 0);
  std::uint16_t identifier = 0;
  std::memcpy(&identifier, &packet[4], sizeof identifier);
  EXPECT_EQ(identifier, static_cast<std::uint16_t>(getpid()));
  std::int64_t sentSeconds = 0;
  std::int32_t sentMicroseconds = 0;
  std::memcpy(&sentSeconds, &packet[32], sizeof sentSeconds);
  std::memcpy(&sentMicroseconds, &packet[40], sizeof sentMicroseconds);
  const std::int64_t sent = sentSeconds * 1000000 + sentMicroseconds;
  EXPECT_LE(before, sent);
  EXPECT_LE(sent, after);
}

}  // namespace
