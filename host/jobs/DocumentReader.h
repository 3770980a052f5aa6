// SPDX-License-Identifier: Apache-2.0
// Reads a document block by block. The one place that reads standard input and pipes.
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
  /// Opens `file`, or standard input. A pipe that nobody writes to yet is open, too. Fails with the
  /// system's reason.
  static Result<std::unique_ptr<DocumentReader>> open(const QString &file);

  /// The next block; empty at the end, and where standard input or a pipe gave nothing for a tenth
  /// of a second. Fails with the system's reason.
  Result<QByteArray> read();
  bool atEnd() const { return m_atEnd; }

  ~DocumentReader();
  DocumentReader(const DocumentReader &) = delete;
  DocumentReader &operator=(const DocumentReader &) = delete;

 private:
  explicit DocumentReader(const QString &file) : m_name(file), m_file(file) {}
  Result<QByteArray> readFile();
  Result<QByteArray> readStream();

  QString m_name;
  QFile m_file;
  /// Of what comes once; -1: a plain file. Standard input's stays open.
  int m_stream = -1;
  bool m_atEnd = false;
};

}  // namespace orvek
