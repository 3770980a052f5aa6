// SPDX-License-Identifier: Apache-2.0
// Calls every function of the shared library the way another project's program would.

#include <orvek/Common/PDELogging.h>
#include <orvek/Common/RendezvousUtilities.h>
#include <orvek/Common/SimplePing.h>
#include <orvek/Common/Utilities.h>
#include <orvek/platform/printing/Printer.h>
#include <orvek/platform/system/Gestalt.h>
#include <orvek/platform/system/Log.h>
#include <orvek/platform/system/PDEObject.h>
#include <unistd.h>

#include <cstdio>

namespace {

int failures = 0;

void check(bool holds, const char *what) {
  if (holds) return;
  std::fprintf(stderr, "%s\n", what);
  ++failures;
}

class Thing : public PDEObject {
 public:
  QString description() const override { return QStringLiteral("thing"); }
};

void checkReaders() {
  const unsigned char name[] = {1, 'a', 0, 0, 33, 0, 1, 0,   0, 0,   0,
                                0, 9,   0, 0, 0,  0, 2, 119, 1, 'b', 0};
  const int length = sizeof name;
  char text[orvek::decodedNameSize];
  const unsigned char *cursor = name;
  check(decode_name(&cursor, name, length, text) == 0, "decode_name");
  cursor = name;
  check(skip_question(&cursor, name, length) == 0, "skip_question");
  unsigned short port = 0;
  cursor = name;
  check(decode_srv(&cursor, name, length, text, &port) == 0 && text[0] == 'b', "decode_srv");
  unsigned char data[16];
  unsigned int size = sizeof data;
  cursor = name;
  check(decode_txt(&cursor, name, length, data, &size) == 0, "decode_txt");
  check(mDNS_res_query(nullptr, 1, 33, data, sizeof data) == -1, "mDNS_res_query");
}

void checkPing() {
  sockaddr_in address{};
  check(LookupHostAddress("127.0.0.1", &address) == 0, "LookupHostAddress");
  int socket = -1;
  if (CreateSocketForCommunicationWithHost(&address, &socket) == 0) close(socket);
  check(CreateAndSendICMPPacket(&address, 0, -1) != 0, "CreateAndSendICMPPacket");
  unsigned int seen = 0;
  check(WaitAndPrintICMPs(-1, 100, 1, &seen) == -1, "WaitAndPrintICMPs");
  check(SimplePing(nullptr, 1, 100, 1) == orvek::pingBadArgument, "SimplePing");
  check(in_cksum("", 0) == 0xFFFF, "in_cksum");
}

void checkUtilities() {
  check(ResolveToIP(QStringLiteral("127.0.0.1")) == QStringLiteral("127.0.0.1"), "ResolveToIP");
  check(!PrinterIsReachable(QUrl()), "PrinterIsReachable");
  const PMPrinter printer = PMPrinterCreateWithDeviceURI(QStringLiteral("socket://10.0.0.7"));
  check(GetPrinterURLText(printer) == QStringLiteral("http://10.0.0.7"), "GetPrinterURLText");
  check(GetPrinterURL(printer) == QUrl(QStringLiteral("http://10.0.0.7")), "GetPrinterURL");
  check(GetURLWithAuthentication(QUrl(), {}, {}).isEmpty(), "GetURLWithAuthentication");
  check(GetURLWithAuthentication_SSL(QUrl(), {}, {}).isEmpty(), "GetURLWithAuthentication_SSL");
  check(GetURLWithAuthentication_CFNetwork(QUrl(), {}, {}).isEmpty(), "..._CFNetwork");
  check(MyXMLTreeCreateWithDataFromURL(QUrl()).isEmpty(), "MyXMLTreeCreateWithDataFromURL");
  check(removeColonFromString(QStringLiteral("a:")) == QStringLiteral("a"), "removeColon");
  check(getDeviceModelNumber(nullptr) == QStringLiteral("0000"), "getDeviceModelNumber");
  check(MyCheckPDEContextCUPS(nullptr) != 0, "MyCheckPDEContextCUPS");
}

void checkXML() {
  pugi::xml_document document;
  document.load_string("<a k='v'><b>text</b></a>");
  check(XMLTreeFind(document, QStringLiteral("b")) != pugi::xml_node(), "XMLTreeFind");
  check(GetOVGValue(document, QStringLiteral("b")) == QStringLiteral("text"), "GetOVGValue");
  const pugi::xml_node root = document.document_element();
  check(XMLTreeFindWithName(root, QStringLiteral("v")) == root, "XMLTreeFindWithName");
  check(XMLGetPropertyValue(root) == QStringLiteral("text"), "XMLGetPropertyValue");
}

void checkDiagnostics() {
  QString line;
  orvek::setLogListener([&line](const QString &text) { line = text; });
  const Thing thing;
  _PDEProlog(&thing, "%d", 1);
  _PDEEpilog(nullptr, "%s", "x");
  _PDELog(&thing, "%@", static_cast<const PDEObject *>(&thing));
  check(line == QStringLiteral("LOG self(thing) thing"), "_PDELog");
  orvek::setLogListener({});
  orvek::setGestaltForTesting(gestaltSystemVersionMajor, 11);
  check(RunningOn105OrLater() && RunningOn107OrLater() && RunningOn1010OrLater(), "RunningOn");
  orvek::clearGestaltForTesting();
}

}  // namespace

int main() {
  checkReaders();
  checkPing();
  checkUtilities();
  checkXML();
  checkDiagnostics();
  return failures == 0 ? 0 : 1;
}
