// SPDX-License-Identifier: Apache-2.0
// The answers of a DNS reply as lines of text.
#pragma once

#include <span>
#include <string>
#include <vector>

namespace orvek::device {

/// One line per record of the reply's answer section, as far as it can be read:
/// `NAME SRV PRIORITY WEIGHT PORT TARGET`, `NAME TXT "STRING" ...`, else `NAME TYPEn \# LENGTH HEX`
/// (RFC 3597). Control characters show as `\DDD`; in a string also `\"` and `\\`.
std::vector<std::string> describeAnswers(std::span<const unsigned char> reply);

}  // namespace orvek::device
