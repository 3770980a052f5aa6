// SPDX-License-Identifier: Apache-2.0
// Gathers a job's options: first what the printer's options say, in their own names and in the
// print server's words, then what the job settings say.

#include "host/ticket/JobOptions.h"

#include <algorithm>
#include <iterator>

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

QString defaultOf(const QString &name) {
  if (name == copiesOption) return QStringLiteral("1");
  if (name == collateOption) return QStringLiteral("True");
  if (name == pageRangesOption) return QStringLiteral("1-");
  return name == outputOrderOption ? QString(firstPageFirst) : QStringLiteral("3");
}

bool isAsked(const AskedOptions &asked, const QString &name) {
  const QStringList words = asked.words.keys();
  return std::any_of(words.begin(), words.end(),
                     [&](const QString &word) { return usualName(word) == name; });
}

/// Whether job settings contradict the word of this name that is saved for a queue.
bool isOverruled(const QString &name, const JobSources &job) {
  return jobSettingOptions(job.settings).value(name) !=
         jobSettingOptions(job.saved.settings).value(name);
}

/// The options of job settings on a queue that says by itself what is saved for it.
QMap<QString, QString> settingsOnQueue(const JobSettings &settings, const JobSources &job) {
  QMap<QString, QString> options = jobSettingOptions(settings, job.asked);
  const QMap<QString, QString> plain = jobSettingOptions(settings);
  const QStringList words = job.saved.words.keys();
  for (const QString &word : words) {
    const QString name = usualName(word);
    if (!isOverruled(name, job)) {
      if (!isAsked(job.asked, name)) options.remove(name);
    } else if (!plain.contains(name) && !options.contains(name)) {
      options.insert(name, defaultOf(name));
    }
  }
  return options;
}

void sayPagesPerSheet(const JobSources &job, QMap<QString, QString> *options) {
  const int pages = integerReading(job.ticket.value(layoutNUpKey));
  const bool isSaved =
      std::any_of(job.queueOptions.begin(), job.queueOptions.end(), pagesPerSheetIn);
  if (pages <= 1 && !isSaved) return;
  options->insert(pagesPerSheetOption, QString::number(std::max(1, pages)));
}

}  // namespace

int pagesPerSheetIn(const OptionChoice &option) {
  if (!sameKeyword(option.option, pagesPerSheetOption)) return 0;
  const int pages = option.choice.toInt();
  return pages > 1 ? pages : 0;
}

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
  sayPagesPerSheet(job, &options);
  JobSettings settings = job.settings;
  // The printer's own option, among the marks, says it already.
  if (marks.printer().has(collateOption)) settings.collate = true;
  options.insert(settingsOnQueue(settings, job));
  return options;
}

QStringList overruledOptions(Marks &marks, const JobSources &job) {
  QStringList names;
  for (const ServerWord &word :
       ServerWords::of(marks, job.queueOptions, job.ticket).untrue(marks)) {
    names << word.name;
  }
  const QStringList saved = job.saved.words.keys();
  std::copy_if(saved.begin(), saved.end(), std::back_inserter(names),
               [&](const QString &word) { return isOverruled(usualName(word), job); });
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
