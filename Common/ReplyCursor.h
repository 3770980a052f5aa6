// SPDX-License-Identifier: Apache-2.0
// A position in a DNS reply that knows where the reply ends. All reading of replies goes through
// it: nothing else follows a pointer into bytes that came from the network.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace orvek {

/// A position may stand anywhere, also before or behind the reply; reading there is refused. Never
/// allocates. The reply is borrowed.
class ReplyCursor {
 public:
  using Offset = std::int64_t;

  /// `at` is a place in the reply of `length` bytes at `start`, or anywhere else. A null `start` or
  /// a negative `length` makes an empty reply.
  ReplyCursor(const unsigned char *start, int length, const unsigned char *at)
      : m_start(start),
        m_length(start == nullptr || length < 0 ? 0 : length),
        m_at(at == nullptr ? outside : distance(start, at)) {}

  Offset offset() const { return m_at; }

  /// The place as the caller's kind of pointer.
  const unsigned char *position() const { return m_start + m_at; }

  /// Whether there is a byte to read here.
  bool inside() const {
    return static_cast<std::uint64_t>(m_at) < static_cast<std::uint64_t>(m_length);
  }

  /// Whether at least `count` bytes lie between here and the end of the reply.
  bool holds(Offset count) const { return m_at >= 0 && count <= m_length - m_at; }

  /// How many bytes lie between here and the end of the reply; 0 behind it.
  Offset remaining() const { return inside() ? m_length - m_at : 0; }

  void moveTo(Offset offset) { m_at = offset; }
  void advance(Offset count) { m_at += count; }

  /// The byte here. Only where inside().
  std::uint8_t byte() const { return m_start[m_at]; }

  /// The two bytes `ahead` of here as a big-endian number. Only where holds(ahead + 2).
  std::uint16_t number16(Offset ahead) const {
    return static_cast<std::uint16_t>((m_start[m_at + ahead] << 8) | m_start[m_at + ahead + 1]);
  }

  /// Copies `count` bytes from `ahead` of here. Only where holds(ahead + count).
  void copy(Offset ahead, Offset count, void *to) const {
    std::memcpy(to, m_start + m_at + ahead, static_cast<std::size_t>(count));
  }

  /// How many of the `count` bytes from `ahead` of here come before the first zero byte. Only where
  /// holds(ahead + count).
  Offset textLength(Offset ahead, Offset count) const {
    const unsigned char *text = m_start + m_at + ahead;
    const void *zero = std::memchr(text, 0, static_cast<std::size_t>(count));
    return zero == nullptr ? count : static_cast<const unsigned char *>(zero) - text;
  }

 private:
  static constexpr Offset outside = -1;

  // The pointers need not belong to one array, so they are compared as addresses.
  static Offset distance(const unsigned char *from, const unsigned char *to) {
    return static_cast<Offset>(reinterpret_cast<std::uintptr_t>(to) -
                               reinterpret_cast<std::uintptr_t>(from));
  }

  const unsigned char *m_start;
  Offset m_length;
  Offset m_at;
};

}  // namespace orvek
