// SPDX-License-Identifier: Apache-2.0
// Gathers a job's options.

#include "host/session/JobOptions.h"

#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

const QString pagesPerSheetOption = QStringLiteral("number-up");

}  // namespace

QMap<QString, QString> jobOptionsFor(const Marks &marks, const QList<OptionChoice> &queueOptions,
                                     const TicketValues &ticket, int pagesPerSheet) {
  QMap<QString, QString> options;
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    const QString marked = marks.marked(entry.key());
    options.insert(entry.key(), marked.isNull() ? textReading(entry.value()) : marked);
  }
  for (const OptionChoice &mark : marks.differingFromDefaults()) {
    options.insert(mark.option, mark.choice);
  }
  // A mark back at the PPD's default must be said where the queue would choose otherwise.
  for (const OptionChoice &option : queueOptions) {
    const auto queueChoice = marks.spelled(option.option, option.choice);
    if (!queueChoice) continue;
    const QString marked = marks.marked(queueChoice->option);
    if (!marked.isNull() && marked != queueChoice->choice) {
      options.insert(queueChoice->option, marked);
    }
  }
  if (pagesPerSheet > 1) options.insert(pagesPerSheetOption, QString::number(pagesPerSheet));
  return options;
}

}  // namespace orvek
