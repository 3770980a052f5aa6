// SPDX-License-Identifier: Apache-2.0
// One tool at work.
#pragma once

#include <sys/resource.h>

namespace orvek::guard {

/// What is to be run and within which bounds; as in host/jobs/GuardCall.h. Borrows its words.
struct ToolCall {
  int graceMilliseconds = 0;
  /// 0: no limit.
  rlim_t memoryBytes = 0;
  int niceness = 0;
  /// The program's path and its arguments, with a null pointer behind them.
  char **words = nullptr;
};

/// Runs the tool until it ends, or until standard input is closed at its other end or this process
/// is told to end; then nothing of it is left, and neither are its temporary files. Gives the
/// tool's exit status, and ends this process by the same signal where the tool was ended by one.
int runTool(const ToolCall &call);

}  // namespace orvek::guard
