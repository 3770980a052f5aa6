// SPDX-License-Identifier: Apache-2.0
// The order of a headless run.

#include "host/cli/Headless.h"

#include <QJsonDocument>
#include <algorithm>
#include <optional>

#include "host/cli/ActionRunner.h"
#include "host/cli/Console.h"
#include "host/cli/Inspection.h"
#include "host/cli/Presets.h"
#include "host/cli/PrintJob.h"
#include "host/cli/Screenshot.h"
#include "host/cli/SessionStart.h"
#include "host/cli/TerminalPassword.h"
#include "host/jobs/Document.h"
#include "host/jobs/InputSpool.h"
#include "host/jobs/OutputTarget.h"
#include "host/preview/PreviewInspection.h"

namespace orvek {
namespace {

void savePanels(PrintSession &session) {
  const ActionScope action(session);
  session.panels().save();
}

Status writeFiles(const CommandLine &line, PrintSession &session, const SeenDocuments &documents) {
  if (!line.ticketOut.isNull()) {
    if (Status written = writeTicket(line.ticketOut, session.job().ticketToKeep()); !written) {
      return written;
    }
  }
  if (Status saved = savePresetAsAsked(line, session); !saved) return saved;
  if (line.screenshot.isNull()) return {};
  const QString only = documents.files.size() == 1 ? documents.files.first() : QString();
  return writeScreenshot(line, session, comesOnce(only) ? QString() : only);
}

/// The state as text, and what could not be read for it.
struct State {
  QByteArray text;
  std::optional<Failure> unread;
};

State stateOf(PrintSession &session, const QStringList &files) {
  State state;
  QJsonObject json = inspect(session);
  if (!files.isEmpty()) {
    const InspectedPreview preview = inspectPreview(session, files);
    json.insert(QStringLiteral("preview"), preview.json);
    state.unread = preview.unread;
  }
  state.text = QJsonDocument(json).toJson(QJsonDocument::Indented);
  return state;
}

bool prints(const CommandLine &line) {
  return line.print || !line.output.isNull();
}

/// What comes once is read at once where it is to be looked at as well as printed; else it goes
/// through block by block. Without a name standard input is a document only of those who print.
Result<SeenDocuments> seenDocuments(const CommandLine &line, DocumentFiles &copies) {
  SeenDocuments seen{line.files, prints(line)};
  if (seen.files.isEmpty() && prints(line)) seen.files << standardInput();
  const bool areSeen = line.inspect || !line.screenshot.isNull();
  if (!areSeen || std::none_of(seen.files.begin(), seen.files.end(), comesOnce)) return seen;
  if (Status checked = checkAllDocuments(seen.files); !checked) return checked.failure();
  const auto files = copies.of(seen.files, JobControl());
  if (files) {
    seen.files = files.value();
  } else {
    seen.unread = files.failure();
  }
  return seen;
}

// A file that can't be written is said first, as where nobody looks at the document.
Failure unprinted(const CommandLine &line, const Failure &unread) {
  if (line.output.isNull()) return unread;
  const auto target = OutputTarget::open(line.output);
  return target ? unread : target.failure();
}

QStringList summaryLines(const PrintSession &session) {
  QStringList lines;
  for (const auto &[title, value] : session.panels().summary()) {
    lines << title + QStringLiteral(": ") + value;
  }
  return lines;
}

}  // namespace

Status runActions(const CommandLine &line, PrintSession &session) {
  for (const Action &action : line.actions) {
    if (Status done = runAction(session, action); !done) return done;
  }
  return {};
}

Status printState(const CommandLine &line, PrintSession &session, const SeenDocuments &documents) {
  const State state = line.inspect ? stateOf(session, documents.files) : State();
  if (!state.text.isEmpty()) {
    if (Status written = writeToStandardOutput(state.text); !written) return written;
  }
  if (line.summary) {
    if (Status written = writeLines(summaryLines(session)); !written) return written;
  }
  const auto &unread = documents.unread ? documents.unread : state.unread;
  const bool isFailure = line.inspect && unread && !documents.arePrinted;
  return isFailure ? Status(*unread) : Status();
}

Status saveAndWrite(const CommandLine &line, PrintSession &session,
                    const SeenDocuments &documents) {
  savePanels(session);
  return writeFiles(line, session, documents);
}

Status runHeadless(const CommandLine &line) {
  const auto passwords = std::make_shared<PasswordSource>(askOnTerminal);
  Result<std::unique_ptr<PrintSession>> started = startSession(line, passwords);
  if (!started) return started.failure();
  PrintSession &session = *started.value();
  if (Status done = runActions(line, session); !done) return done;
  DocumentFiles copies;
  const auto documents = seenDocuments(line, copies);
  if (!documents) return documents.failure();
  const Status written = saveAndWrite(line, session, documents.value());
  for (const QString &sentence : session.record().notices()) tell(sentence);
  if (!written) return written;
  // Nobody may read it again: a pipe would be waited for without an end.
  const auto &unread = documents.value().unread;
  if (documents.value().arePrinted && unread) return unprinted(line, *unread);
  if (Status printed = printAsAsked(line, session, documents.value().files, passwords); !printed) {
    return printed;
  }
  return printState(line, session, documents.value());
}

}  // namespace orvek
