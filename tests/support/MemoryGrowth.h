// SPDX-License-Identifier: Apache-2.0
// How much more memory a test's process has needed at its peak.
#pragma once

#include <sys/resource.h>

namespace orvek::testing {

/// The sanitizer keeps freed memory, so growth says nothing there.
#if defined(__SANITIZE_ADDRESS__)
inline constexpr bool kMemoryCanBeMeasured = false;
#else
inline constexpr bool kMemoryCanBeMeasured = true;
#endif

/// The process's largest resident size so far, in bytes.
inline long peakMemory() {
  constexpr long kKilobyte = 1024;
  struct rusage usage {};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss * kKilobyte;
}

}  // namespace orvek::testing
