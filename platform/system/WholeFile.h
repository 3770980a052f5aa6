// SPDX-License-Identifier: Apache-2.0
// The one writer of files that must not be half: the old one stays until the new one is on the
// disk.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QSaveFile>
#include <QString>
#include <memory>

#include "platform/system/Result.h"

namespace orvek {

/// A plain file being written apart from its place. Dropped without commit(), or after a failure,
/// it leaves what stood there before, and nothing else. Owns its descriptor; use it on one thread.
/// Failures are of kind Io and hold the path and the system's reason.
class WholeFile {
 public:
  /// Begins a file at `path`, which a link may lead to. Fails where the folder takes no new file,
  /// or what stands there may not be written.
  static Result<std::unique_ptr<WholeFile>> begin(const QString &path);

  /// Adds all of `bytes`; what the disk has no room for fails here and not later.
  Status add(const QByteArray &bytes);

  /// Puts the file in place once the disk holds all of it, under the date `modified` where that is
  /// valid. To be called once, and nothing after it.
  Status commit(const QDateTime &modified = {});

 private:
  explicit WholeFile(const QString &path) : m_file(path) {}
  Failure failure(int error) const;

  QSaveFile m_file;
};

/// Writes `bytes` to `path`: a plain file is replaced as a whole or left as it was (WholeFile);
/// a pipe, a device and a stream that is open already ("/dev/stdout", "/dev/fd/3") are written
/// into. Waits as long as a pipe's reader does. Fails with the path and the system's reason.
Status writeFile(const QString &path, const QByteArray &bytes);

/// Whether `path` is for WholeFile: a plain file, or none yet. A name of an open stream is not,
/// wherever the stream leads.
bool isReplaceable(const QString &path);

}  // namespace orvek
