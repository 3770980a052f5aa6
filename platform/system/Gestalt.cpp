// SPDX-License-Identifier: Apache-2.0
// System-version selectors, and what tests pretend them to be.

#include "platform/system/Gestalt.h"

#include <map>

namespace {

std::map<std::uint32_t, std::int32_t> &pretended() {
  static std::map<std::uint32_t, std::int32_t> values;
  return values;
}

}  // namespace

std::int32_t Gestalt(std::uint32_t selector, std::int32_t *response) {
  const auto found = pretended().find(selector);
  if (found == pretended().end()) return gestaltUndefSelectorErr;
  if (response != nullptr) *response = found->second;
  return 0;
}

namespace orvek {

void setGestaltForTesting(std::uint32_t selector, std::int32_t value) {
  pretended()[selector] = value;
}

void clearGestaltForTesting() {
  pretended().clear();
}

}  // namespace orvek
