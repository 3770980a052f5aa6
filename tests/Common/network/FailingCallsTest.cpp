// SPDX-License-Identifier: Apache-2.0
// Echo requests and multicast queries where a call of the system's fails.

#include "tests/Common/support/FailingCalls.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <string>

#include "Common/RendezvousUtilities.h"
#include "Common/SimplePing.h"
#include "tests/Common/support/OwnNetwork.h"
#include "tests/Common/support/Responder.h"

using namespace orvek::test;

namespace {

class FailingEcho : public testing::Test {
 protected:
  int open() { return CreateSocketForCommunicationWithHost(&address, &opened); }
  int send() { return CreateAndSendICMPPacket(&address, 1, pair[0]); }

  void SetUp() override {
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0, pair.data()), 0);
  }
  void TearDown() override {
    for (const int descriptor : {pair[0], pair[1], opened}) {
      if (descriptor >= 0) close(descriptor);
    }
  }

  sockaddr_in address{};
  std::array<int, 2> pair{-1, -1};
  int opened = -1;
};

TEST_F(FailingEcho, WithoutSocketIsAGeneralError) {
  const FailingCall failing("socket", EMFILE);
  EXPECT_EQ(open(), orvek::pingGeneralError);
  EXPECT_EQ(opened, -1);
}

TEST_F(FailingEcho, WithoutTheProtocolSaysSo) {
  const FailingCall failing("getprotobyname", 0);
  EXPECT_EQ(open(), orvek::pingNoProtocol);
}

TEST_F(FailingEcho, SaysWhyItsIdentifierIsRefused) {
  const FailingCall failing("bind", EADDRINUSE);
  EXPECT_EQ(open(), EADDRINUSE);
  EXPECT_EQ(opened, -1);
}

TEST_F(FailingEcho, WantsATimeLimitForReceiving) {
  // The options in their order: address reuse, size of the kernel's buffer, time limit.
  const FailingCall failing("setsockopt", ENOBUFS, 2);
  EXPECT_EQ(open(), ENOBUFS);
  EXPECT_EQ(opened, -1);
}

TEST_F(FailingEcho, GoesOnWithAnySizeOfTheKernelsBuffer) {
  NEEDS_OWN_NETWORK();
  const FailingCall failing("setsockopt", ENOBUFS, 1);
  EXPECT_EQ(open(), 0);
  EXPECT_GE(opened, 0);
}

TEST_F(FailingEcho, DoesNotSendWithoutATime) {
  const FailingCall failing("gettimeofday", EFAULT);
  EXPECT_EQ(send(), EFAULT);
}

TEST_F(FailingEcho, SaysWhyItWasNotSent) {
  const FailingCall failing("sendto", EHOSTUNREACH);
  EXPECT_EQ(send(), EHOSTUNREACH);
}

TEST_F(FailingEcho, ThatWasNotSentForNoReasonIsAGeneralError) {
  errno = EBUSY;  // of a call before
  const FailingCall failing("sendto", 0);
  EXPECT_EQ(send(), orvek::pingGeneralError);
}

TEST_F(FailingEcho, IsNotSentWhereNobodyWouldWait) {
  NEEDS_OWN_NETWORK();
  const FailingCall failing("sendto", EIO);
  EXPECT_EQ(SimplePing("127.0.0.1", 1, 0, 1), orvek::pingBadArgument);
}

TEST_F(FailingEcho, ThatWasNotSentIsTheResultOfTheWhole) {
  NEEDS_OWN_NETWORK();
  const FailingCall failing("sendto", EHOSTUNREACH);
  EXPECT_EQ(SimplePing("127.0.0.1", 3, 200, 1), EHOSTUNREACH);
}

TEST_F(FailingEcho, IsNotWaitedForWhereNothingCanBeRead) {
  constexpr timeval second{1, 0};
  ASSERT_EQ(setsockopt(pair[0], SOL_SOCKET, SO_RCVTIMEO, &second, sizeof second), 0);
  const auto begin = std::chrono::steady_clock::now();
  const FailingCall failing("recvfrom", EBADF);
  unsigned int replySeen = 9;
  EXPECT_EQ(WaitAndPrintICMPs(pair[0], 900, 0, &replySeen), -1);
  EXPECT_EQ(replySeen, 0U);
  EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::milliseconds(900));
}

class FailingQuery : public testing::Test {
 protected:
  void SetUp() override { NEEDS_OWN_NETWORK(); }

  int ask(const char *name = "a.local") {
    constexpr int typeSRVRecord = 33;
    return mDNS_res_query(name, 1, typeSRVRecord, answer.data(), static_cast<int>(answer.size()));
  }
  // Whether it fails, and at once: a pass alone would take a second.
  testing::AssertionResult failsAtOnce(const char *name = "a.local") {
    const auto begin = std::chrono::steady_clock::now();
    const int result = ask(name);
    const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
    if (result == -1 && took.count() < 0.9) return testing::AssertionSuccess();
    return testing::AssertionFailure() << result << " after " << took.count() << " s";
  }

  std::array<unsigned char, 1500> answer{};
};

TEST_F(FailingQuery, HasNoNameThatDNSCouldHold) {
  EXPECT_TRUE(failsAtOnce(std::string(70, 'a').append(".local").c_str()));
}

TEST_F(FailingQuery, HasNoSocket) {
  const FailingCall failing("socket", EMFILE);
  EXPECT_TRUE(failsAtOnce());
  EXPECT_EQ(errno, EMFILE);
}

TEST_F(FailingQuery, HasNoListOfInterfaces) {
  const FailingCall failing("getifaddrs", ENOMEM);
  EXPECT_TRUE(failsAtOnce());
  EXPECT_EQ(errno, ENOMEM);
}

TEST_F(FailingQuery, MayNotSetHowFarItGoes) {
  const FailingCall failing("setsockopt", EPERM, 0);
  EXPECT_TRUE(failsAtOnce());
  EXPECT_EQ(errno, EPERM);
}

TEST_F(FailingQuery, MayNotChooseItsInterface) {
  const FailingCall failing("setsockopt", EADDRNOTAVAIL, 1);
  EXPECT_TRUE(failsAtOnce());
  EXPECT_EQ(errno, EADDRNOTAVAIL);
}

TEST_F(FailingQuery, IsNotSent) {
  const FailingCall failing("sendto", ENETUNREACH);
  EXPECT_TRUE(failsAtOnce());
  EXPECT_EQ(errno, ENETUNREACH);
}

TEST_F(FailingQuery, CannotWait) {
  const FailingCall failing("poll", EINTR);
  EXPECT_TRUE(failsAtOnce());
}

TEST_F(FailingQuery, CannotRead) {
  const Responder responder(Responder::Place::PrinterByMulticast, [](const Bytes &query, int) {
    return std::vector<Bytes>{serviceReplyTo(query, name({"printer", "local"}))};
  });
  const FailingCall failing("recvfrom", ECONNREFUSED);
  EXPECT_TRUE(failsAtOnce());
}

}  // namespace
