// SPDX-License-Identifier: Apache-2.0
// Documents that come once only made files: for those who need a name to read from, or to read them
// twice.
#pragma once

#include <QByteArray>
#include <QTemporaryFile>
#include <map>
#include <memory>

#include "host/jobs/Document.h"
#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// Standard input, or a pipe, copied into a temporary file, which it owns and which goes away with
/// it. Holds only one block of it in memory. May be handed from thread to thread, but used on one
/// at a time. Only fill() fails.
class InputSpool {
 public:
  explicit InputSpool(QString document = standardInput()) : m_document(std::move(document)) {}

  /// Reads the document to its end, `begin` before that: what has been read of it already. Once
  /// that was done there is nothing more to do. Fails where it is empty or can't be read, where the
  /// disk is full, and where the job is cancelled; what was read by then is lost, so every later
  /// call fails, too.
  Status fill(const JobControl &control, const QByteArray &begin = {});

  /// The file; null before fill() succeeded.
  QString path() const { return m_file ? m_file->fileName() : QString(); }

 private:
  QString m_document;
  std::unique_ptr<QTemporaryFile> m_file;
  bool m_isBroken = false;
};

/// The documents of a job, each of them in a file. Keeps what it has copied; a second call for the
/// same documents gives the same files. Used on one thread at a time.
class DocumentFiles {
 public:
  /// For every document a file with its bytes: its own, or a copy where it comes once only.
  /// `beginOfStandardInput` has been read of that already. Fails as InputSpool does.
  Result<QStringList> of(const QStringList &documents, const JobControl &control,
                         const QByteArray &beginOfStandardInput = {});

 private:
  std::map<QString, InputSpool> m_copies;
};

}  // namespace orvek
