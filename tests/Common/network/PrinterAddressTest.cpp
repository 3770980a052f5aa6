// SPDX-License-Identifier: Apache-2.0
// Web addresses from device URIs, service names resolved by a responder or a real mDNS daemon.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/wait.h>

#include <chrono>
#include <fstream>

#include "Common/RendezvousUtilities.h"
#include "Common/Utilities.h"
#include "tests/Common/support/OwnNetwork.h"
#include "tests/Common/support/Responder.h"

using namespace orvek::test;

namespace {

using Place = Responder::Place;

constexpr const char *serviceURI = "dnssd://Orvek._ipp._tcp.local./?uuid=1234";

QString addressOf(const char *deviceURI) {
  return GetPrinterURLText(PMPrinterCreateWithDeviceURI(QString::fromUtf8(deviceURI)));
}

QByteArray encodedURLOf(const char *deviceURI) {
  return GetPrinterURL(PMPrinterCreateWithDeviceURI(QString::fromUtf8(deviceURI))).toEncoded();
}

QString address(const char *text) {
  return QString::fromUtf8(text);
}

/// The address of `serviceURI` where its query is answered with `answer`.
QString addressWithAnswer(const Responder::Answer &answer, std::size_t *queries = nullptr) {
  Responder responder(Place::PrinterByMulticast, answer);
  const QString result = addressOf(serviceURI);
  if (queries != nullptr) *queries = responder.queries().size();
  return result;
}

TEST(PrinterAddress, IsThePlainHostOfAnAddressOrANameWithoutAnyTraffic) {
  NEEDS_OWN_NETWORK();
  Responder responder(Place::PrinterByMulticast,
                      [](const Bytes &, int) { return std::vector<Bytes>(); });
  EXPECT_EQ(addressOf("socket://10.0.0.7"), address("http://10.0.0.7"));
  EXPECT_EQ(addressOf("ipp://printer.example:631/ipp/print"), address("http://printer.example"));
  EXPECT_EQ(addressOf("lpd://user@host.local/queue?x=1"), address("http://host.local"));
  EXPECT_TRUE(responder.queries().empty());
}

TEST(PrinterAddress, PutsAnIPv6AddressIntoBrackets) {
  EXPECT_EQ(addressOf("ipp://[2001:db8::7]:631/ipp"), address("http://[2001:db8::7]"));
  EXPECT_EQ(addressOf("ipp://[2001:DB8:0::7]/"), address("http://[2001:DB8:0::7]"));
  EXPECT_EQ(addressOf("ipp://[v1.fe80::1+eth0]/"), address("http://[fe80::1%25eth0]"));
  EXPECT_EQ(encodedURLOf("ipp://[2001:DB8::7]/"), "http://[2001:db8::7]");
}

TEST(PrinterAddress, IsAbsentForDevicesWithoutANetworkHost) {
  for (const char *uri : {"usb://Orvek/6180?serial=12", "file:///dev/null", "parallel:/dev/lp0",
                          "serial:/dev/ttyS0?baud=9600", "ipp:///ipp", "no uri", ""}) {
    EXPECT_TRUE(addressOf(uri).isNull()) << uri;
  }
  EXPECT_TRUE(GetPrinterURLText(nullptr).isNull());
  EXPECT_TRUE(GetPrinterURL(nullptr).isEmpty());
}

TEST(PrinterAddress, KeepsTheLettersOfItsHost) {
  for (const char *host : {"MyPrinter.Example.COM", "192.168.1", "host-", "a..b", "under_score",
                           "B\xC3\xBCro.Example", "R&D"}) {
    EXPECT_EQ(addressOf(("ipp://" + std::string(host) + "/ipp").c_str()).toStdString(),
              "http://" + std::string(host));
  }
}

TEST(PrinterAddress, IsNormalisedAsAURL) {
  EXPECT_EQ(encodedURLOf("ipp://MyPrinter.Example.COM/"), "http://myprinter.example.com");
  EXPECT_EQ(encodedURLOf("ipp://192.168.1/"), "http://192.168.0.1");
  EXPECT_EQ(encodedURLOf("ipp://B%C3%BCro/"), "http://xn--bro-hoa");
  EXPECT_EQ(encodedURLOf("ipp://host-/"), "");
}

TEST(PrinterAddress, IsAbsentForHostsThatMayNotStandInAURL) {
  for (const char *uri : {"ipp://a%20b/", "ipp://a%5Bb%5D/", "ipp://a%3Cb/", "ipp://a%25/",
                          "ipp://a%25zz/", "ipp://a%5Cb/", "ipp://a%3Ab/", "ipp://%2Fa/",
                          "ipp://a%40%2Fb/", "ipp://a%C2%85b/", "ipp://a%E2%80%83b/"}) {
    EXPECT_TRUE(addressOf(uri).isNull()) << uri << " " << addressOf(uri).toStdString();
    EXPECT_EQ(encodedURLOf(uri), "") << uri;
  }
}

TEST(PrinterAddress, IsTheServicesTargetWithItsFinalDotAndWithoutItsPort) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(addressWithAnswer([](const Bytes &query, int) {
              return std::vector<Bytes>{serviceReplyTo(query, name({"printer", "local"}))};
            }),
            address("http://printer.local."));
}

