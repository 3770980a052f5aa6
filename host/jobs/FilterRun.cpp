// SPDX-License-Identifier: Apache-2.0
// Starts a program and carries its output to the target. The output passes through here rather than
// straight into the file: filters don't notice a full disk, the write here does.

#include "host/jobs/FilterRun.h"

#include <sys/prctl.h>
#include <unistd.h>
#include <csignal>

#include <QFileInfo>
#include <QProcess>

#include "host/jobs/FilterMessages.h"
#include "host/jobs/OptionText.h"
#include "host/jobs/ToolEnvironment.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 100;
constexpr int graceMilliseconds = 2000;

/// A process group of its own, so that a cancelled job takes all its filters with it; and never
/// left behind should this program be killed.
void leadOwnGroup() {
  ::setpgid(0, 0);
  ::prctl(PR_SET_PDEATHSIG, SIGTERM);
}

void stop(QProcess &process) {
  const auto group = static_cast<pid_t>(process.processId());
  if (group <= 0) return;
  ::kill(-group, SIGTERM);
  process.waitForFinished(graceMilliseconds);
  // The tool may be gone while a filter that does not listen goes on.
  ::kill(-group, SIGKILL);
  process.waitForFinished(graceMilliseconds);
}

Status carryOutput(FilterRun &run, QProcess &process, FilterMessages &messages) {
  messages.add(process.readAllStandardError());
  const QByteArray bytes = process.readAllStandardOutput();
  const Status written =
      bytes.isEmpty() ? Status()
                      : run.target.write(bytes, [&run] { return !run.control.cancelled.load(); });
  run.progress.bytes += bytes.size();
  run.progress.pages = run.pagesOfEarlierDocuments + messages.pages();
  run.control.report(run.progress);
  return written;
}

Status carryUntilFinished(FilterRun &run, QProcess &process, FilterMessages &messages) {
  while (process.state() != QProcess::NotRunning) {
    if (run.control.cancelled) return jobCancelled();
    process.waitForReadyRead(pollMilliseconds);
    if (Status carried = carryOutput(run, process, messages); !carried) return carried;
  }
  if (Status carried = carryOutput(run, process, messages); !carried) return carried;
  return run.control.cancelled ? Status(jobCancelled()) : Status();
}

void prepare(QProcess &process, const FilterProgram &program) {
  auto environment = toolEnvironment();
  for (auto entry = program.environment.cbegin(); entry != program.environment.cend(); ++entry) {
    environment.insert(entry.key(), entry.value());
  }
  process.setProcessEnvironment(environment);
  process.setChildProcessModifier(leadOwnGroup);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setProgram(program.path);
  process.setArguments(program.arguments);
}

}  // namespace

Status runFilters(FilterRun &run, const FilterProgram &program, const Phrase &document) {
  QProcess process;
  FilterMessages messages;
  prepare(process, program);
  const qint64 bytesBefore = run.progress.bytes;
  process.start();
  if (!process.waitForStarted()) {
    return Failure{FailureKind::Io, program.path, Phrase::ofSystem(process.errorString())};
  }
  if (Status carried = carryUntilFinished(run, process, messages); !carried) {
    stop(process);
    return carried;
  }
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    return messages.reason(document, run.ppdFile, process.exitCode());
  }
  if (run.progress.bytes == bytesBefore) {
    return Failure{FailureKind::Io, document,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filters made no output of it"))};
  }
  run.pagesOfEarlierDocuments = run.progress.pages;
  return {};
}

FilterProgram filterToolCall(const JobRequest &request, const QString &tool, const QString &ppd,
                             const QString &format, const QString &document) {
  // -e: without it the printer's own filters are left out and the output is not device-ready.
  QStringList arguments{
      QStringLiteral("-e"), QStringLiteral("-p"),   ppd, QStringLiteral("-m"), format,
      QStringLiteral("-t"), effectiveTitle(request)};
  if (!request.user.isEmpty()) arguments << QStringLiteral("-U") << request.user;
  auto options = effectiveOptions(request);
  // Filters are told the copies apart from the options, and some multiply them if told both ways.
  const QString copies = valueNamed(options, u"copies").value_or(QString());
  removeNamed(&options, u"copies");
  if (!copies.isEmpty()) arguments << QStringLiteral("-n") << copies;
  for (auto option = options.cbegin(); option != options.cend(); ++option) {
    arguments << QStringLiteral("-o") << filterToolOptionText(option.key(), option.value());
  }
  // An absolute path can't be taken for an option, whatever the document is called.
  arguments << QFileInfo(document).absoluteFilePath();
  return {tool, arguments};
}

}  // namespace orvek
