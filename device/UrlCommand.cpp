// SPDX-License-Identifier: Apache-2.0
// orvek-device url: a printer's web address.

#include "Common/Utilities.h"
#include "device/ChildQuestion.h"
#include "device/Commands.h"
#include "platform/system/OneLine.h"

int orvekDeviceCommand(int count, char **words, orvek::device::Output output) {
  using namespace orvek::device;
  if (count != 2) return misuse(words[0], "give one device URI");
  // A neighbour's answer that is no text ends the process that asked.
  const std::optional<QByteArray> url = askInChild([&] {
    return GetPrinterURLText(PMPrinterCreateWithDeviceURI(QString::fromUtf8(words[1]))).toUtf8();
  });
  if (!url) {
    return complain(Negative, words[1],
                    "what the network answers for this name is no host's name; ask for the "
                    "printer's address instead");
  }
  if (url->isEmpty()) return complain(Negative, words[1], "this device has no web address");
  std::fprintf(output.file, "%s\n", orvek::oneLine(url->toStdString()).c_str());
  return Done;
}
