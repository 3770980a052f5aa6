// SPDX-License-Identifier: Apache-2.0
// Printers as the print system hands them out, and the device URIs they are reached by.
#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "platform/printing/StatusCodes.h"

namespace orvek {

/// A device URI and its host.
struct DeviceURI {
  QString text;

  /// The host, percent escapes decoded and without the brackets of an IPv6 address; a service name
  /// is fully qualified, with its final dot. Null for a URI that names none, and for any device but
  /// those that libcups reaches over a network (ipp, ipps, http, https, socket, lpd, dnssd, smb,
  /// snmp; also inside of "beh:/1/3/5/").
  QString host;
};

/// Splits `text` as the print system does. Nothing for a text that is no URI.
std::optional<DeviceURI> parseDeviceURI(const QString &text);

/// Plain data that never changes: may be shared between threads.
class Printer {
 public:
  explicit Printer(QString deviceURI) : m_deviceURI(std::move(deviceURI)) {}
  const QString &deviceURI() const { return m_deviceURI; }

 private:
  QString m_deviceURI;
};

}  // namespace orvek

/// Counted; null for no printer.
using PMPrinter = std::shared_ptr<const orvek::Printer>;

/// A printer that is reached by `deviceURI`, whatever that text is.
PMPrinter PMPrinterCreateWithDeviceURI(const QString &deviceURI);

/// Gives the printer's device URI in `deviceURI`: nothing, and kPMInvalidParameter, without a
/// printer or where its device URI is no URI.
OSStatus PMPrinterCopyDeviceURI(const PMPrinter &printer,
                                std::optional<orvek::DeviceURI> *deviceURI);
