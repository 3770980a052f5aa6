// SPDX-License-Identifier: Apache-2.0
// Files that are gone when the driver is, in the folder that TMPDIR names.
#pragma once

#include <sys/types.h>

#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

#include "platform/system/Result.h"

namespace orvek::driver {

struct CloseFile {
  void operator()(std::FILE *file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

/// A file for reading and writing that has no name: however the driver ends, nothing stays.
Result<File> namelessFile();

/// A nameless file with everything that a descriptor still has to give, ready to be read. `name`:
/// what a failure calls it.
Result<File> spooled(int descriptor, const std::string &name);

/// Writes on to another descriptor everything that one still gives, until the job is cancelled.
/// Gives the number of bytes. Fails where there is no room for it, or nobody who takes it.
Result<std::uintmax_t> copyUntilCancelled(int from, int to);

/// The bytes from some place of a file on, wherever it is being read; fewer where it is shorter.
/// `name`: what a failure calls it.
Result<std::string> beginningOf(int file, off_t place, std::size_t most, const std::string &name);

/// Writes everything from a file's descriptor on to another.
Status copyOut(std::FILE *file, int descriptor);

/// Opens a file for reading.
Result<File> openedFile(const std::string &path);

/// A file with a name, for programs that take nothing else. Goes with the object, and when the job
/// is cancelled; one at a time.
class NamedFile {
 public:
  NamedFile(const NamedFile &) = delete;
  NamedFile &operator=(const NamedFile &) = delete;
  ~NamedFile();

  static Result<std::unique_ptr<NamedFile>> with(const std::string &contents);
  const std::string &path() const { return m_path; }

 private:
  explicit NamedFile(std::string path);
  std::string m_path;
};

}  // namespace orvek::driver
