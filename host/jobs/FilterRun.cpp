// SPDX-License-Identifier: Apache-2.0
// Starts a program and carries its output to the target. The output passes through here rather than
// straight into the file: filters don't notice a full disk, the write here does.

#include "host/jobs/FilterRun.h"

#include <QFileInfo>
#include <QProcess>

#include "host/jobs/FilterMessages.h"
#include "host/jobs/GuardedTool.h"
#include "host/jobs/OptionText.h"
#include "host/jobs/ToolEnvironment.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 100;
// The driver takes 1.5 seconds to end filters of its own that don't listen.
constexpr std::chrono::milliseconds grace{1800};

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

Status start(GuardedTool &tool, const FilterProgram &program) {
  auto environment = toolEnvironment();
  for (auto entry = program.environment.cbegin(); entry != program.environment.cend(); ++entry) {
    environment.insert(entry.key(), entry.value());
  }
  tool.process().setProcessEnvironment(environment);
  return tool.start({program.path, program.arguments, grace});
}

}  // namespace

Status runFilters(FilterRun &run, const FilterProgram &program, const Phrase &document) {
  GuardedTool tool;
  FilterMessages messages;
  if (Status started = start(tool, program); !started) return started;
  QProcess &process = tool.process();
  const qint64 bytesBefore = run.progress.bytes;
  if (Status carried = carryUntilFinished(run, process, messages); !carried) return carried;
  if (Status started = tool.couldBeStarted(); !started) return started;
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
