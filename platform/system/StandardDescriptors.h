// SPDX-License-Identifier: Apache-2.0
// Standard input, output and error of a program that may have been started without them.
#pragma once

#include <fcntl.h>
#include <unistd.h>

namespace orvek {

/// Opens those of the descriptors 0 to 2 that are closed, such that reading from the first and
/// writing to the others fail; programs started from here have it likewise. Belongs at the
/// beginning of main(): the next file that is opened would get such a number, and what is meant for
/// standard output would end in it.
inline void openStandardDescriptors() {
  for (const int descriptor : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
    if (::fcntl(descriptor, F_GETFD) >= 0) continue;
    // The lowest free number is given out, which is this one.
    const int wrongWay = descriptor == STDIN_FILENO ? O_WRONLY : O_RDONLY;
    if (::open("/dev/null", wrongWay) < 0) ::open("/", O_PATH);
  }
}

/// Whether a descriptor is open for reading.
inline bool isReadable(int descriptor) {
  const int flags = ::fcntl(descriptor, F_GETFL);
  return flags >= 0 && (flags & O_PATH) == 0 && (flags & O_ACCMODE) != O_WRONLY;
}

/// Whether a descriptor is open for writing.
inline bool isWritable(int descriptor) {
  const int flags = ::fcntl(descriptor, F_GETFL);
  return flags >= 0 && (flags & O_PATH) == 0 && (flags & O_ACCMODE) != O_RDONLY;
}

}  // namespace orvek
