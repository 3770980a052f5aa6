// SPDX-License-Identifier: Apache-2.0
// The tick counter, from the clock that nobody can set.

#include "platform/system/TickCount.h"

#include <ctime>

std::uint32_t TickCount() {
  constexpr std::uint64_t nanosecondsPerSecond = 1000000000;
  timespec now{};
  clock_gettime(CLOCK_MONOTONIC, &now);
  const std::uint64_t ticks =
      static_cast<std::uint64_t>(now.tv_sec) * ticksPerSecond +
      static_cast<std::uint64_t>(now.tv_nsec) * ticksPerSecond / nanosecondsPerSecond;
  return static_cast<std::uint32_t>(ticks);
}
