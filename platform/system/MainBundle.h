// SPDX-License-Identifier: Apache-2.0
// The information dictionary of the running process: who is it that shows the print dialog?
#pragma once

#include <QJsonObject>
#include <optional>

namespace orvek {

/// The key under which a program's dictionary names its executable.
inline constexpr const char *kCFBundleExecutableKey = "CFBundleExecutable";

/// The dictionary the program gave itself, or nothing where it gave none.
const std::optional<QJsonObject> &mainBundleInfo();

/// A program calls this once at its start; an empty optional takes the dictionary away again.
void setMainBundleInfo(std::optional<QJsonObject> info);

}  // namespace orvek
