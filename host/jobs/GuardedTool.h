// SPDX-License-Identifier: Apache-2.0
// A tool that works for this program in processes of its own, and never outlives it.
#pragma once

#include <QProcess>
#include <QString>
#include <QStringList>
#include <chrono>

#include "platform/system/Result.h"

namespace orvek {

/// How a tool is run. Plain data.
struct GuardedRun {
  QString program;
  QStringList arguments;
  /// What it has from SIGTERM to SIGKILL where it is ended early, and all that it started with it.
  std::chrono::milliseconds grace{0};
  /// Of address space; 0: no limit.
  qint64 memoryBytes = 0;
  /// Beyond this program's own.
  int niceness = 0;
};

/// The path of the program that runs tools: it becomes the parent of whatever they leave behind,
/// and ends all of it when this program ends, even if that is killed. It gives them a folder for
/// their temporary files, which goes with them, and has no image of their memory written.
QString guardPath();

/// A running tool, which it owns: destroying it ends the tool. Use it on one thread.
class GuardedTool {
 public:
  GuardedTool() = default;
  ~GuardedTool() { end(); }
  GuardedTool(const GuardedTool &) = delete;
  GuardedTool &operator=(const GuardedTool &) = delete;

  /// The tool's process as far as anybody can see: its output, its messages and its end. What it
  /// finds in its environment and where its messages go is to be set before start(). Its standard
  /// input has nothing in it and stays with this object.
  QProcess &process() { return m_process; }

  /// Fails where the guard or the tool is not there.
  Status start(const GuardedRun &run);

  /// Ends the tool and all that it has started, and waits for that; what it still writes is
  /// dropped. Nothing is left to do where it has ended by itself.
  void end();

  /// Of a tool that has ended by itself: success, or why it never was started.
  Status couldBeStarted() const;

 private:
  QProcess m_process;
  QString m_program;
  std::chrono::milliseconds m_grace{0};
};

}  // namespace orvek
