// SPDX-License-Identifier: Apache-2.0
// Writing to a descriptor to the last byte, or to the system's reason why not.
#pragma once

#include <poll.h>
#include <unistd.h>

#include <QByteArray>
#include <cerrno>

namespace orvek {

/// Writes all of `bytes`; waits where the descriptor takes none at once. The system's error number,
/// 0 where all bytes were taken.
inline int writeAll(int descriptor, const QByteArray &bytes) {
  constexpr int forEver = -1;
  qsizetype done = 0;
  while (done < bytes.size()) {
    const auto left = static_cast<size_t>(bytes.size() - done);
    const ssize_t taken = ::write(descriptor, bytes.constData() + done, left);
    if (taken >= 0) {
      done += taken;
    } else if (errno == EAGAIN) {
      pollfd ready{descriptor, POLLOUT, 0};
      ::poll(&ready, 1, forEver);
    } else if (errno != EINTR) {
      return errno;
    }
  }
  return 0;
}

}  // namespace orvek
