// SPDX-License-Identifier: Apache-2.0
// Large pages by madvise(2), for the whole large pages inside a range.

#include "platform/system/LargePages.h"

#include <sys/mman.h>

#include <cstdint>

namespace orvek {

void preferLargePages(void *begin, std::size_t size) {
  constexpr std::uintptr_t largePage = 2 << 20;
  const auto address = reinterpret_cast<std::uintptr_t>(begin);
  const std::uintptr_t first = (address + largePage - 1) / largePage * largePage;
  const std::uintptr_t end = (address + size) / largePage * largePage;
  if (first >= end) return;
  madvise(static_cast<char *>(begin) + (first - address), end - first, MADV_HUGEPAGE);
}

}  // namespace orvek
