// SPDX-License-Identifier: Apache-2.0
// The system's tick counter: 60 ticks a second.
#pragma once

#include <cstdint>

inline constexpr std::uint32_t ticksPerSecond = 60;

/// Ticks since the system started. Never goes back, except that it wraps to 0 after 2^32 ticks
/// (some 828 days).
std::uint32_t TickCount();
