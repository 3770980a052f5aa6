// SPDX-License-Identifier: Apache-2.0
// How much more memory a test's process has needed at its peak.
#pragma once

#include <sys/resource.h>

namespace orvek::test {

/// The sanitizer keeps freed memory, so growth says nothing there.
#if defined(ORVEK_SANITIZED)
inline constexpr bool memoryCanBeMeasured = false;
#else
inline constexpr bool memoryCanBeMeasured = true;
#endif

/// The process's largest resident size so far, in bytes.
inline long peakMemory() {
  constexpr long kilobyte = 1024;
  struct rusage usage {};
  ::getrusage(RUSAGE_SELF, &usage);
  return usage.ru_maxrss * kilobyte;
}

}  // namespace orvek::test
