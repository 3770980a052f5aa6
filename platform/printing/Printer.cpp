// SPDX-License-Identifier: Apache-2.0
// Device URIs, split by libcups: service names in them hold what no web address may.

#include "platform/printing/Printer.h"

#include <cups/http.h>

#include <QRegularExpression>
#include <QSet>
#include <array>

namespace orvek {
namespace {

using Field = std::array<char, HTTP_MAX_URI>;

/// The devices that libcups reaches over a network. The "host" of any other is a maker's name, a
/// path or a bus.
bool schemeHasHost(const QString &scheme) {
  static const QSet<QString> network{
      QStringLiteral("ipp"),   QStringLiteral("ipps"),   QStringLiteral("http"),
      QStringLiteral("https"), QStringLiteral("socket"), QStringLiteral("lpd"),
      QStringLiteral("dnssd"), QStringLiteral("smb"),    QStringLiteral("snmp")};
  return network.contains(scheme.toLower());
}

/// The device URI inside of one for the backend that tries again: "beh:/1/3/5/URI", three numbers
/// before it. Any other text as it is.
QString withoutRetries(const QString &text) {
  static const QRegularExpression wrapper(QStringLiteral("^beh:/\\d+/\\d+/\\d+/"),
                                          QRegularExpression::CaseInsensitiveOption);
  QString inner = text;
  return inner.remove(wrapper);
}

/// libcups refuses bytes beyond ASCII and blanks that some tools leave unescaped in service names.
QByteArray escaped(const QString &text) {
  QByteArray result;
  const QByteArray bytes = text.toUtf8();
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (value > 0x20 && value < 0x7F) {
      result += byte;
    } else {
      result += '%' + QByteArray(1, byte).toHex();
    }
  }
  return result;
}

// Services of the local network are known by names with the final dot, which device URIs often
// lack. Any other host stays as it is written.
QString fullyQualified(const QString &host) {
  const bool isLocalService =
      host.endsWith(QLatin1String("._tcp.local")) || host.endsWith(QLatin1String("._udp.local"));
  return isLocalService ? host + QLatin1Char('.') : host;
}

}  // namespace

std::optional<DeviceURI> parseDeviceURI(const QString &text) {
  Field scheme{};
  Field user{};
  Field host{};
  Field resource{};
  int port = 0;
  const http_uri_status_t status = httpSeparateURI(
      HTTP_URI_CODING_ALL, escaped(withoutRetries(text)).constData(), scheme.data(), scheme.size(),
      user.data(), user.size(), host.data(), host.size(), &port, resource.data(), resource.size());
  if (status < HTTP_URI_STATUS_OK) return std::nullopt;
  DeviceURI result{text, {}};
  if (host[0] != '\0' && schemeHasHost(QString::fromUtf8(scheme.data()))) {
    result.host = fullyQualified(QString::fromUtf8(host.data()));
  }
  return result;
}

}  // namespace orvek

PMPrinter PMPrinterCreateWithDeviceURI(const QString &deviceURI) {
  return std::make_shared<const orvek::Printer>(deviceURI);
}

OSStatus PMPrinterCopyDeviceURI(const PMPrinter &printer,
                                std::optional<orvek::DeviceURI> *deviceURI) {
  if (deviceURI == nullptr) return kPMInvalidParameter;
  deviceURI->reset();
  if (printer == nullptr) return kPMInvalidParameter;
  *deviceURI = orvek::parseDeviceURI(printer->deviceURI());
  return deviceURI->has_value() ? noErr : kPMInvalidParameter;
}
