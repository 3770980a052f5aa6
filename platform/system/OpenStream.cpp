// SPDX-License-Identifier: Apache-2.0
// Knows the names.

#include "platform/system/OpenStream.h"

#include <unistd.h>

namespace orvek {

int openStreamNumber(const QString &path) {
  if (path == QStringLiteral("/dev/stdin")) return STDIN_FILENO;
  if (path == QStringLiteral("/dev/stdout")) return STDOUT_FILENO;
  if (path == QStringLiteral("/dev/stderr")) return STDERR_FILENO;
  for (const QString &prefix : {QStringLiteral("/dev/fd/"), QStringLiteral("/proc/self/fd/")}) {
    bool isNumber = false;
    const int number = path.startsWith(prefix) ? path.mid(prefix.size()).toInt(&isNumber) : -1;
    if (isNumber) return number;
  }
  return -1;
}

}  // namespace orvek