TEST(PrinterAddress, AsksForTheDecodedServiceNameFullyQualified) {
  NEEDS_OWN_NETWORK();
  Responder responder(Place::PrinterByMulticast, [](const Bytes &query, int) {
    return std::vector<Bytes>{serviceReplyTo(query, name({"p", "local"}))};
  });
  EXPECT_EQ(addressOf("dnssd://Name%20With%20%5Bbrackets%5D._ipp._tcp.local/?uuid=1"),
            address("http://p.local."));
  const Bytes expected = name({"Name With [brackets]", "_ipp", "_tcp", "local"});
  const Bytes query = responder.queries().at(0);
  EXPECT_EQ(Bytes(query.begin() + headerSize, query.end() - 4), expected);
}

TEST(PrinterAddress, StaysTheServiceNameWhereTheReplyHasNoAnswer) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(addressWithAnswer(
                [](const Bytes &query, int) { return std::vector<Bytes>{replyTo(query, 0, {})}; }),
            address("http://Orvek._ipp._tcp.local."));
}

TEST(PrinterAddress, StaysTheServiceNameWhereTheFirstAnswerIsOfAnotherType) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(addressWithAnswer([](const Bytes &query, int) {
              const Bytes text = raw("\x05txt=1");
              const Bytes data = serviceData(name({"printer", "local"}));
              return std::vector<Bytes>{
                  replyTo(query, 2,
                          join(pointer(headerSize), recordHeader(typeTXT, text.size()), text,
                               pointer(headerSize), recordHeader(typeSRV, data.size()), data))};
            }),
            address("http://Orvek._ipp._tcp.local."));
}

TEST(PrinterAddress, StaysTheServiceNameWhereTheQuestionCantBeSkipped) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(addressWithAnswer([](const Bytes &query, int) {
              // The question's name is a pointer to behind itself: legal to some readers, not to
              // ours.
              const Bytes question(query.begin() + headerSize, query.end() - 4);
              return std::vector<Bytes>{join(header(1, 1), pointer(headerSize + 6),
                                             number16(typeSRV), number16(1), question)};
            }),
            address("http://Orvek._ipp._tcp.local."));
}

TEST(PrinterAddress, StaysTheServiceNameWhereTheAnswerIsCutOff) {
  NEEDS_OWN_NETWORK();
  EXPECT_EQ(addressWithAnswer([](const Bytes &query, int) {
              return std::vector<Bytes>{replyTo(query, 1, pointer(headerSize))};
            }),
            address("http://Orvek._ipp._tcp.local."));
}

TEST(PrinterAddress, IsAbsentForAnUnresolvedServiceNameThatMakesNoURL) {
  NEEDS_OWN_NETWORK();
  Responder responder(Place::PrinterByMulticast, [](const Bytes &query, int) {
    return std::vector<Bytes>{replyTo(query, 0, {})};
  });
  EXPECT_TRUE(addressOf("dnssd://Two%20Words._ipp._tcp.local./").isNull());
}

