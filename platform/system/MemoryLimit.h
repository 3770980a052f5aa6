// SPDX-License-Identifier: Apache-2.0
// A bound on what a program takes, whatever it is given to read.
#pragma once

#include <sys/resource.h>

#include <cstdint>

namespace orvek {

/// From here on asking for more than so many bytes fails, in this program and in those that it
/// starts. Belongs at the beginning of main(). Nothing happens where memory errors are looked for:
/// that takes far more than a program does.
inline void limitMemory([[maybe_unused]] std::uint64_t bytes) {
#if !defined(ORVEK_SANITIZED)
  const rlimit memory{bytes, bytes};
  ::setrlimit(RLIMIT_AS, &memory);
#endif
}

}  // namespace orvek
