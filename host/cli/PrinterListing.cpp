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

// An administrator's words may hold a line feed where a space is meant.
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
  QList<QStringList> rows;
  for (const Queue &queue : queues.value()) {
    QStringList fields{field(queue.destination()), field(stateOf(queue)), field(queue.location)};
    if (queue.isDefault) fields << QStringLiteral("default");
    rows << fields;
  }
  return writeRows(rows);
}

}  // namespace orvek
