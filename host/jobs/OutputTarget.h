// SPDX-License-Identifier: Apache-2.0
// Where a job into a file ends up: nothing half-written, and the old file kept until the new one is
// whole.
#pragma once

#include <QString>
#include <memory>

#include "platform/system/Result.h"
#include "platform/system/WholeFile.h"

namespace orvek {

/// A file that appears whole or not at all, or a device, pipe or standard stream that takes bytes
/// as they come. Dropped without commit() a file leaves what stood there before. Owns its
/// descriptor; use it on one thread. What fails says so with the target's name and the system's
/// reason.
class OutputTarget {
 public:
  /// Opens `path`. "-" is standard output. Fails with the system's reason.
  static Result<std::unique_ptr<OutputTarget>> open(const QString &path);

  ~OutputTarget();
  OutputTarget(const OutputTarget &) = delete;
  OutputTarget &operator=(const OutputTarget &) = delete;

  /// Writes all bytes. `keepWaiting` is asked every tenth of a second while a pipe takes none;
  /// where it answers false the write ends as if it had been done.
  template <typename KeepWaiting>
  Status write(const QByteArray &bytes, const KeepWaiting &keepWaiting);

  /// Puts the file in place.
  Status commit();

 private:
  explicit OutputTarget(QString path) : m_path(std::move(path)) {}
  Failure failure(const Phrase &why) const;
  /// How many bytes a stream took, 0 where it took none in a tenth of a second, or why it never
  /// will.
  Result<qsizetype> writeSomeToStream(const char *bytes, qsizetype count);

  QString m_path;
  int m_stream = -1;
  std::unique_ptr<WholeFile> m_file;
};

template <typename KeepWaiting>
Status OutputTarget::write(const QByteArray &bytes, const KeepWaiting &keepWaiting) {
  if (m_file) return m_file->add(bytes);
  qsizetype done = 0;
  while (done < bytes.size() && keepWaiting()) {
    const auto taken = writeSomeToStream(bytes.constData() + done, bytes.size() - done);
    if (!taken) return taken.failure();
    done += taken.value();
  }
  return {};
}

}  // namespace orvek
