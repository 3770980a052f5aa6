// SPDX-License-Identifier: Apache-2.0
// Lists printers for people and scripts.

#include "host/cli/PrinterListing.h"

#include "host/cli/Console.h"
#include "host/cli/TerminalPassword.h"
#include "host/printers/PrinterList.h"

namespace orvek {
namespace {

QString stateOf(const Queue &queue) {
  if (queue.reasons.isEmpty()) return stateInWords(queue);
  return stateInWords(queue) + QStringLiteral(" (") + queue.reasons.join(QStringLiteral(", ")) +
         QLatin1Char(')');
}

// An administrator's words may hold anything; a tab or line feed would break the line.
QString field(const QString &text) {
  return text.simplified();
}

}  // namespace

ServerAccess serverAccess(const CommandLine &line,
                          const std::shared_ptr<PasswordSource> &passwords) {
  return {line.server, line.user, nullptr, serverPatience(), passwords};
}

Status listPrintersAsAsked(const CommandLine &line) {
  const auto passwords = std::make_shared<PasswordSource>(askOnTerminal);
  const Result<QList<Queue>> queues = listPrinters(serverAccess(line, passwords));
  if (!queues) return queues.failure();
  QString text;
  for (const Queue &queue : queues.value()) {
    QStringList fields{field(queue.destination()), field(stateOf(queue)), field(queue.location)};
    if (queue.isDefault) fields << QStringLiteral("default");
    text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
  }
  return writeToStandardOutput(text.toUtf8());
}

}  // namespace orvek
