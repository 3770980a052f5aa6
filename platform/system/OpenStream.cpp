// SPDX-License-Identifier: Apache-2.0
// Knows the names.

#include "platform/system/OpenStream.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>

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

int openForWriting(const QString &path) {
  const int number = openStreamNumber(path);
  if (number >= 0) return ::fcntl(number, F_DUPFD_CLOEXEC, 0);
  return ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
}

}  // namespace orvek
