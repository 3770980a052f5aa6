// SPDX-License-Identifier: Apache-2.0
// Documents that come once only made files: for those who need a name to read from, or to read them
// twice.
#pragma once

#include <QByteArray>
#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <optional>

#include "host/jobs/Document.h"
#include "host/jobs/JobRequest.h"
#include "host/jobs/ScratchFile.h"
#include "platform/system/Result.h"

namespace orvek {

/// Standard input, or a pipe, copied into a temporary file, which it owns and which goes away with
/// it, or with the program. Holds only one block of it in memory. May be handed from thread to
/// thread, but used on one at a time. Only fill() fails.
class InputSpool {
 public:
  explicit InputSpool(QString document = standardInput()) : m_document(std::move(document)) {}

  /// Reads the document to its end, `begin` before that: what has been read of it already. Once
  /// that was done there is nothing more to do. Fails where it is empty or can't be read, where the
  /// disk is full, and where the job is cancelled; what was read by then is lost, so every later
  /// call fails, too, and says why the first one did.
  Status fill(const std::atomic<bool> &cancelled, const QByteArray &begin = {});

  /// The file; null before fill() succeeded.
  QString path() const { return m_file ? m_file->path() : QString(); }

 private:
  QString m_document;
  std::unique_ptr<ScratchFile> m_file;
  /// Why there is no file, and never will be.
  std::optional<Failure> m_broken;
};

/// The documents of a job, each of them in a file. Keeps what it has copied; a second call for the
/// same documents gives the same files. For any thread: who comes while another one reads waits for
/// that.
class DocumentFiles {
 public:
  /// For every document a file with its bytes: its own, a copy where it comes once only, or what
  /// has replaced it. `beginOfStandardInput` has been read of that already. Fails as InputSpool
  /// does; as cancelled also where that was waited for.
  Result<QStringList> of(const QStringList &documents, const std::atomic<bool> &cancelled,
                         const QByteArray &beginOfStandardInput = {});
  Result<QStringList> of(const QStringList &documents, const JobControl &control,
                         const QByteArray &beginOfStandardInput = {}) {
    return of(documents, control.cancelled, beginOfStandardInput);
  }

  /// From now on this file stands for the document: a copy that the filters can open.
  void replace(const QString &document, std::shared_ptr<ScratchFile> file);

 private:
  std::timed_mutex m_mutex;
  std::map<QString, InputSpool> m_copies;
  std::map<QString, std::shared_ptr<ScratchFile>> m_replaced;
};

}  // namespace orvek
