// SPDX-License-Identifier: Apache-2.0
// Everything that a tool has started, and its end.
#pragma once

#include <sys/types.h>

namespace orvek::guard {

/// A tool and all that descends from it. The process that has one has become the parent of whatever
/// is left of it without a parent, and starts nothing else.
class ProcessTree {
 public:
  /// From here on orphans among this process' descendants become its children.
  static void adoptOrphans();

  /// `tool` leads a process group of its own.
  explicit ProcessTree(pid_t tool) : m_tool(tool) {}

  /// Takes the status of whatever has ended; whether anything is left.
  bool isAlive();

  /// Whether the tool itself has ended, as isAlive() has found.
  bool hasToolEnded() const { return m_hasEnded; }
  /// As wait(2) gives it.
  int toolStatus() const { return m_status; }

  /// Ends all of it: SIGTERM, and SIGKILL after `graceMilliseconds`. Waits until nothing is left,
  /// or, for what not even the system can end now, some seconds.
  void end(int graceMilliseconds);

 private:
  void signalAll(int signal) const;

  pid_t m_tool;
  int m_status = 0;
  bool m_hasEnded = false;
};

}  // namespace orvek::guard
