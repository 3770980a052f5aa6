// SPDX-License-Identifier: Apache-2.0
// Times, and the lines of the table.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>

namespace bench {

/// Keeps the compiler from dropping what was computed.
template <class T>
void keep(const T &value) {
  asm volatile("" : : "r"(&value) : "memory");
}

inline double secondsOf(const std::function<void()> &work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

/// The seconds of two works, each the best of `rounds`. They take turns, so that a busy moment of
/// the machine hits both.
struct Pair {
  double own;
  double other;
};

inline Pair compare(int rounds, const std::function<void()> &own,
                    const std::function<void()> &other) {
  Pair best{1e9, 1e9};
  for (int round = 0; round < rounds; ++round) {
    best.own = std::min(best.own, secondsOf(own));
    best.other = std::min(best.other, secondsOf(other));
  }
  return best;
}

/// One line: what was done, against what, each time in `unit` ("ns" or "ms") per piece of work,
/// their ratio, and the most that the ratio should be (0: no goal).
inline void line(const std::string &what, const std::string &against, const Pair &pair,
                 double works, const char *unit, double goal) {
  const double scale = (std::string(unit) == "ns" ? 1e9 : 1e3) / works;
  const double ratio = pair.own / pair.other;
  std::printf("%-26s %-22s %10.2f %10.2f %-2s %6.2f", what.c_str(), against.c_str(),
              pair.own * scale, pair.other * scale, unit, ratio);
  if (goal > 0) std::printf("  <= %.2f %s", goal, ratio <= goal ? "met" : "MISSED");
  std::printf("\n");
  std::fflush(stdout);
}

void readers();
void checksum();
void fetch(const char *plainBase, const char *secureBase);
void echo(const char *program);

}  // namespace bench
