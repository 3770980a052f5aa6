// SPDX-License-Identifier: Apache-2.0
// Chance for tests that is the same on every machine.
#pragma once

#include <QString>
#include <cstddef>
#include <initializer_list>
#include <random>
#include <vector>

namespace orvek::test {

/// Falls alike for the same seed, whichever standard library there is: the standard's own
/// distributions differ between them, its generator does not.
class Dice {
 public:
  explicit Dice(unsigned seed) : m_random(seed) {}

  /// From 0 to `end`, that one left out.
  int below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }
  int from(int first, int last) { return first + below(last - first + 1); }
  bool oneIn(int count) { return below(count) == 0; }

  /// One of the values.
  template <typename T>
  T any(std::initializer_list<T> values) {
    return values.begin()[below(static_cast<int>(values.size()))];
  }
  template <typename T>
  T any(const std::vector<T> &values) {
    return values[static_cast<std::size_t>(below(static_cast<int>(values.size())))];
  }
  QString word(std::initializer_list<const char *> words) { return QLatin1String(any(words)); }

 private:
  std::mt19937 m_random;
};

}  // namespace orvek::test
