// SPDX-License-Identifier: Apache-2.0
// A file that takes its place only once it is whole.
#pragma once

#include <QSaveFile>
#include <QString>
#include <memory>

#include "platform/system/Result.h"

namespace orvek {

/// Bytes without a name until commit(), where the file system knows such files: a program that is
/// killed leaves nothing behind. Elsewhere a file beside the place, which a killed program leaves
/// there. What stood in the place, its permissions and a link that leads to it, is kept until then.
/// Owns its descriptor; use it on one thread.
class PendingFile {
 public:
  /// Fails with the system's reason alone, `what` left empty; so does commit().
  static Result<std::unique_ptr<PendingFile>> open(const QString &path);

  ~PendingFile();
  PendingFile(const PendingFile &) = delete;
  PendingFile &operator=(const PendingFile &) = delete;

  /// To write to.
  int handle() const { return m_named ? m_named->handle() : m_unnamed; }

  /// Puts the file in place, replacing what is there.
  Status commit();

 private:
  explicit PendingFile(const QString &path);
  bool openUnnamed();

  /// Past all links.
  QString m_path;
  int m_unnamed = -1;
  std::unique_ptr<QSaveFile> m_named;
};

}  // namespace orvek
