// SPDX-License-Identifier: Apache-2.0
// The multicast query against a responder that behaves and one that does not.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <resolv.h>

#include <array>
#include <chrono>
#include <filesystem>

#include "Common/RendezvousUtilities.h"
#include "platform/system/Gestalt.h"
#include "tests/Common/support/OwnNetwork.h"
#include "tests/Common/support/Responder.h"

using namespace orvek::test;

namespace {

using Clock = std::chrono::steady_clock;
using Place = Responder::Place;

constexpr int classIN = 1;
constexpr const char *service = "Orvek._ipp._tcp.local.";

double secondsSince(Clock::time_point begin) {
  return std::chrono::duration<double>(Clock::now() - begin).count();
}

std::vector<Bytes> silence(const Bytes &, int) {
  return {};
}

std::vector<Bytes> properAnswer(const Bytes &query, int) {
  return {serviceReplyTo(query, name({"printer", "local"}))};
}

Bytes otherReply() {
  return join(header(1, 0), name({"other", "local"}), number16(typeSRV), number16(classIN));
}

std::ptrdiff_t openDescriptors() {
  return std::distance(std::filesystem::directory_iterator("/proc/self/fd"), {});
}

class MulticastQuery : public testing::Test {
 protected:
  void SetUp() override { NEEDS_OWN_NETWORK(); }
  void TearDown() override { orvek::clearGestaltForTesting(); }

  int ask(const char *queryName) {
    return mDNS_res_query(queryName, classIN, typeSRV, answer.data(),
                          static_cast<int>(answer.size()));
  }

  std::array<unsigned char, 1500> answer{};
};

TEST_F(MulticastQuery, GivesTheMatchingReplyAndItsLength) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  const int length = ask(service);
  ASSERT_EQ(responder.queries().size(), 1U);
  const Bytes expected = properAnswer(responder.queries()[0], 0)[0];
  EXPECT_EQ(Bytes(answer.begin(), answer.begin() + std::max(length, 0)), expected);
}

TEST_F(MulticastQuery, SendsOnePlainQuestion) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  ask(service);
  const Bytes query = responder.queries().at(0);
  EXPECT_EQ(Bytes(query.begin() + headerSize, query.end()), serviceQuestion());
  EXPECT_EQ(query[5], 1);
}

TEST_F(MulticastQuery, IsTakenForALastLabelOfLocalInAnyCase) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  for (const char *queryName : {"a.local", "a.local.", "a.LOCAL", "a.b.Local."}) {
    EXPECT_GT(ask(queryName), 0) << queryName;
  }
  EXPECT_EQ(responder.queries().size(), 4U);
}

TEST_F(MulticastQuery, LeavesOtherNamesToTheOrdinaryResolver) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  Responder nameServer(Place::OwnHostByName, [](const Bytes &query, int) {
    return std::vector<Bytes>{withIdentifierOf(query, serviceReplyTo(query, name({"t"})))};
  });
  resolveThrough(nameServer);
  for (const char *queryName : {"local", "local.", "a.example", "a.local.example.", "a.locals"}) {
    EXPECT_GT(ask(queryName), 0) << queryName;
  }
  EXPECT_EQ(nameServer.queries().size(), 5U);
  EXPECT_TRUE(responder.queries().empty());
}

TEST_F(MulticastQuery, LeavesAllNamesToTheResolverOfASystemFrom1023On) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  Responder nameServer(Place::OwnHostByName, silence);
  resolveThrough(nameServer);
  orvek::setGestaltForTesting(gestaltSystemVersion, 0x1023);
  EXPECT_EQ(ask(service), -1);
  EXPECT_TRUE(responder.queries().empty());
  EXPECT_FALSE(nameServer.queries().empty());
  orvek::setGestaltForTesting(gestaltSystemVersion, 0x1022);
  EXPECT_GT(ask(service), 0);
}

TEST_F(MulticastQuery, GivesUpAfterThreePassesWithATimeOut) {
  Responder responder(Place::PrinterByMulticast, silence);
  const auto begin = Clock::now();
  errno = 0;
  EXPECT_EQ(ask(service), -1);
  EXPECT_EQ(errno, ETIMEDOUT);
  EXPECT_EQ(responder.queries().size(), 3U);
  EXPECT_NEAR(secondsSince(begin), 3.0, 0.3);
}

