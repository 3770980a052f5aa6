// SPDX-License-Identifier: Apache-2.0
// What must hold, and what holds of every failure.
#pragma once

#include <cstdlib>

#include "platform/system/OneLine.h"
#include "platform/system/Result.h"

namespace orvek::fuzz {

inline void require(bool holds) {
  if (!holds) std::abort();
}

/// The reason is there, and what is shown is one line: keys, words and files may hold anything, so
/// that all of it goes through oneLine().
inline void requireReason(const Failure &failure) {
  require(!failure.why.isEmpty());
  require(oneLine(failure.line().toStdString()).find('\n') == std::string::npos);
}

}  // namespace orvek::fuzz
