// SPDX-License-Identifier: Apache-2.0
// The order of a run with a window.

#include "host/cli/Window.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QTimer>
#include <atomic>
#include <optional>
#include <utility>

#include "host/cli/Console.h"
#include "host/cli/FirstPrinter.h"
#include "host/cli/Headless.h"
#include "host/cli/PrintJob.h"
#include "host/cli/SessionStart.h"
#include "host/dialog/JobDocuments.h"
#include "host/dialog/PasswordDialog.h"
#include "host/dialog/PrintDialog.h"
#include "host/jobs/Document.h"
#include "host/jobs/QueueJob.h"
#include "host/session/JobChoices.h"
#include "platform/system/SocketProgram.h"

namespace orvek {
namespace {

// As lp does: a job on a queue has a number, one into a file has none.
Status tellOutcome(const CommandLine &line, const PrintDialog &dialog) {
  if (line.silent || !dialog.outcome() || dialog.outcome()->jobId == 0) return {};
  return writeLines({requestIdLine(dialog.request(), *dialog.outcome())});
}

// In a process of its own: this one ends with its window, and what the desktop shows outlasts that.
void tellDesktop(const CommandLine &line, const PrintDialog &dialog) {
  const bool isSent = dialog.outcome() && dialog.outcome()->jobId > 0;
  if (line.silent || !isSent || !qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS")) return;
  const JobOutcome &sent = *dialog.outcome();
  const JobRequest &request = dialog.request();
  QProcess notice;
  notice.setProgram(QFile::decodeName(helperProgram("orvek-job-notice").c_str()));
  notice.setArguments({sent.queue, QString::number(sent.jobId), request.server, request.user});
  // Whoever waits for the end of what this program writes is not to wait for the notice.
  notice.setStandardInputFile(QProcess::nullDevice());
  notice.setStandardOutputFile(QProcess::nullDevice());
  notice.setStandardErrorFile(QProcess::nullDevice());
  static_cast<void>(notice.startDetached());
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

/// How long a server may take for a window that opens at once with all that there is to show.
constexpr std::chrono::milliseconds moment{120};
/// For what no server has a part in.
constexpr std::chrono::milliseconds forEver = std::chrono::hours(24);

struct Opened {
  std::unique_ptr<PrintSession> session;
  /// Whether it is a session without a printer.
  bool isEmpty = false;
};

Result<Opened> openEmpty() {
  Result<std::unique_ptr<PrintSession>> empty = PrintSession::begin({});
  if (!empty) return empty.failure();
  return Opened{empty.take(), true};
}

/// What is loaded before there is a window, and what the window is told of it. Plain data.
struct Ahead {
  PanelsAhead panels;
  std::shared_ptr<AppliedPreset> applied = std::make_shared<AppliedPreset>();
};

// Where it is shown, it can be changed.
void showPriority(const CommandLine &line, PrintSession &session) {
  if (!line.priority) return;
  const ActionScope action(session, ActionOf::Host);
  pickJobChoice(session, JobChoice::Priority, QString::number(*line.priority));
}

Result<std::unique_ptr<PrintSession>> startFirst(const CommandLine &line, const SessionSetup &setup,
                                                 const Ahead &ahead) {
  Result<std::unique_ptr<PrintSession>> started =
      startSession(line, setup, ahead.panels, ahead.applied.get());
  if (!started) return started;
  showPriority(line, *started.value());
  if (Status done = runActions(line, *started.value()); !done) return done.failure();
  return started;
}

Result<std::unique_ptr<PrintSession>> startOther(const CommandLine &line,
                                                 const SessionSetup &setup) {
  auto started = startSession(lineFor(line, QString(), QString()), setup);
  if (started) showPriority(line, *started.value());
  return started;
}

// Where no server answers, the window is where the user can do something about it.
bool canBeMended(const CommandLine &line, const Failure &failure) {
  return line.ppd.isNull() && failure.kind == FailureKind::Io;
}

Result<Opened> openSession(const CommandLine &line, const Result<SessionSetup> &setup,
                           const Ahead &ahead) {
  const auto started = [&] {
    return setup ? startFirst(line, setup.value(), ahead)
                 : Result<std::unique_ptr<PrintSession>>(setup.failure());
  };
  Result<std::unique_ptr<PrintSession>> session = started();
  if (session) return Opened{session.take()};
  if (!canBeMended(line, session.failure())) return session.failure();
  return openEmpty();
}

/// A window's first printer, where the window did not wait for it. Lives as long as the window.
struct Awaited {
  FirstPrinter &printer;
  const Ahead &ahead;
  /// Whether it is the command line's own printer that was asked for last.
  std::atomic<bool> isOwn = true;
  bool isOver = false;
  /// Why the window had to go.
  std::optional<Failure> failure = {};
  /// What another printer, which was chosen in its place, can't take.
  std::optional<Failure> misfit = {};
};

DialogSetup::AskPrinter noting(Awaited &awaited, bool isOwn, const DialogSetup::AskPrinter &ask) {
  return [&awaited, isOwn, ask](const QString &what, const std::atomic<bool> &cancelled) {
    awaited.isOwn = isOwn;
    return ask(what, cancelled);
  };
}

using Started = Result<std::unique_ptr<PrintSession>>;

// The user may have picked another printer in place of one that does not come; the command line
// meant whichever comes. What that one can't take is no reason to do without it.
Started beginFirst(const CommandLine &line, Awaited &awaited, const SessionSetup &gathered,
                   const DialogSetup::BeginSession &later) {
  if (awaited.isOver) return later(gathered);
  Started started = startFirst(line, gathered, awaited.ahead);
  if (!started && !awaited.isOwn && !canBeMended(line, started.failure())) {
    awaited.misfit = started.failure();
    started = later(gathered);
  }
  awaited.isOver = bool(started);
  return started;
}

void awaitFirst(const CommandLine &line, Awaited &awaited, DialogSetup *setup) {
  setup->firstPrinter =
      line.destination.isEmpty() ? PrintDialog::tr("the default printer") : line.destination;
  setup->askFirst = noting(awaited, true, [&awaited](const QString &, const auto &cancelled) {
    return awaited.printer.ask(cancelled);
  });
  setup->askPrinter = noting(awaited, false, setup->askPrinter);
  setup->readDescription = noting(awaited, false, setup->readDescription);
  setup->beginSession = [&line, &awaited, later = setup->beginSession](const SessionSetup &other) {
    return beginFirst(line, awaited, other, later);
  };
}

void followAwaited(const CommandLine &line, Awaited &awaited, PrintDialog &dialog) {
  QObject::connect(&dialog, &PrintDialog::firstFailed, &dialog,
                   [&line, &awaited, &dialog](const Failure &failure) {
                     if (canBeMended(line, failure)) return;
                     awaited.failure = failure;
                     dialog.reject();
                   });
  QObject::connect(&dialog, &PrintDialog::firstTaken, &dialog, [&awaited, &dialog] {
    if (awaited.misfit) dialog.showProblem(*awaited.misfit);
  });
}

Status tellAll(const CommandLine &line, const PrintDialog &dialog) {
  if (Status told = tellOutcome(line, dialog); !told) return told;
  tellDesktop(line, dialog);
  SeenDocuments documents{dialog.files(), dialog.outcome().has_value()};
  const QString only = dialog.document().path;
  if (dialog.files().size() < 2 && !only.isEmpty()) documents.files = {only};
  if (Status written = saveAndWrite(line, dialog.session(), documents); !written) return written;
  return printState(line, dialog.session(), documents);
}

// As nobody who starts a window from a menu has anything piped into it: there standard input is
// closed, or nothing comes of it; nor is a terminal a document that anybody waits for.
bool hasStandardInput() {
  struct stat about = {};
  if (::fstat(STDIN_FILENO, &about) != 0) return false;
  return S_ISFIFO(about.st_mode) || S_ISREG(about.st_mode) || S_ISSOCK(about.st_mode);
}

QStringList documentsOf(const CommandLine &line) {
  if (!line.files.isEmpty() || !hasStandardInput()) return line.files;
  return {standardInput()};
}

}  // namespace

DialogSetup dialogSetupFor(const CommandLine &line, PrintSession &session,
                           const std::shared_ptr<PasswordSource> &passwords) {
  DialogSetup setup;
  if (line.output.isNull()) setup.destination = session.origin().destination;
  setup.files = documentsOf(line);
  setup.documentName = line.title.isNull() ? documentsInWords(setup.files) : line.title;
  if (setup.files.size() == 1) setup.document.path = setup.files.first();
  setup.askPrinter = [&line, passwords](const QString &destination,
                                        const std::atomic<bool> &cancelled) {
    return gatherSetup(lineFor(line, destination, QString()), passwords, &cancelled);
  };
  setup.readDescription = [&line](const QString &ppd, const std::atomic<bool> &cancelled) {
    return gatherSetup(lineFor(line, QString(), ppd), {}, &cancelled);
  };
  setup.beginSession = [&line](const SessionSetup &other) { return startOther(line, other); };
  setup.presets = std::make_shared<PresetStore>();
  setup.recent = std::make_shared<RecentPrinters>();
  setup.server.server = line.server;
  setup.server.user = line.user;
  // The list of printers comes up unasked; it must not ask anybody.
  if (passwords) setup.server.passwords = passwords->withoutAsking();
  setup.outputFile = line.output;
  setup.jobRequest = [&line, passwords](PrintSession &now) {
    JobRequest request = jobRequestFor(line, now, passwords);
    // The session has it by now, or the user chose another.
    request.priority = 0;
    return request;
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
  FirstPrinter first(line, passwords);
  // While the server is asked.
  const Ahead ahead{PanelsAhead(line)};
  const auto answer = first.within(line.ppd.isNull() ? moment : forEver);
  Result<Opened> opened = answer ? openSession(line, *answer, ahead) : openEmpty();
  if (!opened) return opened.failure();
  PrintSession &session = *opened.value().session;
  DialogSetup setup = dialogSetupFor(line, session, passwords);
  setup.applied = ahead.applied;
  Awaited awaited{first, ahead};
  if (opened.value().isEmpty) awaitFirst(line, awaited, &setup);
  PrintDialog dialog(session, std::move(setup));
  followAwaited(line, awaited, dialog);
  QTimer::singleShot(0, &dialog, &PrintDialog::lookAround);
  dialog.exec();
  return awaited.failure ? Status(*awaited.failure) : tellAll(line, dialog);
}

}  // namespace orvek
