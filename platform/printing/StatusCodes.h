// SPDX-License-Identifier: Apache-2.0
// Statuses of the printing platform: signed 32-bit, 0 for success.
#pragma once

#include <cstdint>

using OSStatus = std::int32_t;

inline constexpr OSStatus noErr = 0;
inline constexpr OSStatus kPMInvalidParameter = -50;  ///< no such ticket, no such printer
inline constexpr OSStatus kPMInvalidPDEContext =
    -9530;  ///< the PPD is not of the panel's own driver
inline constexpr OSStatus kPMValueFormatError = -9560;  ///< a value without text or integer reading
inline constexpr OSStatus kPMLocked = -9561;            ///< another writer has locked the key