TEST_F(MulticastQuery, TakesAReplyOfALaterPass) {
  Responder responder(Place::PrinterByMulticast, [](const Bytes &query, int number) {
    return number == 1 ? properAnswer(query, number) : std::vector<Bytes>{};
  });
  const auto begin = Clock::now();
  EXPECT_GT(ask(service), 0);
  EXPECT_NEAR(secondsSince(begin), 1.0, 0.3);
}

TEST_F(MulticastQuery, DropsRepliesToOtherQuestionsAndGarbage) {
  Responder responder(Place::PrinterByMulticast, [](const Bytes &query, int number) {
    return std::vector<Bytes>{otherReply(), Bytes{1, 2, 3}, Bytes(1400, 0xC0),
                              properAnswer(query, number)[0]};
  });
  const int length = ask(service);
  EXPECT_EQ(length, static_cast<int>(properAnswer(responder.queries().at(0), 0)[0].size()));
  EXPECT_EQ(responder.queries().size(), 1U);
}

TEST_F(MulticastQuery, TakesNoLongerForAStreamOfOtherReplies) {
  Responder responder(Place::PrinterByMulticast,
                      [&](const Bytes &, int) { return std::vector<Bytes>(2000, otherReply()); });
  const auto begin = Clock::now();
  EXPECT_EQ(ask(service), -1);
  EXPECT_LT(secondsSince(begin), 3.4);
}

TEST_F(MulticastQuery, CutsAReplyToTheAnswersSize) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  EXPECT_EQ(mDNS_res_query(service, classIN, typeSRV, answer.data(), 45), 45);
}

TEST_F(MulticastQuery, ReportsNoMoreThanTheAnswerHoldsOfALongerReplyByConnection) {
  Responder nameServer(Place::OwnHostByName, [](const Bytes &query, int) {
    Bytes reply = withIdentifierOf(query, serviceReplyTo(query, name({"t"})));
    reply.resize(1870);
    return std::vector<Bytes>{reply};
  });
  resolveThrough(nameServer);
  EXPECT_EQ(ask("a._ipp._tcp.local.example"), static_cast<int>(answer.size()));
  EXPECT_EQ(nameServer.queries().size(), 2U);
  std::array<unsigned char, 1870> large{};
  EXPECT_EQ(mDNS_res_query("a.example", classIN, typeSRV, large.data(), 1870), 1870);
  EXPECT_EQ(mDNS_res_query("a.example", classIN, typeSRV, large.data(), 1869), 1869);
}

TEST_F(MulticastQuery, LeavesNoDescriptorBehind) {
  Responder responder(Place::PrinterByMulticast, properAnswer);
  ask(service);
  const auto before = openDescriptors();
  for (int i = 0; i < 5; ++i) ask(service);
  EXPECT_EQ(openDescriptors(), before);
}

TEST_F(MulticastQuery, RefusesNamesThatMakeNoQuestion) {
  const std::string label(64, 'a');
  EXPECT_EQ(ask((label + ".local").c_str()), -1);
  EXPECT_EQ(ask("..local"), -1);
}

TEST_F(MulticastQuery, RefusesAbsentArguments) {
  EXPECT_EQ(mDNS_res_query(nullptr, classIN, typeSRV, answer.data(), 100), -1);
  EXPECT_EQ(mDNS_res_query(service, classIN, typeSRV, nullptr, 100), -1);
  EXPECT_EQ(mDNS_res_query(service, classIN, typeSRV, answer.data(), 0), -1);
  EXPECT_EQ(errno, EINVAL);
}

TEST(ResolveToIP, GivesTheAddressOfAHostThatIsKnown) {
  EXPECT_EQ(ResolveToIP(QStringLiteral("localhost")), QStringLiteral("127.0.0.1"));
  EXPECT_EQ(ResolveToIP(QStringLiteral("10.1.2.3")), QStringLiteral("10.1.2.3"));
}

TEST(ResolveToIP, GivesTheNameBackWhereItDoesNotResolve) {
  NEEDS_OWN_NETWORK();
  for (const char *host : {"nosuch.invalid", "", "\xE3\x83\x97.invalid"}) {
    EXPECT_EQ(ResolveToIP(QString::fromUtf8(host)), QString::fromUtf8(host));
  }
  EXPECT_TRUE(ResolveToIP(QString()).isNull());
}

}  // namespace
