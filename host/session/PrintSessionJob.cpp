// SPDX-License-Identifier: Apache-2.0
// The session's side towards a job: what the queue brings, what is asked for, what goes out.

#include <algorithm>

#include "host/ppd/CustomValue.h"
#include "host/session/PrintSession.h"
#include "host/ticket/JobOptions.h"
#include "host/ticket/ServerWords.h"

namespace orvek {
namespace {

bool isNamedAmong(const QList<OptionChoice> &options, const QString &keyword) {
  return std::any_of(options.begin(), options.end(), [&](const OptionChoice &option) {
    return option.option.compare(keyword, Qt::CaseInsensitive) == 0;
  });
}

}  // namespace

// What the queue's words stand for is as good as said: whoever asks what the queue would do by
// itself finds it by the PPD's name.
void PrintSession::markQueueOptions() {
  for (const OptionChoice &meant : marks().meaningOf(m_queueOptions)) {
    m_picks.marks().mark(meant.option, meant.choice);
    if (!isNamedAmong(m_queueOptions, meant.option)) m_queueOptions << meant;
  }
}

bool PrintSession::printerCollates() const {
  return ppdFindOption(marks().ppd(), collateOption) != nullptr;
}

JobSettings PrintSession::jobSettings() const {
  JobSettings settings = m_jobSettings;
  if (!printerCollates()) return settings;
  const QString marked = marks().marked(QString::fromLatin1(collateOption));
  settings.collate = marked.compare(QLatin1String("False"), Qt::CaseInsensitive) != 0;
  return settings;
}

void PrintSession::setJobSettings(const JobSettings &settings) {
  const bool collateChanges = settings.collate != jobSettings().collate;
  perform([&] {
    m_jobSettings = settings;
    if (!printerCollates() || !collateChanges) return;
    pick(QString::fromLatin1(collateOption),
         settings.collate ? QStringLiteral("True") : QStringLiteral("False"));
  });
}

Result<bool> PrintSession::takeJobOption(const QString &name, const QString &value) {
  AskedOptions asked = m_askedOptions;
  Result<bool> taken = asked.take(name, value);
  // Where the printer has an option for it, the option's mark is what counts.
  if (!taken || !taken.value() || !marks().meaningOf({{name, value}}).isEmpty()) {
    return taken ? Result<bool>(false) : taken;
  }
  m_askedOptions = asked;
  m_jobSettings = asked.settings;
  return true;
}

void PrintSession::pickWord(const OptionChoice &word, const QList<OptionChoice> &beside) {
  const QList<ServerWord> words = ServerWords(marks(), {word}).words();
  if (words.isEmpty()) return;
  perform([&] {
    for (const OptionChoice &meant : ServerWords(marks(), beside).choices()) {
      const bool isMeant = words.first().options.contains(meant.option);
      if (isMeant && !isNamedAmong(beside, meant.option)) pickUnrecorded(meant);
    }
  });
}

// The word in the ticket says it.
void PrintSession::pickUnrecorded(const OptionChoice &choice) {
  const QVariant recorded = m_ticket->value(choice.option);
  if (pick(choice.option, choice.choice)) m_ticket->setValue(choice.option, recorded);
}

TicketValues PrintSession::ticketToKeep() const {
  return withoutUntrueWords(marks(), m_ticket->values());
}

QStringList PrintSession::optionsWithCustomValues() const {
  QStringList options;
  for (const OptionChoice &mark : marks().all()) {
    if (hasCustomValues(mark.choice)) options << mark.option;
  }
  return options;
}

QStringList PrintSession::overruledOptions() const {
  return orvek::overruledOptions(marks(), m_queueOptions, m_ticket->values());
}

QMap<QString, QString> PrintSession::jobOptions() const {
  QMap<QString, QString> options =
      jobOptionsFor(marks(), m_queueOptions, m_ticket->values(), pagesPerSheet());
  JobSettings settings = m_jobSettings;
  // The printer's own option, among the marks, says it already.
  if (printerCollates()) settings.collate = true;
  options.insert(toOptions(settings, m_askedOptions));
  return options;
}

}  // namespace orvek
