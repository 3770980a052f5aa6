// SPDX-License-Identifier: Apache-2.0
// Keeps the running program's information dictionary.

#include "platform/system/MainBundle.h"

#include <utility>

namespace orvek {
namespace {

std::optional<QJsonObject> &stored() {
  static std::optional<QJsonObject> info;
  return info;
}

}  // namespace

const std::optional<QJsonObject> &mainBundleInfo() {
  return stored();
}

void setMainBundleInfo(std::optional<QJsonObject> info) {
  stored() = std::move(info);
}

}  // namespace orvek
