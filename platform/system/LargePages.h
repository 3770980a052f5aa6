// SPDX-License-Identifier: Apache-2.0
// Fewer page faults for memory that will be filled from front to back.
#pragma once

#include <cstddef>

namespace orvek {

/// Asks the system to back the `size` bytes at `begin`, part of one allocation and not filled yet,
/// with large pages as they are touched. A hint: nothing else changes, and small ranges are left
/// alone.
void preferLargePages(void *begin, std::size_t size);

}  // namespace orvek
