// SPDX-License-Identifier: Apache-2.0
// Documents, read as the preview reads them: by a tool in a process of its own. Whatever they hold,
// there are pages that can be laid out, or there is one line that says why not.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <string_view>

#include "fuzz/Laid.h"

namespace {

/// Where documents lie, in memory where that can be.
const QString &folder() {
  static const QString parent =
      QFile::exists(QStringLiteral("/dev/shm")) ? QStringLiteral("/dev/shm") : QDir::tempPath();
  static const QTemporaryDir folder(parent + QStringLiteral("/orvek-pages-XXXXXX"));
  static const QString path = folder.path();
  return path;
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int *count, char ***words) {
  static QCoreApplication application(*count, *words);
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size) {
  // Anything else is made a PDF by other programs first.
  if (size == 0 ||
      std::string_view(reinterpret_cast<const char *>(data), size).find("%PDF-") > 1000)
    return 0;
  const QString path = folder() + QStringLiteral("/in.pdf");
  QFile file(path);
  orvek::fuzz::require(file.open(QIODevice::WriteOnly));
  file.write(reinterpret_cast<const char *>(data), static_cast<qint64>(size));
  file.close();
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
