// SPDX-License-Identifier: Apache-2.0
// Echo requests to the kernel on the other host, to a scripted responder there, and hand-made
// datagrams.

#include "Common/SimplePing.h"

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <fstream>
#include <functional>
#include <thread>

#include "Common/Utilities.h"
#include "platform/network/EchoSocket.h"
#include "tests/Common/support/OwnNetwork.h"
#include "tests/Common/support/Replies.h"

using namespace orvek::test;

namespace {

using Clock = std::chrono::steady_clock;

constexpr int ipHeader = 20;
constexpr std::uint8_t echoReply = 0;

double secondsSince(Clock::time_point begin) {
  return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// Answers echo requests on the printer in the kernel's place. `answer(number, request)` changes
/// the request (which begins with its ICMP header) into the reply; false for none.
class EchoResponder {
 public:
  using Answer = std::function<bool(int number, Bytes *icmp)>;

  explicit EchoResponder(Answer answer) : m_answer(std::move(answer)) {
    std::thread([this] {
      OwnNetwork::moveThreadToPrinter();
      setKernelAnswers(false);
      m_socket = socket(AF_INET, SOCK_RAW | SOCK_CLOEXEC, IPPROTO_ICMP);
    }).join();
    m_thread = std::thread([this] { serve(); });
  }
  ~EchoResponder() {
    m_stop = true;
    m_thread.join();
    close(m_socket);
    std::thread([] {
      OwnNetwork::moveThreadToPrinter();
      setKernelAnswers(true);
    }).join();
  }

  int requests() const { return m_requests; }
  Bytes lastRequest() const { return m_lastRequest; }

 private:
  static void setKernelAnswers(bool answers) {
    std::ofstream("/proc/sys/net/ipv4/icmp_echo_ignore_all") << (answers ? "0" : "1");
  }

  void serve() {
    while (!m_stop) {
      pollfd waiting{m_socket, POLLIN, 0};
      if (poll(&waiting, 1, 10) <= 0) continue;
      Bytes datagram(2048);
      sockaddr_in from{};
      socklen_t size = sizeof from;
      const ssize_t received = recvfrom(m_socket, datagram.data(), datagram.size(), 0,
                                        reinterpret_cast<sockaddr *>(&from), &size);
      if (received < ipHeader + 8) continue;
      Bytes icmp(datagram.begin() + ipHeader, datagram.begin() + received);
      m_lastRequest = icmp;
      icmp[0] = echoReply;
      icmp[2] = icmp[3] = 0;
      if (!m_answer(m_requests++, &icmp)) continue;
      const unsigned short checksum = in_cksum(icmp.data(), static_cast<int>(icmp.size()));
      std::memcpy(&icmp[2], &checksum, 2);
      sendto(m_socket, icmp.data(), icmp.size(), 0, reinterpret_cast<sockaddr *>(&from), size);
    }
  }

  Answer m_answer;
  int m_socket = -1;
  std::atomic<bool> m_stop = false;
  std::atomic<int> m_requests = 0;
  Bytes m_lastRequest;
  std::thread m_thread;
};

TEST(SimplePing, ReachesAHostThatAnswers) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(SimplePing(OwnNetwork::printerAddress, 1, 200, 1), 0);
  EXPECT_EQ(SimplePing(OwnNetwork::printerAddress, 3, 200, 1), 0);
}

TEST(SimplePing, RefusesAbsentAndUselessArguments) {
  EXPECT_EQ(SimplePing(nullptr, 1, 200, 1), 22);
  EXPECT_EQ(SimplePing("127.0.0.1", 0, 200, 1), 22);
  EXPECT_EQ(SimplePing("127.0.0.1", 1, 0, 1), 22);
}

TEST(SimplePing, DoesNotKnowAHostThatNobodyKnows) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(SimplePing("nosuch.invalid", 1, 200, 1), 65);
}

TEST(SimplePing, GivesUpOnASilentHostWithinASecond) {
  NEEDS_OWN_NETWORK();
  EchoResponder responder([](int, Bytes *) { return false; });
  const auto begin = Clock::now();
  EXPECT_EQ(SimplePing(OwnNetwork::printerAddress, 1, 200, 1), -1);
  EXPECT_NEAR(secondsSince(begin), 1.0, 0.2);
}

