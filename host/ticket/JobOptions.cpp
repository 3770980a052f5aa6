// SPDX-License-Identifier: Apache-2.0
// Gathers a job's options: first what the printer's options say, in their own names and in the
// print server's words, then what the job settings say.

#include "host/ticket/JobOptions.h"

#include "host/ppd/CustomChoice.h"
#include "host/ticket/JobOptionNames.h"
#include "host/ticket/ServerWords.h"
#include "platform/plugin/BookletKeys.h"
#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

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

QMap<QString, QString> printerOptions(Marks &marks, const JobSources &job) {
  QMap<QString, QString> options;
  for (const OptionChoice &mark : marks.differingFromDefaults()) {
    options.insert(mark.option, mark.choice);
  }
  const ServerWords words = ServerWords::of(marks, job.queueOptions, job.ticket);
  sayWords(words, &options);
  for (auto entry = job.ticket.begin(); entry != job.ticket.end(); ++entry) {
    const QString marked = marks.marked(entry.key());
    options.insert(entry.key(), marked.isNull() ? textReading(entry.value()) : marked);
  }
  takeBackUntrueWords(marks, words, &options);
  sayWhatTheQueueWouldNotDo(marks, job.queueOptions, &options);
  return options;
}

// The name under which jobSettingOptions() says the same.
QString usualName(const QString &name) {
  if (sameKeyword(name, landscapeOption)) return orientationOption;
  if (isAnyOf(name, {handlingOption, collateOption})) return collateOption;
  return name.toLower();
}

}  // namespace

QMap<QString, QString> jobSettingOptions(const JobSettings &settings) {
  QMap<QString, QString> options;
  if (settings.copies != 1) options.insert(copiesOption, QString::number(settings.copies));
  if (!settings.collate) options.insert(collateOption, QStringLiteral("False"));
  if (!settings.pageRanges.isEmpty()) options.insert(pageRangesOption, settings.pageRanges);
  for (const OrientationNumber &entry : orientationNumbers) {
    if (entry.orientation == settings.orientation) {
      options.insert(orientationOption, QString::number(entry.number));
    }
  }
  if (settings.reverse) options.insert(outputOrderOption, lastPageFirst);
  return options;
}

QMap<QString, QString> jobSettingOptions(const JobSettings &settings, const AskedOptions &asked) {
  QMap<QString, QString> options = jobSettingOptions(settings);
  const QMap<QString, QString> now = options;
  const QMap<QString, QString> then = jobSettingOptions(asked.settings);
  for (auto word = asked.words.begin(); word != asked.words.end(); ++word) {
    const QString name = usualName(word.key());
    if (now.value(name) != then.value(name)) continue;
    options.remove(name);
    options.insert(word.key(), word.value());
  }
  return options;
}

QMap<QString, QString> jobOptionsFor(Marks &marks, const JobSources &job) {
  QMap<QString, QString> options = printerOptions(marks, job);
  const int pagesPerSheet = integerReading(job.ticket.value(layoutNUpKey));
  if (pagesPerSheet > 1) options.insert(pagesPerSheetOption, QString::number(pagesPerSheet));
  JobSettings settings = job.settings;
  // The printer's own option, among the marks, says it already.
  if (marks.printer().has(collateOption)) settings.collate = true;
  options.insert(jobSettingOptions(settings, job.asked));
  return options;
}

QStringList overruledOptions(Marks &marks, const QList<OptionChoice> &queueOptions,
                             const TicketValues &ticket) {
  QStringList names;
  for (const ServerWord &word : ServerWords::of(marks, queueOptions, ticket).untrue(marks)) {
    names << word.name;
  }
  return names;
}

QStringList optionsWithCustomValues(const Marks &marks) {
  QStringList options;
  for (const OptionChoice &mark : marks.all()) {
    if (hasCustomValues(mark.choice)) options << mark.option;
  }
  return options;
}

}  // namespace orvek
