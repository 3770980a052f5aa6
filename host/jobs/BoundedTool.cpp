// SPDX-License-Identifier: Apache-2.0
// Time and output are watched from outside, memory by the system.

#include "host/jobs/BoundedTool.h"

#include <QElapsedTimer>
#include <QProcess>

#include "host/jobs/GuardedTool.h"
#include "host/jobs/ToolEnvironment.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 20;
// Whoever looks at a window has the first claim on the machine.
constexpr int niceness = 10;
// Nobody waits for what a tool would still do.
constexpr std::chrono::milliseconds grace{0};

Failure failed(const QString &program, const char *why) {
  return {FailureKind::Io, program, Phrase(why)};
}

/// Reads until the tool ends; false where it went beyond a limit or is no longer wanted.
bool readAll(QProcess &process, const ToolLimits &limits, const std::atomic<bool> &cancelled,
             QByteArray *output) {
  QElapsedTimer clock;
  clock.start();
  while (process.state() != QProcess::NotRunning) {
    if (cancelled || clock.elapsed() > limits.time.count()) return false;
    process.waitForReadyRead(pollMilliseconds);
    *output += process.readAllStandardOutput();
    if (output->size() > limits.outputBytes) return false;
  }
  *output += process.readAllStandardOutput();
  return output->size() <= limits.outputBytes;
}

}  // namespace

Result<QByteArray> runTool(const QString &program, const QStringList &arguments,
                           const ToolLimits &limits, const std::atomic<bool> &cancelled) {
  if (cancelled) return failed(program, "cancelled");
  GuardedTool tool;
  QProcess &process = tool.process();
  process.setProcessEnvironment(toolEnvironment());
  process.setStandardErrorFile(QProcess::nullDevice());
  const Status started = tool.start({program, arguments, grace, limits.memoryBytes, niceness});
  if (!started) return started.failure();
  QByteArray output;
  const bool isWhole = readAll(process, limits, cancelled, &output);
  tool.end();
  if (!isWhole) return failed(program, "took too much, or was ended");
  if (const Status could = tool.couldBeStarted(); !could) return could.failure();
  if (process.exitStatus() != QProcess::NormalExit) return failed(program, "crashed");
  return output;
}

}  // namespace orvek