TEST(SimplePing, SendsOnlyTwoOfThreeRequestsWhereTheSecondStaysUnanswered) {
  NEEDS_OWN_NETWORK();
  EchoResponder responder([](int number, Bytes *) { return number != 1; });
  EXPECT_EQ(SimplePing(OwnNetwork::printerAddress, 3, 200, 1), -1);
  EXPECT_EQ(responder.requests(), 2);
}

TEST(SimplePing, TakesNoShorterDatagramForAReply) {
  NEEDS_OWN_NETWORK();
  EchoResponder responder([](int, Bytes *icmp) {
    icmp->resize(orvek::echoPacketSize - 1);
    return true;
  });
  EXPECT_EQ(SimplePing(OwnNetwork::printerAddress, 1, 200, 1), -1);
}

TEST(SimplePing, SendsThePacketAsItIsLaidOut) {
  NEEDS_OWN_NETWORK();
  EchoResponder responder([](int number, Bytes *) { return number == 0; });
  SimplePing(OwnNetwork::printerAddress, 2, 200, 1);
  const Bytes icmp = responder.lastRequest();
  ASSERT_EQ(icmp.size(), 48U);
  EXPECT_EQ(icmp[0], 8);
  EXPECT_EQ(icmp[1], 0);
  EXPECT_EQ(in_cksum(icmp.data(), 48), 0);
  std::uint16_t identifier = 0;
  std::uint16_t sequence = 0;
  std::memcpy(&identifier, &icmp[4], 2);
  std::memcpy(&sequence, &icmp[6], 2);
  EXPECT_EQ(identifier, static_cast<std::uint16_t>(getpid()));
  EXPECT_EQ(sequence, 1);
  EXPECT_EQ(Bytes(icmp.begin() + 8, icmp.begin() + 32), Bytes(24, 0));
  std::int64_t seconds = 0;
  std::memcpy(&seconds, &icmp[32], 8);
  EXPECT_NEAR(static_cast<double>(seconds), static_cast<double>(time(nullptr)), 5);
  EXPECT_EQ(Bytes(icmp.begin() + 44, icmp.end()), Bytes(4, 0));
}

TEST(EchoSocket, SaysThatItsIdentifierIsTaken) {
  NEEDS_OWN_NETWORK();
  int first = -1;
  ASSERT_EQ(CreateSocketForCommunicationWithHost(nullptr, &first), 0);
  int second = -1;
  EXPECT_EQ(CreateSocketForCommunicationWithHost(nullptr, &second), EADDRINUSE);
  EXPECT_EQ(second, -1);
  close(first);
  EXPECT_EQ(CreateSocketForCommunicationWithHost(nullptr, &second), 0);
  close(second);
}

TEST(EchoSocket, IsRefusedWhereTheSystemAllowsTheGroupNone) {
  NEEDS_OWN_NETWORK();
  constexpr const char *setting = "/proc/sys/net/ipv4/ping_group_range";
  std::ofstream range(setting);
  range << "1 0";
  range.close();
  if (!range.good()) GTEST_SKIP() << "only root can leave out every group";
  int opened = -1;
  errno = 0;
  EXPECT_EQ(CreateSocketForCommunicationWithHost(nullptr, &opened), 1);
  EXPECT_EQ(errno, EACCES);
  EXPECT_EQ(SimplePing("127.0.0.1", 1, 200, 1), 1);
  std::ofstream(setting) << getgid() << ' ' << getgid();
}

TEST(HostAddress, OfADottedAddressIsNotLookedUp) {
  sockaddr_in address{};
  address.sin_port = 7;
  EXPECT_EQ(LookupHostAddress("10.1.2.3", &address), 0);
  EXPECT_EQ(address.sin_family, AF_INET);
  EXPECT_EQ(address.sin_addr.s_addr, inet_addr("10.1.2.3"));
  EXPECT_EQ(address.sin_port, 0);
}

TEST(HostAddress, OfTheBroadcastAddressIsNeverTaken) {
  sockaddr_in address{};
  EXPECT_EQ(LookupHostAddress("255.255.255.255", &address), 65);
}

TEST(HostAddress, OfAKnownNameIsItsFirstOne) {
  sockaddr_in address{};
  EXPECT_EQ(LookupHostAddress("localhost", &address), 0);
  EXPECT_EQ(address.sin_addr.s_addr, htonl(INADDR_LOOPBACK));
}

TEST(HostAddress, RefusesAbsence) {
  sockaddr_in address{};
  EXPECT_EQ(LookupHostAddress(nullptr, &address), 22);
  EXPECT_EQ(LookupHostAddress("localhost", nullptr), 22);
}

