// SPDX-License-Identifier: Apache-2.0
// Where a query goes, what it refuses, and replies that speak of a service without answering.

#include <arpa/inet.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <string>

#include "Common/RendezvousUtilities.h"
#include "Common/Utilities.h"
#include "tests/Common/support/OwnNetwork.h"
#include "tests/Common/support/Responder.h"

using namespace orvek::test;

namespace {

constexpr int classIN = 1;

TEST(MulticastQueryAddress, IsTheGroupsWhateverWasThereBefore) {
  std::memset(&mDNS_addr, 0x5A, sizeof mDNS_addr);
  mDNS_res_query(nullptr, classIN, typeSRV, nullptr, 0);
  EXPECT_EQ(mDNS_addr.sin_family, AF_INET);
  EXPECT_EQ(ntohs(mDNS_addr.sin_port), 5353);
  EXPECT_EQ(ntohl(mDNS_addr.sin_addr.s_addr), 0xE00000FBU);
  EXPECT_TRUE(std::all_of(std::begin(mDNS_addr.sin_zero), std::end(mDNS_addr.sin_zero),
                          [](unsigned char byte) { return byte == 0; }));
}

TEST(MulticastQueryArguments, AreRefusedOneByOne) {
  NEEDS_OWN_NETWORK();
  std::array<unsigned char, 100> answer{};
  const auto isRefused = [](const char *name, unsigned char *into, int size) {
    errno = 0;
    return mDNS_res_query(name, classIN, typeSRV, into, size) == -1 && errno == EINVAL;
  };
  EXPECT_TRUE(isRefused(nullptr, answer.data(), 100));
  EXPECT_TRUE(isRefused("a.local", nullptr, 100));
  EXPECT_TRUE(isRefused("a.local", answer.data(), 0));
}

TEST(ServiceName, StaysWhereTheReplyCountsNoAnswerThoughARecordFollows) {
  NEEDS_OWN_NETWORK();
  const Responder responder(Responder::Place::PrinterByMulticast, [](const Bytes &query, int) {
    Bytes reply = serviceReplyTo(query, name({"printer", "local"}));
    reply[6] = reply[7] = 0;
    return std::vector<Bytes>{reply};
  });
  const auto printer =
      PMPrinterCreateWithDeviceURI(QStringLiteral("dnssd://Orvek._ipp._tcp.local./"));
  EXPECT_EQ(GetPrinterURLText(printer), QStringLiteral("http://Orvek._ipp._tcp.local."));
}

QString addressOf(const char *escapedHost) {
  const QString uri = QStringLiteral("ipp://%1/").arg(QString::fromUtf8(escapedHost));
  return GetPrinterURLText(PMPrinterCreateWithDeviceURI(uri));
}

// "%25" is a percent sign that the device URI has escaped: the host itself holds an escape then.
TEST(EscapeInAHost, IsKeptWhereTwoHexadecimalDigitsFollow) {
  for (const char *digits : {"09", "90", "4f", "4F", "af", "FA"}) {
    EXPECT_EQ(addressOf((std::string("a%25") + digits).c_str()).toStdString(),
              std::string("http://a%") + digits);
  }
}

TEST(EscapeInAHost, LeavesNoAddressWhereOtherCharactersFollow) {
  for (const char *others : {"zz", "4g", "g4", "!1", "1!", "1_", "_1", "4", ""}) {
    EXPECT_TRUE(addressOf((std::string("a%25") + others).c_str()).isNull()) << others;
  }
}

TEST(EscapedSign, ThatEndsAHostLeavesNothingOfIt) {
  for (const char *sign : {"%2F", "%3F", "%23"}) {
    EXPECT_TRUE(addressOf((std::string(sign) + "a").c_str()).isNull()) << sign;
  }
}

TEST(HostBeyondASCII, IsKeptWhereItCanBeSeen) {
  // An en dash, which is no letter, and a printer from beyond the first plane.
  for (const char *host : {"a\xE2\x80\x93"
                           "b",
                           "\xF0\x9F\x96\xA8"}) {
    EXPECT_EQ(addressOf(host).toStdString(), std::string("http://") + host);
  }
}

TEST(HostBeyondASCII, LeavesNoAddressWhereItCanNot) {
  // A control character, and a space that does not break.
  EXPECT_TRUE(addressOf("a\xC2\x85").isNull());
  EXPECT_TRUE(addressOf("a\xC2\xA0").isNull());
}

}  // namespace
