// SPDX-License-Identifier: Apache-2.0
// Which release of the system is running. Each answer is found once and then kept for the process.

#include "Common/Utilities.h"
#include "platform/system/Gestalt.h"

namespace {

constexpr std::int32_t lastNumberedMajor = 10;

/// Whether the system is newer than release 10.`minor`. Selectors that fail count as
/// release 10.4.0.
bool runningAfterMinor(std::int32_t minor) {
  std::int32_t major = lastNumberedMajor;
  std::int32_t ownMinor = 4;
  Gestalt(gestaltSystemVersionMajor, &major);
  Gestalt(gestaltSystemVersionMinor, &ownMinor);
  return major > lastNumberedMajor || (major == lastNumberedMajor && ownMinor > minor);
}

}  // namespace

bool RunningOn105OrLater() {
  return true;
}

bool RunningOn107OrLater() {
  static const bool tenSevenOrLater = runningAfterMinor(6);
  return tenSevenOrLater;
}

bool RunningOn1010OrLater() {
  static const bool tentenOrLater = runningAfterMinor(9);
  return tentenOrLater;
}
