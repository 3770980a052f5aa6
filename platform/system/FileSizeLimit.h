// SPDX-License-Identifier: Apache-2.0
// Limits on the size of files (ulimit -f), which end a program that does not know of them.
#pragma once

#include <csignal>

namespace orvek {

/// From here on a file that grows beyond the limit is a write that fails (EFBIG), not the end of
/// the program. Belongs at the beginning of main(). A handler: what is ignored would be ignored in
/// the programs that this one starts as well, and is so only where it was when this one began.
inline void outliveFileSizeLimits() {
  if (std::signal(SIGXFSZ, [](int) {}) == SIG_IGN) std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace orvek
