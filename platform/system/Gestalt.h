// SPDX-License-Identifier: Apache-2.0
// System-version selectors. This system has none of the versions they speak of, so each fails
// unless a test sets one.
#pragma once

#include <cstdint>

/// Selectors: four characters packed big-endian, 'sysv', 'sys1', 'sys2' and 'sys3'.
inline constexpr std::uint32_t gestaltSystemVersion = 0x73797376;
inline constexpr std::uint32_t gestaltSystemVersionMajor = 0x73797331;
inline constexpr std::uint32_t gestaltSystemVersionMinor = 0x73797332;
inline constexpr std::uint32_t gestaltSystemVersionBugFix = 0x73797333;

/// The result of a selector that nobody knows.
inline constexpr std::int32_t gestaltUndefSelectorErr = -5551;

/// Writes the selector's value into `response` (may be null) and gives 0; an unknown selector
/// leaves `response` alone and gives gestaltUndefSelectorErr.
std::int32_t Gestalt(std::uint32_t selector, std::int32_t *response);

namespace orvek {

/// From now on `selector` answers with `value`.
void setGestaltForTesting(std::uint32_t selector, std::int32_t value);

/// Every selector fails again.
void clearGestaltForTesting();

}  // namespace orvek
