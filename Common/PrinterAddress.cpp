// SPDX-License-Identifier: Apache-2.0
// The address of a printer's built-in web server, from its device URI. A service name in there is
// resolved through its SRV record.

#include <QUrl>
#include <array>
#include <cstdio>
#include <cstdlib>

#include "Common/RendezvousUtilities.h"
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

/// What no decoded name begins with before a record of another type left it alone.
constexpr char untouched = '\xFF';

int number16(const Reply &reply, int offset) {
  return (reply[static_cast<std::size_t>(offset)] << 8) |
         reply[static_cast<std::size_t>(offset) + 1];
}

/// Decodes the target of the first answer; false where there is none or it can't be read.
bool readFirstTarget(const Reply &reply, int length, Target *target) {
  const unsigned char *cursor = reply.data() + headerSize;
  for (int left = number16(reply, questionCountOffset); left > 0; --left) {
    if (skip_question(&cursor, reply.data(), length) != 0) return false;
  }
  if (number16(reply, answerCountOffset) == 0) return false;
  target->front() = untouched;
  unsigned short port = 0;
  if (decode_srv(&cursor, reply.data(), length, target->data(), &port) != 0) return false;
  return target->front() != untouched;
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

/// The host as it stands in a URL: an IPv6 address goes into brackets, its zone escaped.
QString hostInURL(const QString &host) {
  if (!host.contains(QLatin1Char(':'))) return host;
  QString address = host;
  address.replace(QLatin1String("%"), QLatin1String("%25"));
  return QLatin1Char('[') + address + QLatin1Char(']');
}

}  // namespace

// A handle is passed by value, as the platform's handles are.
// NOLINTNEXTLINE(performance-unnecessary-value-param)
QUrl GetPrinterURL(PMPrinter printer) {
  std::optional<orvek::DeviceURI> deviceURI;
  PMPrinterCopyDeviceURI(printer, &deviceURI);
  if (!deviceURI || deviceURI->host.isNull()) return {};
  QString host = deviceURI->host;
  CheckForLocalHost(&host);
  const QUrl url(QLatin1String("http://") + hostInURL(host), QUrl::StrictMode);
  return url.isValid() && !url.host().isEmpty() ? url : QUrl();
}
