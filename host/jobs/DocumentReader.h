// SPDX-License-Identifier: Apache-2.0
// Reads a document block by block. The one place that reads standard input.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <memory>

#include "platform/system/Result.h"

namespace orvek {

/// One document being read. Owns the open file and holds one block of it at a time. Use it on one
/// thread. What fails says so with the document's name and the system's reason.
class DocumentReader {
 public:
  /// Opens `file`, or standard input. Fails with the system's reason.
  static Result<std::unique_ptr<DocumentReader>> open(const QString &file);

  /// The next block; empty at the end, and where standard input gave nothing for a tenth of a
  /// second. Fails with the system's reason.
  Result<QByteArray> read();
  bool atEnd() const { return m_atEnd; }

 private:
  explicit DocumentReader(const QString &file) : m_name(file), m_file(file) {}
  Result<QByteArray> readFile();
  Result<QByteArray> readStandardInput();

  QString m_name;
  QFile m_file;
  bool m_atEnd = false;
};

}  // namespace orvek