TEST(PrinterReachability, NeedsAURLWithAHost) {
  EXPECT_FALSE(PrinterIsReachable(QUrl()));
  EXPECT_FALSE(PrinterIsReachable(QUrl(QStringLiteral("file:///x"))));
}

TEST(PrinterReachability, IsWhatTheHostsEchoSays) {
  NEEDS_OWN_NETWORK();
  EXPECT_TRUE(PrinterIsReachable(QUrl(QStringLiteral("http://10.99.0.1/index.html"))));
  EXPECT_FALSE(PrinterIsReachable(QUrl(QStringLiteral("http://nosuch.invalid/"))));
}

/// The receiver on a pair of sockets: datagrams are written by hand, IPv4 header and all.
class Receiver : public testing::Test {
 protected:
  void SetUp() override {
    // The wait tells replies by the process's number.
    if (getpid() > 0xFFFF) GTEST_SKIP() << "a process number below 65536 is needed";
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_DGRAM, 0, sockets.data()), 0);
    const timeval timeout{1, 0};
    setsockopt(sockets[0], SOL_SOCKET, SO_RCVTIMEO, &timeout, sizeof timeout);
  }
  void TearDown() override {
    for (const int socket : sockets) close(socket);
  }

  static Bytes datagram(int headerWords, std::uint8_t type, int identifier, int icmpSize) {
    Bytes result(static_cast<std::size_t>(headerWords * 4 + icmpSize), 0);
    result[0] = static_cast<unsigned char>(0x40 | headerWords);
    unsigned char *icmp = &result[static_cast<std::size_t>(headerWords) * 4];
    icmp[0] = type;
    const auto own = static_cast<std::uint16_t>(identifier);
    std::memcpy(icmp + 4, &own, 2);
    return result;
  }

  void deliver(const Bytes &bytes) { send(sockets[1], bytes.data(), bytes.size(), 0); }

  int wait(unsigned int stop = 1, int limit = 200) {
    return WaitAndPrintICMPs(sockets[0], limit, stop, &seen);
  }

  std::array<int, 2> sockets{-1, -1};
  unsigned int seen = 9;
};

TEST_F(Receiver, SeesItsOwnReply) {
  deliver(datagram(5, echoReply, getpid(), 48));
  EXPECT_EQ(wait(), 0);
  EXPECT_EQ(seen, 1U);
}

TEST_F(Receiver, ReadsPastIPOptions) {
  deliver(datagram(7, echoReply, getpid(), 48));
  EXPECT_EQ(wait(), 0);
}

TEST_F(Receiver, TakesNoShortDatagramForAReply) {
  for (const Bytes &bytes : {datagram(5, echoReply, getpid(), 47), Bytes{0x45}, Bytes{}}) {
    deliver(bytes);
    EXPECT_EQ(wait(), -1);
    EXPECT_EQ(seen, 0U);
  }
}

TEST_F(Receiver, TakesNoOtherTypeOrIdentifierForAReply) {
  deliver(datagram(5, 8, getpid(), 48));
  EXPECT_EQ(wait(), -1);
  deliver(datagram(5, echoReply, getpid() + 1, 48));
  EXPECT_EQ(wait(), -1);
}

TEST_F(Receiver, GoesOnPastOtherDatagramsWithoutTheStopFlag) {
  deliver(datagram(5, echoReply, getpid() + 1, 48));
  deliver(datagram(5, echoReply, getpid(), 48));
  EXPECT_EQ(wait(0), 0);
  EXPECT_EQ(seen, 1U);
}

TEST_F(Receiver, EndsALongerLimitAfterOneWholeSecond) {
  deliver(datagram(5, echoReply, getpid(), 48));
  const auto begin = Clock::now();
  EXPECT_EQ(wait(0, 1500), 0);
  EXPECT_NEAR(secondsSince(begin), 1.0, 0.2);
}

TEST_F(Receiver, EndsAtOnceOnABrokenSocket) {
  EXPECT_EQ(WaitAndPrintICMPs(-1, 200, 0, &seen), -1);
}

TEST_F(Receiver, RefusesAbsentFlagAndUselessLimit) {
  EXPECT_EQ(WaitAndPrintICMPs(sockets[0], 200, 1, nullptr), 22);
  EXPECT_EQ(wait(1, 0), 22);
}

}  // namespace
