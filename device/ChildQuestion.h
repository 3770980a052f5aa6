// SPDX-License-Identifier: Apache-2.0
// A question to the network whose answer may end the process that asks, asked in another process.
#pragma once

#include <QByteArray>
#include <functional>
#include <optional>

namespace orvek::device {

/// Calls `question` in a child process and gives what it returned. Nothing where the child ended
/// without an answer, or there could be none. The child says nothing on the standard error, leaves
/// no memory image behind, and ends with this process.
std::optional<QByteArray> askInChild(const std::function<QByteArray()> &question);

}  // namespace orvek::device
