// SPDX-License-Identifier: Apache-2.0
// Whether two names, or streams, are one file.
#pragma once

#include <sys/stat.h>

#include <QFile>
#include <QString>
#include <optional>

namespace orvek {

/// A plain file, whatever it is called: the same for each of its links, for names of streams that
/// lead to it, and for the stream itself. A value. It may stand for another file once its own is
/// removed.
struct FileIdentity {
  dev_t device = 0;
  ino_t file = 0;

  bool operator==(const FileIdentity &) const = default;

  /// Of the file that `path` leads to; nothing where there is no plain file.
  static std::optional<FileIdentity> at(const QString &path) {
    struct stat entry {};
    return from(::stat(QFile::encodeName(path).constData(), &entry), entry);
  }

  /// Of the file that is open there; nothing where there is no plain file.
  static std::optional<FileIdentity> behind(int descriptor) {
    struct stat entry {};
    return from(::fstat(descriptor, &entry), entry);
  }

 private:
  static std::optional<FileIdentity> from(int status, const struct stat &entry) {
    if (status != 0 || !S_ISREG(entry.st_mode)) return std::nullopt;
    return FileIdentity{entry.st_dev, entry.st_ino};
  }
};

}  // namespace orvek
