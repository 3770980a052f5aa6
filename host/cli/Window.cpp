// SPDX-License-Identifier: Apache-2.0
// The order of a run with a window.

#include "host/cli/Window.h"

#include <QFileInfo>
#include <QTimer>
#include <optional>

#include "host/cli/Console.h"
#include "host/cli/Headless.h"
#include "host/cli/PrintJob.h"
#include "host/cli/SessionStart.h"
#include "host/dialog/PasswordDialog.h"
#include "host/dialog/PrintDialog.h"
#include "host/jobs/Document.h"
#include "host/jobs/QueueJob.h"
#include "host/translations/FailureText.h"

namespace orvek {
namespace {

QString nameOf(const QString &file) {
  return isStandardInput(file) ? translated(documentName(file)) : QFileInfo(file).fileName();
}

QString namesOf(const QStringList &files) {
  const QString first = nameOf(files.isEmpty() ? standardInput() : files.first());
  if (files.size() < 2) return first;
  return PrintDialog::tr("%1 and %2 more").arg(first).arg(files.size() - 1);
}

// As lp does: a job on a queue has a number, one into a file has none.
Status tellOutcome(const CommandLine &line, const PrintDialog &dialog) {
  if (line.silent || !dialog.outcome() || dialog.outcome()->jobId == 0) return {};
  const QString words = requestIdLine(dialog.request(), *dialog.outcome());
  return writeToStandardOutput(words.toUtf8() + '\n');
}

// For a session on a printer chosen in the window: what was entered there goes along by itself.
CommandLine lineFor(const CommandLine &line, const QString &destination, const QString &ppd) {
  CommandLine other = line;
  other.destination = destination;
  other.ppd = ppd;
  other.ticket = QString();
  other.preset = QString();
  other.options.clear();
  other.marks.clear();
  return other;
}

struct Opened {
  std::unique_ptr<PrintSession> session;
  /// Why it is a session without a printer.
  std::optional<Failure> problem;
};

// Where no server answers, the window is where the user can do something about it.
Result<Opened> openSession(const CommandLine &line,
                           const std::shared_ptr<PasswordSource> &passwords) {
  Result<std::unique_ptr<PrintSession>> started = startSession(line, passwords);
  if (started) return Opened{started.take(), {}};
  if (!line.ppd.isNull() || started.failure().kind != FailureKind::Io) return started.failure();
  Result<std::unique_ptr<PrintSession>> empty = PrintSession::begin({});
  if (!empty) return empty.failure();
  return Opened{empty.take(), started.failure()};
}

}  // namespace

DialogSetup dialogSetupFor(const CommandLine &line, PrintSession &session,
                           const std::shared_ptr<PasswordSource> &passwords) {
  DialogSetup setup;
  if (line.output.isNull()) setup.destination = session.origin().destination;
  setup.documentName = line.title.isNull() ? namesOf(line.files) : line.title;
  if (line.files.size() == 1) setup.document.path = line.files.first();
  setup.askPrinter = [&line, passwords](const QString &destination,
                                        const std::atomic<bool> &cancelled) {
    return gatherSetup(lineFor(line, destination, QString()), passwords, &cancelled);
  };
  setup.readDescription = [&line](const QString &ppd, const std::atomic<bool> &cancelled) {
    return gatherSetup(lineFor(line, QString(), ppd), {}, &cancelled);
  };
  setup.beginSession = [&line](const SessionSetup &other) {
    return startSession(lineFor(line, QString(), QString()), other);
  };
  setup.presets = std::make_shared<PresetStore>();
  setup.server.server = line.server;
  setup.server.user = line.user;
  // The list of printers comes up unasked; it must not ask anybody.
  if (passwords) setup.server.passwords = passwords->withoutAsking();
  setup.outputFile = line.output;
  setup.jobRequest = [&line, passwords](PrintSession &now) {
    return jobRequestFor(line, now, passwords);
  };
  return setup;
}

Status runWindow(const CommandLine &line) {
  if (Status checked = checkAllDocuments(line.files); !checked) return checked;
  PasswordWindow passwordWindow;
  const auto passwords = std::make_shared<PasswordSource>(
      [&passwordWindow](const auto &question, const auto *cancelled) {
        return passwordWindow.ask(question, cancelled);
      });
  Result<Opened> opened = openSession(line, passwords);
  if (!opened) return opened.failure();
  PrintSession &session = *opened.value().session;
  if (Status done = runActions(line, session); !done) return done;
  PrintDialog dialog(session, dialogSetupFor(line, session, passwords));
  if (opened.value().problem) dialog.showProblem(*opened.value().problem);
  QTimer::singleShot(0, &dialog, &PrintDialog::lookAround);
  dialog.exec();
  if (Status told = tellOutcome(line, dialog); !told) return told;
  if (Status written = saveAndWrite(line, dialog.session()); !written) return written;
  return printState(line, dialog.session());
}

}  // namespace orvek
