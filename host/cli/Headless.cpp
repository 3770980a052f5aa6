// SPDX-License-Identifier: Apache-2.0
// The order of a headless run.

#include "host/cli/Headless.h"

#include <QJsonDocument>

#include "host/cli/ActionRunner.h"
#include "host/cli/Console.h"
#include "host/cli/Inspection.h"
#include "host/cli/Presets.h"
#include "host/cli/PrintJob.h"
#include "host/cli/Screenshot.h"
#include "host/cli/SessionStart.h"
#include "host/cli/TerminalPassword.h"
#include "host/preview/PreviewInspection.h"

namespace orvek {
namespace {

void savePanels(PrintSession &session) {
  const ActionScope action(session);
  session.panels().save();
}

Status writeFiles(const CommandLine &line, PrintSession &session) {
  if (!line.ticketOut.isNull()) {
    if (Status written = writeTicket(line.ticketOut, session.job().ticketToKeep()); !written) {
      return written;
    }
  }
  if (Status saved = savePresetAsAsked(line, session); !saved) return saved;
  return line.screenshot.isNull() ? Status() : writeScreenshot(line, session);
}

QJsonObject stateOf(const CommandLine &line, PrintSession &session) {
  QJsonObject state = inspect(session);
  if (!line.files.isEmpty()) {
    state.insert(QStringLiteral("preview"), inspectPreview(session, line.files));
  }
  return state;
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

Status printState(const CommandLine &line, PrintSession &session) {
  if (line.inspect) {
    const QJsonDocument state(stateOf(line, session));
    if (Status written = writeToStandardOutput(state.toJson(QJsonDocument::Indented)); !written) {
      return written;
    }
  }
  return line.summary ? writeLines(summaryLines(session)) : Status();
}

Status saveAndWrite(const CommandLine &line, PrintSession &session) {
  savePanels(session);
  return writeFiles(line, session);
}

Status runHeadless(const CommandLine &line) {
  const auto passwords = std::make_shared<PasswordSource>(askOnTerminal);
  Result<std::unique_ptr<PrintSession>> started = startSession(line, passwords);
  if (!started) return started.failure();
  PrintSession &session = *started.value();
  if (Status done = runActions(line, session); !done) return done;
  const Status written = saveAndWrite(line, session);
  for (const QString &sentence : session.record().notices()) tell(sentence);
  if (!written) return written;
  if (Status printed = printAsAsked(line, session, passwords); !printed) return printed;
  return printState(line, session);
}

}  // namespace orvek
