// SPDX-License-Identifier: Apache-2.0
// Documents, read as the preview reads them: by a tool in a process of its own. Whatever they hold,
// there are pages that can be laid out, or there is one line that says why not.

#include <QCoreApplication>
#include <string_view>

#include "fuzz/Laid.h"
#include "fuzz/MemoryFolder.h"

extern "C" int LLVMFuzzerInitialize(int *count, char ***words) {
  static QCoreApplication application(*count, *words);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  // Anything else is made a PDF by other programs first.
  if (size == 0 ||
      std::string_view(reinterpret_cast<const char *>(data), size).find("%PDF-") > 1000) {
    return 0;
  }
  const QString path =
      orvek::fuzz::fileOf(QStringLiteral("in.pdf"), reinterpret_cast<const char *>(data), size);
  const std::atomic<bool> cancelled = false;
  const auto document = orvek::readDocumentPages(path, {}, cancelled);
  if (!document) {
    orvek::fuzz::require(!document.failure().line().contains(QLatin1Char('\n')));
    return 0;
  }
  orvek::fuzz::require(!document.value().pages.isEmpty() && document.value().pdf == path);
  orvek::fuzz::layOut(document.value().pages, data[size - 1]);
  return 0;
}