TEST(PrinterAddress, AsksNothingForANameThatIsTooLongOrNotLatin) {
  NEEDS_OWN_NETWORK();
  Responder responder(Place::PrinterByMulticast,
                      [](const Bytes &, int) { return std::vector<Bytes>(); });
  addressOf(("dnssd://" + std::string(245, 'a') + "._tcp.local./").c_str());
  addressOf("dnssd://%E3%83%97%E3%83%AA._ipp._tcp.local./");
  EXPECT_TRUE(responder.queries().empty());
}

TEST(PrinterAddress, ReadsNothingBehindTheAnswerOfALongerReplyByConnection) {
  NEEDS_OWN_NETWORK();
  Responder nameServer(Place::OwnHostByName, [](const Bytes &query, int) {
    // Questions for the root name up to the end of the reply, which lies behind the answer's.
    constexpr int questions = (1870 - headerSize) / 5;
    Bytes reply = withIdentifierOf(query, header(questions, 1));
    for (int i = 0; i < questions; ++i) reply = join(reply, Bytes{0, 0, 33, 0, 1});
    reply.resize(1870);
    return std::vector<Bytes>{reply};
  });
  resolveThrough(nameServer);
  EXPECT_EQ(addressOf("dnssd://Orvek._ipp._tcp.local.example/"),
            address("http://Orvek._ipp._tcp.local.example"));
  EXPECT_EQ(nameServer.queries().size(), 2U);
}

TEST(PrinterAddressDeathTest, StopsForATargetThatBeginsWithTheLargestByte) {
  NEEDS_OWN_NETWORK();
  EXPECT_DEATH(addressWithAnswer([](const Bytes &query, int) {
                 return std::vector<Bytes>{serviceReplyTo(query, name({"\xFFprinter"}))};
               }),
               "\\*host != NULL");
}

TEST(PrinterAddressDeathTest, StopsForATargetThatIsNotASCII) {
  NEEDS_OWN_NETWORK();
  EXPECT_DEATH(addressWithAnswer([](const Bytes &query, int) {
                 return std::vector<Bytes>{serviceReplyTo(query, name({"b\xC3\xBCro"}))};
               }),
               "\\*host != NULL");
}

/// A real responder: avahi-daemon on the printer, offering one service.
class RealResponder : public testing::Test {
 protected:
  void SetUp() override {
    NEEDS_OWN_NETWORK();
    if (std::system("command -v avahi-daemon >/dev/null") != 0) {
      GTEST_SKIP() << "avahi-daemon is needed";
    }
    if (mount("tmpfs", services, "tmpfs", 0, nullptr) != 0) {
      GTEST_SKIP() << services << " can't be replaced";
    }
    std::ofstream(std::string(services) + "/printer.service")
        << "<?xml version='1.0'?><!DOCTYPE service-group SYSTEM 'avahi-service.dtd'>"
           "<service-group><name>Orvek 6180 [Room 1]</name><service><type>_ipp._tcp</type>"
           "<port>631</port><txt-record>rp=ipp/print</txt-record></service></service-group>";
    std::ofstream("/run/avahi.conf") << "[server]\nhost-name=orvek-printer\nuse-ipv6=no\n"
                                        "enable-dbus=no\nallow-interfaces=ovk1\n";
    daemon = OwnNetwork::startOnPrinter(
        "exec avahi-daemon -f /run/avahi.conf --no-drop-root --no-chroot --no-rlimits "
        "--no-proc-title >/run/avahi.log 2>&1");
  }

  void TearDown() override {
    if (daemon <= 0) return;
    kill(daemon, SIGTERM);
    waitpid(daemon, nullptr, 0);
    umount(services);
  }

  static constexpr const char *services = "/etc/avahi/services";
  int daemon = -1;
};

TEST_F(RealResponder, ResolvesTheServiceToItsHost) {
  constexpr const char *uri = "dnssd://Orvek%206180%20%5BRoom%201%5D._ipp._tcp.local/?uuid=1";
  QString found;
  // The daemon first makes sure that nobody else has its names, which takes it a second or two.
  for (int attempt = 0; attempt < 3 && found.isNull(); ++attempt) found = addressOf(uri);
  if (found.isNull() && waitpid(daemon, nullptr, WNOHANG) == daemon) {
    daemon = -1;
    GTEST_SKIP() << "avahi-daemon does not run here";
  }
  EXPECT_EQ(found.toStdString(), "http://orvek-printer.local.");
}

}  // namespace
