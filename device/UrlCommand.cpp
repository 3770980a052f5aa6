// SPDX-License-Identifier: Apache-2.0
// orvek-device url: a printer's web address.

#include "Common/Utilities.h"
#include "device/Commands.h"

int orvekDeviceCommand(int count, char **words, orvek::device::Output output) {
  using namespace orvek::device;
  if (count != 2) return misuse(words[0], "give one device URI");
  const QString url = GetPrinterURLText(PMPrinterCreateWithDeviceURI(QString::fromUtf8(words[1])));
  if (url.isNull()) return complain(Negative, words[1], "this device has no web address");
  std::fprintf(output.file, "%s\n", url.toUtf8().constData());
  return Done;
}
