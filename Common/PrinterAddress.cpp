// SPDX-License-Identifier: Apache-2.0
// The address of a printer's built-in web server, from its device URI. A service name in there is
// resolved through its SRV record.

#include <arpa/inet.h>

#include <QUrl>
#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <utility>

#include "Common/RendezvousUtilities.h"
#include "Common/ReplyCursor.h"
#include "Common/Utilities.h"
#include "platform/printing/Printer.h"

namespace {

constexpr int classIN = 1;
constexpr int typeSRV = 33;
constexpr int headerSize = 12;
constexpr int questionCountOffset = 4;
constexpr int answerCountOffset = 6;
constexpr int replySize = 1500;
constexpr int longestServiceName = 255;

using Reply = std::array<unsigned char, replySize>;
using Target = std::array<char, orvek::decodedNameSize>;

int number16(const Reply &reply, int offset) {
  return (reply[static_cast<std::size_t>(offset)] << 8) |
         reply[static_cast<std::size_t>(offset) + 1];
}

/// Whether the record, which decode_srv has read, is of the one type that it writes a target of.
bool isServiceRecord(const unsigned char *record, const Reply &reply, int length) {
  if (decode_name(&record, reply.data(), length, nullptr) != 0) return false;
  const orvek::ReplyCursor header(reply.data(), length, record);
  return header.holds(2) && header.number16(0) == typeSRV;
}

/// Decodes the target of the first answer; false where there is none or it can't be read.
bool readFirstTarget(const Reply &reply, int length, Target *target) {
  const unsigned char *cursor = reply.data() + headerSize;
  for (int left = number16(reply, questionCountOffset); left > 0; --left) {
    if (skip_question(&cursor, reply.data(), length) != 0) return false;
  }
  if (number16(reply, answerCountOffset) == 0) return false;
  const unsigned char *record = cursor;
  unsigned short port = 0;
  if (decode_srv(&cursor, reply.data(), length, target->data(), &port) != 0) return false;
  return isServiceRecord(record, reply, length);
}

bool isASCII(const char *text) {
  for (; *text != '\0'; ++text) {
    if (static_cast<unsigned char>(*text) >= 0x80) return false;
  }
  return true;
}

/// A target that is no text is a broken network, not an input to carry on with.
void requireHost(bool made) {
  if (made) return;
  std::fputs(
      "Assertion failed: (*host != NULL), function CheckForLocalHost, Common/Utilities, line "
      "144.\n",
      stderr);
  std::abort();
}

/// Replaces a service name by the host that offers the service; leaves any other host, and a name
/// that does not resolve.
void CheckForLocalHost(QString *host) {
  if (!host->contains(QLatin1String("._tcp.local."))) return;
  const QByteArray name = host->toLatin1();
  if (name.size() > longestServiceName || QString::fromLatin1(name) != *host) return;
  Reply reply{};
  const int length = mDNS_res_query(name.constData(), classIN, typeSRV, reply.data(), replySize);
  if (length <= headerSize) return;
  Target target{};
  if (!readFirstTarget(reply, length, &target)) return;
  requireHost(isASCII(target.data()));
  *host = QString::fromLatin1(target.data());
}

/// An IPv6 address as it stands in a URL: in brackets, its zone escaped. Null for other texts.
QString bracketed(const QString &address) {
  const qsizetype zone = address.indexOf(QLatin1Char('%'));
  in6_addr parsed{};
  if (inet_pton(AF_INET6, address.left(zone).toLatin1().constData(), &parsed) != 1) return {};
  QString escaped = address;
  escaped.replace(QLatin1String("%"), QLatin1String("%25"));
  return QLatin1Char('[') + escaped + QLatin1Char(']');
}

bool isHexDigit(QChar c) {
  return (c >= u'0' && c <= u'9') || (c.toLower() >= u'a' && c.toLower() <= u'f');
}

/// Whether a URL may hold the character at `at`: those of RFC 3986 other than brackets, and what
/// can be seen beyond ASCII.
bool mayStandInURL(const QString &text, qsizetype at) {
  constexpr std::string_view punctuation = "-._~!$&'()*+,;=/?#@";
  const QChar c = text[at];
  if (c.unicode() >= 0x80) return c.isSurrogate() || (c.isPrint() && !c.isSpace());
  if (c == u'%') {
    return at + 2 < text.size() && isHexDigit(text[at + 1]) && isHexDigit(text[at + 2]);
  }
  return c.isLetterOrNumber() || punctuation.find(c.toLatin1()) != std::string_view::npos;
}

bool endsAuthority(QChar c) {
  return c == u'/' || c == u'?' || c == u'#';
}

/// `host` as it stands in a URL, letter for letter; null where it can't.
QString hostInURL(const QString &host) {
  if (host.contains(QLatin1Char(':'))) return bracketed(host);
  for (qsizetype at = 0; at < host.size(); ++at) {
    if (!mayStandInURL(host, at)) return {};
  }
  // A slash, say, that the device URI had escaped ends the host, of which something has to be
  // there.
  const auto end = std::find_if(host.begin(), host.end(), endsAuthority);
  return end == host.begin() || *(end - 1) == u'@' ? QString() : host;
}

}  // namespace

// A handle is passed by value, as the platform's handles are.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
QString GetPrinterURLText(PMPrinter printer) {
  std::optional<orvek::DeviceURI> deviceURI;
  PMPrinterCopyDeviceURI(printer, &deviceURI);
  if (!deviceURI || deviceURI->host.isNull()) return {};
  QString host = deviceURI->host;
  CheckForLocalHost(&host);
  const QString shown = hostInURL(host);
  return shown.isNull() ? QString() : QLatin1String("http://") + shown;
}

QUrl GetPrinterURL(PMPrinter printer) {
  const QUrl url(GetPrinterURLText(std::move(printer)), QUrl::StrictMode);
  return url.isValid() && !url.host().isEmpty() ? url : QUrl();
}
