// SPDX-License-Identifier: Apache-2.0
// Standard input made a file: for those who need a name to read from, or to read it twice.
#pragma once

#include <QTemporaryFile>
#include <memory>

#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// Standard input copied into a temporary file, which it owns and which goes away with it. Holds
/// only one block of it in memory. May be handed from thread to thread, but used on one at a time.
/// Only fill() fails.
class InputSpool {
 public:
  /// Reads standard input to its end; once that was done there is nothing more to do. Fails where
  /// it is empty or can't be read, where the disk is full, and where the job is cancelled; what was
  /// read by then is lost, so every later call fails, too.
  Status fill(const JobControl &control);

  /// The file; null before fill() succeeded.
  QString path() const { return m_file ? m_file->fileName() : QString(); }

 private:
  std::unique_ptr<QTemporaryFile> m_file;
  bool m_isBroken = false;
};

}  // namespace orvek
