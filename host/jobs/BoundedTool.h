// SPDX-License-Identifier: Apache-2.0
// Runs a tool on a document that nobody vouches for: in a process of its own, with limits.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <atomic>
#include <chrono>

#include "platform/system/Result.h"

namespace orvek {

/// What a tool may take. Beyond it the tool is ended, and what it gave is dropped. Plain data.
struct ToolLimits {
  std::chrono::milliseconds time{10000};
  /// Of standard output.
  qint64 outputBytes = 64 << 20;
  /// Of address space; 0: no limit.
  qint64 memoryBytes = 1LL << 30;
};

/// Runs `program` and gives its standard output, whatever its exit status. Blocks: for threads that
/// nobody waits for. The tool, and all that it starts, ends with the call: at a limit, soon after
/// `cancelled` was set, or should this program be killed. Its messages come in English, and are
/// dropped.
///
/// Failures: the tool can't be started; it crashed, or was ended for one of these reasons.
Result<QByteArray> runTool(const QString &program, const QStringList &arguments,
                           const ToolLimits &limits, const std::atomic<bool> &cancelled);

}  // namespace orvek
