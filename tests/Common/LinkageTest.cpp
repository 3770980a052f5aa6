// SPDX-License-Identifier: Apache-2.0
// Callers that bring their own declarations: nothing of the library's headers is included here.

#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>

#include <QString>
#include <QUrl>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <set>
#include <sstream>

#ifdef __clang__
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif

extern "C" {
extern sockaddr_in mDNS_addr;
int mDNS_res_query(const char *, int, int, unsigned char *, int);
int decode_name(const unsigned char **, const unsigned char *, int, char *);
int skip_question(const unsigned char **, const unsigned char *, int);
int decode_srv(const unsigned char **, const unsigned char *, int, char *, unsigned short *);
int decode_txt(const unsigned char **, const unsigned char *, int, unsigned char *, unsigned int *);
QString ResolveToIP(const QString &);
int SimplePing(const char *, int, int, unsigned int);
int LookupHostAddress(const char *, sockaddr_in *);
int CreateSocketForCommunicationWithHost(const sockaddr_in *, int *);
int CreateAndSendICMPPacket(const sockaddr_in *, unsigned short, int);
int WaitAndPrintICMPs(int, int, unsigned int, unsigned int *);
unsigned short in_cksum(const void *, int);
bool PrinterIsReachable(const QUrl &);
}

namespace {

/// What the library defines under names that no compiler has decorated.
std::set<std::string> plainNames() {
  std::set<std::string> names;
  std::FILE *symbols = popen("nm --defined-only --extern-only --format=posix " ORVEK_COMMON, "r");
  if (symbols == nullptr) return names;
  std::array<char, 4096> line{};
  while (std::fgets(line.data(), line.size(), symbols) != nullptr) {
    std::string name;
    std::string type;
    std::istringstream(line.data()) >> name >> type;
    if (type == "T" || type == "B") names.insert(name);
  }
  pclose(symbols);
  return names;
}

TEST(Linkage, OfTheReadersAndTheEchoesIsPlain) {
  if (std::system("command -v nm >/dev/null") != 0) GTEST_SKIP() << "nm is needed";
  const std::set<std::string> names = plainNames();
  for (const char *name :
       {"mDNS_addr", "mDNS_res_query", "decode_name", "skip_question", "decode_srv", "decode_txt",
        "ResolveToIP", "SimplePing", "LookupHostAddress", "CreateSocketForCommunicationWithHost",
        "CreateAndSendICMPPacket", "WaitAndPrintICMPs", "in_cksum", "PrinterIsReachable"}) {
    EXPECT_EQ(names.count(name), 1U) << name;
  }
}

TEST(Linkage, LetsCallersDeclareTheReadersThemselves) {
  const unsigned char root = 0;
  const unsigned char *cursor = &root;
  char text[1024] = "?";
  EXPECT_EQ(decode_name(&cursor, &root, 1, text), 0);
  EXPECT_STREQ(text, "");
  cursor = &root;
  unsigned short port = 0;
  unsigned int size = 0;
  unsigned char data = 0;
  EXPECT_EQ(skip_question(&cursor, &root, 1), -4);
  cursor = &root;
  EXPECT_EQ(decode_srv(&cursor, &root, 1, text, &port), -3);
  cursor = &root;
  EXPECT_EQ(decode_txt(&cursor, &root, 1, &data, &size), -5);
  EXPECT_EQ(mDNS_res_query(nullptr, 1, 33, &data, 1), -1);
  EXPECT_EQ(mDNS_addr.sin_port, htons(5353));
  EXPECT_EQ(ResolveToIP(QStringLiteral("127.0.0.1")), QStringLiteral("127.0.0.1"));
}

TEST(Linkage, LetsCallersDeclareTheEchoesThemselves) {
  sockaddr_in address{};
  unsigned int seen = 1;
  EXPECT_EQ(LookupHostAddress("127.0.0.1", &address), 0);
  EXPECT_EQ(address.sin_addr.s_addr, htonl(INADDR_LOOPBACK));
  EXPECT_EQ(CreateSocketForCommunicationWithHost(&address, nullptr), 22);
  EXPECT_EQ(CreateAndSendICMPPacket(nullptr, 0, -1), 22);
  EXPECT_EQ(WaitAndPrintICMPs(-1, 0, 1, &seen), 22);
  EXPECT_EQ(SimplePing(nullptr, 1, 1, 1), 22);
  EXPECT_EQ(in_cksum(nullptr, 0), 0xFFFF);
  EXPECT_FALSE(PrinterIsReachable(QUrl()));
}

}  // namespace
