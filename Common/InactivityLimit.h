// SPDX-License-Identifier: Apache-2.0
// How long a fetch goes on without data, in ticks of a counter that may wrap.
#pragma once

#include <cstdint>

namespace orvek {

/// Two seconds since the last mark. Ticks are handed in, so that it knows no clock.
class InactivityLimit {
 public:
  static constexpr std::uint32_t limit = 120;

  explicit InactivityLimit(std::uint32_t now) : m_mark(now) {}

  /// Something came: the limit counts from now on.
  void mark(std::uint32_t now) { m_mark = now; }

  /// Whether `now` is still within the limit. Where the counter has wrapped below the mark, the
  /// limit counts from the wrap.
  bool holds(std::uint32_t now) {
    if (now < m_mark) m_mark = 0;
    return now - m_mark <= limit;
  }

 private:
  std::uint32_t m_mark;
};

}  // namespace orvek
