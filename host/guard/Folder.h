// SPDX-License-Identifier: Apache-2.0
// Folders for temporary files, and their removal.
#pragma once

#include <array>
#include <climits>

namespace orvek::guard {

/// Removes a folder and everything in it, if it is a folder of this user's own. Follows no link and
/// leaves what is mounted there alone.
void removeFolder(const char *path);

/// A folder for the temporary files of one tool, where TMPDIR says; it goes with the object.
class OwnFolder {
 public:
  /// From here on TMPDIR names it. Where none can be made TMPDIR stays: whoever writes there will
  /// say what is wrong with it.
  OwnFolder();
  ~OwnFolder();
  OwnFolder(const OwnFolder &) = delete;
  OwnFolder &operator=(const OwnFolder &) = delete;

 private:
  /// Empty: there is none.
  std::array<char, PATH_MAX> m_path{};
};

/// Waits until the other end of standard input is closed, then removes the folder. Nothing but
/// SIGKILL ends the wait: signals that end a program are meant for the one at the other end.
void keepFolder(const char *path);

}  // namespace orvek::guard
