// SPDX-License-Identifier: Apache-2.0
// The tool's standard input leads to the guard alone: that it is closed is what the guard hears of
// this program's end, and of the wish that the tool's should come.

#include "host/jobs/GuardedTool.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <cerrno>

#include "host/jobs/GuardCall.h"
#include "platform/system/SocketProgram.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;

/// What the guard may take beyond the grace that the tool has.
constexpr auto farewell = 3s;

// Ctrl-C at the terminal is for this program; the guard learns of it from its end.
void leadOwnSession() {
  ::setsid();
}

QString pathOf(const QString &program) {
  return program.contains(u'/') ? QFileInfo(program).absoluteFilePath()
                                : QStandardPaths::findExecutable(program);
}

QStringList guardArguments(const GuardedRun &run, const QString &path) {
  return QStringList{QLatin1String(guard::runWord), QString::number(run.grace.count()),
                     QString::number(run.memoryBytes), QString::number(run.niceness), path} +
         run.arguments;
}

}  // namespace

QString guardPath() {
  return QDir::cleanPath(QFile::decodeName(helperProgram("orvek-filter-guard").c_str()));
}

Status GuardedTool::start(const GuardedRun &run) {
  m_program = run.program;
  m_grace = run.grace;
  const QString path = pathOf(run.program);
  if (path.isEmpty()) {
    return Failure{FailureKind::Io, run.program, Phrase::ofSystem(ENOENT)};
  }
  const QString guard = guardPath();
  m_process.setChildProcessModifier(leadOwnSession);
  m_process.start(guard, guardArguments(run, path));
  if (m_process.waitForStarted()) return {};
  const bool isThere = ::access(QFile::encodeName(guard).constData(), X_OK) == 0;
  return Failure{FailureKind::Io, guard,
                 isThere ? Phrase::ofSystem(m_process.errorString()) : Phrase::ofSystem(errno)};
}

void GuardedTool::end() {
  if (m_process.state() == QProcess::NotRunning) return;
  m_process.closeReadChannel(QProcess::StandardOutput);
  m_process.closeReadChannel(QProcess::StandardError);
  m_process.closeWriteChannel();
  m_process.waitForFinished(static_cast<int>((m_grace + farewell) / 1ms));
}

Status GuardedTool::couldBeStarted() const {
  if (m_process.exitStatus() != QProcess::NormalExit || m_process.exitCode() != guard::noTool) {
    return {};
  }
  const bool mayRun = ::access(QFile::encodeName(m_program).constData(), X_OK) == 0;
  return Failure{FailureKind::Io, m_program, Phrase::ofSystem(mayRun ? ENOEXEC : errno)};
}

}  // namespace orvek
