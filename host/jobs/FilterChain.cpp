// SPDX-License-Identifier: Apache-2.0
// Starts the filter tool for each document and carries its output to the target. The output passes
// through here rather than straight into the file: filters don't notice a full disk, the write here
// does.

#include "host/jobs/FilterChain.h"

#include <sys/prctl.h>
#include <unistd.h>
#include <csignal>

#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "host/jobs/BookletDriver.h"
#include "host/jobs/Document.h"
#include "host/jobs/FilterMessages.h"
#include "host/jobs/InputSpool.h"
#include "host/jobs/OptionText.h"
#include "host/jobs/OutputTarget.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 100;
constexpr int graceMilliseconds = 2000;

Status checkPPDFile(const QString &path) {
  QFile file(path);
  if (QFileInfo(path).isDir()) {
    return Failure{FailureKind::Io, path,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is a folder, not a PPD file"))};
  }
  if (!file.open(QIODevice::ReadOnly)) {
    return Failure{FailureKind::Io, path, Phrase::ofSystem(file.errorString())};
  }
  return {};
}

QStringList toolArguments(const JobRequest &request, const QString &ppd, const QString &document) {
  // -e: without it the printer's own filters are left out and the output is not device-ready.
  QStringList arguments{QStringLiteral("-e"),   QStringLiteral("-p"),          ppd,
                        QStringLiteral("-m"),   QStringLiteral("printer/foo"), QStringLiteral("-t"),
                        effectiveTitle(request)};
  if (!request.user.isEmpty()) arguments << QStringLiteral("-U") << request.user;
  auto options = effectiveOptions(request);
  // Filters are told the copies apart from the options, and some multiply them if told both ways.
  const QString copies = options.take(QStringLiteral("copies"));
  if (!copies.isEmpty()) arguments << QStringLiteral("-n") << copies;
  for (auto option = options.cbegin(); option != options.cend(); ++option) {
    arguments << QStringLiteral("-o") << filterToolOptionText(option.key(), option.value());
  }
  // An absolute path can't be taken for an option, whatever the document is called.
  return arguments << QFileInfo(document).absoluteFilePath();
}

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

/// One job under way: where its bytes go and how far it is.
struct Run {
  const JobRequest &request;
  JobControl &control;
  const QString tool;
  const QString ppd;
  OutputTarget &target;
  JobProgress progress;
  int pagesOfEarlierDocuments = 0;
};

Status carryOutput(Run &run, QProcess &process, FilterMessages &messages) {
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

Status carryUntilFinished(Run &run, QProcess &process, FilterMessages &messages) {
  while (process.state() != QProcess::NotRunning) {
    if (run.control.cancelled) return jobCancelled();
    process.waitForReadyRead(pollMilliseconds);
    if (Status carried = carryOutput(run, process, messages); !carried) return carried;
  }
  if (Status carried = carryOutput(run, process, messages); !carried) return carried;
  return run.control.cancelled ? Status(jobCancelled()) : Status();
}

void prepare(QProcess &process, const Run &run, const QString &path) {
  auto environment = QProcessEnvironment::systemEnvironment();
  // The tool's messages are read here, so they have to come in one language.
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  // It asks a print server about queues, though it needs none: one that answers nothing would keep
  // the job waiting for ever.
  environment.insert(QStringLiteral("CUPS_SERVER"), QStringLiteral("/dev/null/no-server"));
  process.setProcessEnvironment(environment);
  process.setChildProcessModifier(leadOwnGroup);
  process.setStandardInputFile(QProcess::nullDevice());
  process.setProgram(run.tool);
  process.setArguments(toolArguments(run.request, run.ppd, path));
}

Status filterDocument(Run &run, const QString &path, const Phrase &name) {
  QProcess process;
  FilterMessages messages;
  prepare(process, run, path);
  const qint64 bytesBefore = run.progress.bytes;
  process.start();
  if (!process.waitForStarted()) {
    return Failure{FailureKind::Io, run.tool, Phrase::ofSystem(process.errorString())};
  }
  if (Status carried = carryUntilFinished(run, process, messages); !carried) {
    stop(process);
    return carried;
  }
  if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0) {
    return messages.reason(name, run.request.ppdFile, process.exitCode());
  }
  if (run.progress.bytes == bytesBefore) {
    return Failure{FailureKind::Io, name,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the filters made no output of it"))};
  }
  run.pagesOfEarlierDocuments = run.progress.pages;
  return {};
}

Status filterNamed(Run &run, const QString &file) {
  if (!isStandardInput(file)) return filterDocument(run, file, file);
  InputSpool spool;
  if (Status filled = spool.fill(run.control); !filled) return filled;
  return filterDocument(run, spool.path(), documentName(file));
}

Status checkRequest(const JobRequest &request) {
  if (Status ppd = checkPPDFile(request.ppdFile); !ppd) return ppd;
  return checkAllDocuments(effectiveFiles(request));
}

}  // namespace

QString findFilterTool(const QString &searchPath) {
  QStringList folders = searchPath.split(u':', Qt::SkipEmptyParts);
  folders << QStringLiteral("/usr/local/sbin") << QStringLiteral("/usr/sbin")
          << QStringLiteral("/sbin");
  const QString path = QStandardPaths::findExecutable(QStringLiteral("cupsfilter"), folders);
  return path.isEmpty() ? QString() : path;
}

Result<JobOutcome> printThroughFilters(const JobRequest &request, JobControl &control) {
  if (Status checked = checkRequest(request); !checked) return checked.failure();
  const QString tool = findFilterTool(qEnvironmentVariable("PATH"));
  if (tool.isNull()) {
    return Failure{
        FailureKind::Io, QStringLiteral("cupsfilter"),
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "not found; install the package \"cups\""))};
  }
  const auto ppd =
      ChainPPD::of(request.ppdFile, effectiveOptions(request), DriverPlaces::ofThisProgram());
  if (!ppd) return ppd.failure();
  auto target = OutputTarget::open(request.outputFile);
  if (!target) return target.failure();

  const QStringList files = effectiveFiles(request);
  Run run{request, control, tool, ppd.value().path(), *target.value(), {}, 0};
  run.progress.documents = static_cast<int>(files.size());
  for (const QString &file : files) {
    if (Status done = filterNamed(run, file); !done) return done.failure();
    ++run.progress.document;
  }
  if (Status placed = target.value()->commit(); !placed) return placed.failure();
  return JobOutcome{0, QString(), run.progress.documents, run.progress.bytes};
}

}  // namespace orvek
