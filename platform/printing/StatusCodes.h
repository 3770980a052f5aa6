// SPDX-License-Identifier: Apache-2.0
// Statuses of the printing platform: signed 32-bit, 0 for success.
#pragma once

#include <cstdint>

using OSStatus = std::int32_t;

inline constexpr OSStatus noErr = 0;

/// No such ticket, no such printer.
inline constexpr OSStatus kPMInvalidParameter = -50;

/// The PPD is not of the panel's own driver.
inline constexpr OSStatus kPMInvalidPDEContext = -9530;

/// A value without text or integer reading.
inline constexpr OSStatus kPMValueFormatError = -9560;

/// Another writer has locked the key.
inline constexpr OSStatus kPMLocked = -9561;
