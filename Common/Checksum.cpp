// SPDX-License-Identifier: Apache-2.0
// The Internet checksum. One's complement addition may be done in any word size and order (RFC
// 1071, section 2), so it runs over 64-bit words in four independent sums.

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#include "Common/SimplePing.h"

namespace {

constexpr std::size_t wordSize = sizeof(std::uint64_t);
constexpr std::size_t sums = 4;

std::uint64_t wordAt(const unsigned char *bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, wordSize);
  return word;
}

/// One's complement addition: the carry comes back in at the low end.
std::uint64_t plus(std::uint64_t a, std::uint64_t b) {
  const std::uint64_t sum = a + b;
  return sum + (sum < a ? 1 : 0);
}

/// The last bytes, fewer than a word, with zeroes behind them. A zero adds nothing, and an odd byte
/// keeps the place it has in memory.
std::uint64_t partialWord(const unsigned char *bytes, std::size_t length) {
  std::uint64_t word = 0;
  std::memcpy(&word, bytes, length);
  return word;
}

std::uint16_t folded(std::uint64_t sum) {
  const auto high = static_cast<std::uint32_t>(sum >> 32);
  std::uint32_t half = static_cast<std::uint32_t>(sum) + high;
  half += half < high ? 1 : 0;
  const std::uint32_t folds = (half & 0xFFFF) + (half >> 16);
  return static_cast<std::uint16_t>((folds & 0xFFFF) + (folds >> 16));
}

}  // namespace

unsigned short in_cksum(const void *bytes, int length) {
  if (bytes == nullptr || length < 1) return 0xFFFF;
  const auto *at = static_cast<const unsigned char *>(bytes);
  auto left = static_cast<std::size_t>(length);
  std::array<std::uint64_t, sums> sum{};
  for (; left >= sums * wordSize; at += sums * wordSize, left -= sums * wordSize) {
    sum[0] = plus(sum[0], wordAt(at));
    sum[1] = plus(sum[1], wordAt(at + wordSize));
    sum[2] = plus(sum[2], wordAt(at + 2 * wordSize));
    sum[3] = plus(sum[3], wordAt(at + 3 * wordSize));
  }
  std::uint64_t total = plus(plus(sum[0], sum[1]), plus(sum[2], sum[3]));
  for (; left >= wordSize; at += wordSize, left -= wordSize) total = plus(total, wordAt(at));
  if (left > 0) total = plus(total, partialWord(at, left));
  return static_cast<unsigned short>(~folded(total));
}
