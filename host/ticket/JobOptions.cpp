// SPDX-License-Identifier: Apache-2.0
// Gathers a job's options.

#include "host/ticket/JobOptions.h"

#include "host/ticket/ServerWords.h"
#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

const QString pagesPerSheetOption = QStringLiteral("number-up");

void sayWords(const ServerWords &words, QMap<QString, QString> *options) {
  for (const OptionChoice &said : words.choices()) options->remove(said.option);
  for (const ServerWord &word : words.words()) options->insert(word.name, word.value);
}

void takeBackUntrueWords(const Marks &marks, const ServerWords &words,
                         QMap<QString, QString> *options) {
  for (const ServerWord &word : words.untrue(marks)) {
    options->remove(word.name);
    for (const QString &option : word.options) {
      if (const QString marked = marks.marked(option); !marked.isNull()) {
        options->insert(option, marked);
      }
    }
  }
}

// A mark back at the PPD's default must be said where the queue would choose otherwise.
void sayWhatTheQueueWouldNotDo(const Marks &marks, const QList<OptionChoice> &queueOptions,
                               QMap<QString, QString> *options) {
  for (const OptionChoice &option : queueOptions) {
    const auto queueChoice = marks.spelled(option.option, option.choice);
    if (!queueChoice) continue;
    const QString marked = marks.marked(queueChoice->option);
    if (!marked.isNull() && marked != queueChoice->choice) {
      options->insert(queueChoice->option, marked);
    }
  }
}

}  // namespace

QMap<QString, QString> jobOptionsFor(const Marks &marks, const QList<OptionChoice> &queueOptions,
                                     const TicketValues &ticket, int pagesPerSheet) {
  QMap<QString, QString> options;
  for (const OptionChoice &mark : marks.differingFromDefaults()) {
    options.insert(mark.option, mark.choice);
  }
  const ServerWords words = ServerWords::of(marks, queueOptions, ticket);
  sayWords(words, &options);
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    const QString marked = marks.marked(entry.key());
    options.insert(entry.key(), marked.isNull() ? textReading(entry.value()) : marked);
  }
  takeBackUntrueWords(marks, words, &options);
  sayWhatTheQueueWouldNotDo(marks, queueOptions, &options);
  if (pagesPerSheet > 1) options.insert(pagesPerSheetOption, QString::number(pagesPerSheet));
  return options;
}

QStringList overruledOptions(const Marks &marks, const QList<OptionChoice> &queueOptions,
                             const TicketValues &ticket) {
  QStringList names;
  for (const ServerWord &word : ServerWords::of(marks, queueOptions, ticket).untrue(marks)) {
    names << word.name;
  }
  return names;
}

}  // namespace orvek
