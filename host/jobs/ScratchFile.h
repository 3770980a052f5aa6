// SPDX-License-Identifier: Apache-2.0
// Files that have a name for other programs to open, and go with this program whatever ends it.
#pragma once

#include <QByteArray>
#include <QString>
#include <memory>
#include <utility>

#include "platform/system/Result.h"

namespace orvek {

/// A folder of this program's own in the one for temporary files, which no other user can read. It
/// goes when the program ends, by itself or killed, with all that is in it. For any thread; the
/// first call makes it. Fails with the folder for temporary files and the system's reason.
Result<QString> scratchFolder();

/// A file in that folder, which it owns: destroying it removes the file. Use it on one thread at a
/// time. What fails says so with the folder for temporary files and the system's reason.
class ScratchFile {
 public:
  /// An empty file whose name ends with `suffix`.
  static Result<std::unique_ptr<ScratchFile>> create(const QString &suffix = {});
  /// A file that holds `bytes`.
  static Result<std::unique_ptr<ScratchFile>> with(const QByteArray &bytes,
                                                   const QString &suffix = {});

  ~ScratchFile();
  ScratchFile(const ScratchFile &) = delete;
  ScratchFile &operator=(const ScratchFile &) = delete;

  /// Adds all of `bytes`, for everybody to read at once.
  Status add(const QByteArray &bytes);

  const QString &path() const { return m_path; }
  qint64 size() const { return m_size; }

 private:
  ScratchFile(QString path, int descriptor) : m_path(std::move(path)), m_descriptor(descriptor) {}

  QString m_path;
  int m_descriptor;
  qint64 m_size = 0;
};

}  // namespace orvek
