// SPDX-License-Identifier: Apache-2.0
// Device URIs, and the web addresses made of those that need no query.

#include <cstdlib>

#include "Common/Utilities.h"

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  const QString text =
      QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
  const auto uri = orvek::parseDeviceURI(text);
  if (!uri || uri->host.contains(QLatin1String("._tcp.local."))) return 0;
  const PMPrinter printer = PMPrinterCreateWithDeviceURI(text);
  const QString address = GetPrinterURLText(printer);
  const QUrl url = GetPrinterURL(printer);
  if (!address.isNull() && !address.startsWith(QLatin1String("http://"))) std::abort();
  if (!url.isEmpty() && (address.isNull() || url.scheme() != QLatin1String("http"))) std::abort();
  return 0;
}
