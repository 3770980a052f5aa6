// SPDX-License-Identifier: Apache-2.0
// Times, and the lines of the table.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

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

/// The medians of two works that say themselves how long they took, in seconds. They take turns.
inline Pair compareMedians(int rounds, const std::function<double()> &own,
                           const std::function<double()> &other) {
  std::vector<double> ownTimes;
  std::vector<double> otherTimes;
  for (int round = 0; round < rounds; ++round) {
    ownTimes.push_back(own());
    otherTimes.push_back(other());
  }
  const auto median = [](std::vector<double> &times) {
    std::sort(times.begin(), times.end());
    return times[times.size() / 2];
  };
  return {median(ownTimes), median(otherTimes)};
}

inline void head() {
  std::printf("%-36s %-22s %10s %10s %-2s %6s  goal\n", "work", "against", "ours", "theirs", "",
              "ratio");
}

/// One line: what was done, against what, each time in `unit` ("ns", "us" or "ms") per piece of
/// work, their ratio, and the most that the ratio should be (0: no goal).
inline void line(const std::string &what, const std::string &against, const Pair &pair,
                 double works, const char *unit, double goal) {
  const double scale = (*unit == 'n' ? 1e9 : *unit == 'u' ? 1e6 : 1e3) / works;
  const double ratio = pair.own / pair.other;
  std::printf("%-36s %-22s %10.2f %10.2f %-2s %6.2f", what.c_str(), against.c_str(),
              pair.own * scale, pair.other * scale, unit, ratio);
  if (goal > 0) std::printf("  <= %.2f %s", goal, ratio <= goal ? "met" : "MISSED");
  std::printf("\n");
  std::fflush(stdout);
}

}  // namespace bench
