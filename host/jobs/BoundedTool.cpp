// SPDX-License-Identifier: Apache-2.0
// Time and output are watched from outside, memory by the system.

#include "host/jobs/BoundedTool.h"

#include <sys/prctl.h>
#include <sys/resource.h>
#include <unistd.h>
#include <csignal>

#include <QElapsedTimer>
#include <QProcess>

#include "host/jobs/ToolEnvironment.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 20;
constexpr int graceMilliseconds = 2000;
constexpr int niceness = 10;

Failure failed(const QString &program, const char *why) {
  return {FailureKind::Io, program, Phrase(why)};
}

// Between fork and exec: nothing here may allocate.
void restrictSelf(qint64 memoryBytes) {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  // Whoever looks at a window has the first claim on the machine.
  ::setpriority(PRIO_PROCESS, 0, niceness);
  const rlimit noCore{0, 0};
  ::setrlimit(RLIMIT_CORE, &noCore);
  if (memoryBytes <= 0) return;
  const rlimit memory{static_cast<rlim_t>(memoryBytes), static_cast<rlim_t>(memoryBytes)};
  ::setrlimit(RLIMIT_AS, &memory);
}

void prepare(QProcess &process, const ToolLimits &limits) {
  process.setProcessEnvironment(toolEnvironment());
  process.setStandardInputFile(QProcess::nullDevice());
  process.setStandardErrorFile(QProcess::nullDevice());
  process.setChildProcessModifier([memory = limits.memoryBytes] { restrictSelf(memory); });
}

// The tool may have started others, and those may outlive it.
void stop(QProcess &process, pid_t group) {
  if (group > 0) ::kill(-group, SIGKILL);
  process.waitForFinished(graceMilliseconds);
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
  QProcess process;
  prepare(process, limits);
  process.start(program, arguments, QIODevice::ReadOnly);
  if (!process.waitForStarted()) return failed(program, "can't be started");
  const auto group = static_cast<pid_t>(process.processId());
  QByteArray output;
  const bool isWhole = readAll(process, limits, cancelled, &output);
  stop(process, group);
  if (!isWhole) return failed(program, "took too much, or was ended");
  if (process.exitStatus() != QProcess::NormalExit) return failed(program, "crashed");
  return output;
}

}  // namespace orvek
