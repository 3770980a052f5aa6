// SPDX-License-Identifier: Apache-2.0
// A folder for what is read by name, in memory where that can be.
#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include "fuzz/Require.h"

namespace orvek::fuzz {

/// Vanishes with the process.
inline const QString &memoryFolder() {
  static const QString parent =
      QFile::exists(QStringLiteral("/dev/shm")) ? QStringLiteral("/dev/shm") : QDir::tempPath();
  static const QTemporaryDir folder(parent + QStringLiteral("/orvek-fuzz-XXXXXX"));
  static const QString path = folder.path();
  return path;
}

/// Writes the bytes into a file of that folder; its path.
inline QString fileOf(const QString &name, const char *bytes, std::size_t size) {
  const QString path = memoryFolder() + u'/' + name;
  QFile file(path);
  require(file.open(QIODevice::WriteOnly));
  require(file.write(bytes, static_cast<qint64>(size)) == static_cast<qint64>(size));
  return path;
}

}  // namespace orvek::fuzz
