// SPDX-License-Identifier: Apache-2.0
// What is asked for, and what goes out.

#include "host/session/SessionJob.h"

#include <algorithm>

#include "host/ppd/CustomValue.h"
#include "host/session/PrintSession.h"
#include "host/ticket/BookletSettings.h"
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

bool SessionJob::printerCollates() const {
  return ppdFindOption(m_session.marks().ppd(), collateOption) != nullptr;
}

JobSettings SessionJob::settings() const {
  JobSettings settings = m_settings;
  if (!printerCollates()) return settings;
  const QString marked = m_session.marks().marked(QString::fromLatin1(collateOption));
  settings.collate = marked.compare(QLatin1String("False"), Qt::CaseInsensitive) != 0;
  return settings;
}

void SessionJob::setSettings(const JobSettings &newSettings) {
  const bool collateChanges = newSettings.collate != settings().collate;
  const ActionScope action(m_session);
  m_settings = newSettings;
  if (!printerCollates() || !collateChanges) return;
  m_session.pick(QString::fromLatin1(collateOption),
                 newSettings.collate ? QStringLiteral("True") : QStringLiteral("False"));
}

Result<bool> SessionJob::take(const QString &name, const QString &value) {
  AskedOptions asked = m_asked;
  Result<bool> taken = asked.take(name, value);
  // Where the printer has an option for it, the option's mark is what counts.
  if (!taken || !taken.value() || !m_session.marks().meaningOf({{name, value}}).isEmpty()) {
    return taken ? Result<bool>(false) : taken;
  }
  m_asked = asked;
  m_settings = asked.settings;
  return true;
}

void SessionJob::pickWord(const OptionChoice &word, const QList<OptionChoice> &beside) {
  const QList<ServerWord> words = ServerWords(m_session.marks(), {word}).words();
  if (words.isEmpty()) return;
  const ActionScope action(m_session);
  for (const OptionChoice &meant : ServerWords(m_session.marks(), beside).choices()) {
    const bool isMeant = words.first().options.contains(meant.option);
    if (isMeant && !isNamedAmong(beside, meant.option)) pickUnrecorded(meant);
  }
}

// The word in the ticket says it.
void SessionJob::pickUnrecorded(const OptionChoice &choice) {
  const QVariant recorded = m_session.ticket().value(choice.option);
  if (m_session.pick(choice.option, choice.choice)) {
    m_session.ticket().setValue(choice.option, recorded);
  }
}

int SessionJob::pagesPerSheet() const {
  return integerReading(m_session.ticket().value(layoutKey));
}

void SessionJob::setPagesPerSheet(int pages) {
  const ActionScope action(m_session);
  m_session.ticket().setValue(layoutKey, pages);
}

TicketValues SessionJob::ticketToKeep() {
  return withoutUntrueWords(m_session.marks(), m_session.ticket().values());
}

QStringList SessionJob::optionsWithCustomValues() const {
  QStringList options;
  for (const OptionChoice &mark : m_session.marks().all()) {
    if (hasCustomValues(mark.choice)) options << mark.option;
  }
  return options;
}

QStringList SessionJob::overruledOptions() {
  return orvek::overruledOptions(m_session.marks(), m_session.origin().queueOptions,
                                 m_session.ticket().values());
}

QMap<QString, QString> SessionJob::options() {
  QMap<QString, QString> options = jobOptionsFor(m_session.marks(), m_session.origin().queueOptions,
                                                 m_session.ticket().values(), pagesPerSheet());
  JobSettings settings = m_settings;
  // The printer's own option, among the marks, says it already.
  if (printerCollates()) settings.collate = true;
  options.insert(toOptions(settings, m_asked));
  return options;
}

}  // namespace orvek
