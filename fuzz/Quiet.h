// SPDX-License-Identifier: Apache-2.0
// Diagnostics of a million inputs are worth nothing: the standard streams lead nowhere while
// fuzzing.
#pragma once

#include <cstdio>

inline void keepQuiet() {
  static const bool quiet = std::freopen("/dev/null", "w", stdout) != nullptr;
  (void)quiet;
}

/// What is logged, too. Reports of the sanitizers go past it, and those of whoever kept the stream.
inline void keepLogQuiet() {
  static std::FILE *const nowhere = std::fopen("/dev/null", "w");
  if (nowhere != nullptr) stderr = nowhere;
}
