// SPDX-License-Identifier: Apache-2.0
// What is asked for, and what goes out.

#include "host/session/SessionJob.h"

#include <QCoreApplication>

#include "host/printers/Queue.h"
#include "host/session/PrintSession.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/JobOptionNames.h"
#include "host/ticket/ServerWords.h"
#include "imposition/SheetOptions.h"
#include "platform/plugin/BookletKeys.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

struct Words {
  Q_DECLARE_TR_FUNCTIONS(orvek::SessionJob)
};

}  // namespace

bool SessionJob::printerCollates() const {
  return m_session.marks().printer().has(collateOption);
}

JobSettings SessionJob::settings() const {
  JobSettings settings = m_settings;
  if (!printerCollates()) return settings;
  settings.collate = !sameKeyword(m_session.marks().marked(collateOption), "False");
  return settings;
}

void SessionJob::setSettings(const JobSettings &newSettings) {
  const bool collateChanges = newSettings.collate != settings().collate;
  const ActionScope action(m_session);
  m_settings = newSettings;
  if (!printerCollates() || !collateChanges) return;
  m_session.pick(collateOption,
                 newSettings.collate ? QStringLiteral("True") : QStringLiteral("False"));
}

void SessionJob::setDocumentPages(int pages, bool isScript) {
  if (pages == m_documentPages && isScript == m_documentIsScript) return;
  const ActionScope action(m_session);
  m_documentPages = pages;
  m_documentIsScript = isScript;
}

// What makes no sense to a reader goes along as it was saved.
void SessionJob::beginAsSaved() {
  for (const OptionChoice &saved : m_session.origin().queueOptions) {
    const bool isPrinters = !m_session.marksToTry().meaningOf({saved}).isEmpty();
    if (!isPrinters) static_cast<void>(m_saved.take(saved.option, saved.choice));
  }
  m_settings = m_saved.settings;
  m_asked.settings = m_saved.settings;
  m_first = settings();
}

JobSources SessionJob::sources() const {
  return {m_session.origin().queueOptions, m_session.ticket().values(), m_settings, m_asked,
          m_saved};
}

Result<bool> SessionJob::take(const QString &name, const QString &value) {
  AskedOptions asked = m_asked;
  Result<bool> taken = asked.take(name, value);
  // Where the printer has an option for it, the option's mark is what counts.
  if (!taken || !taken.value() || !m_session.marksToTry().meaningOf({{name, value}}).isEmpty()) {
    return taken ? Result<bool>(false) : taken;
  }
  const ActionScope action(m_session, ActionOf::Host);
  m_asked = asked;
  m_settings = asked.settings;
  return true;
}

void SessionJob::pickWord(const OptionChoice &word, const QList<OptionChoice> &beside) {
  const QList<ServerWord> words = ServerWords(m_session.marksToTry(), {word}).words();
  if (words.isEmpty()) return;
  const ActionScope action(m_session);
  for (const OptionChoice &meant : ServerWords(m_session.marksToTry(), beside).choices()) {
    const bool isMeant = words.first().options.contains(meant.option);
    if (isMeant && !isNamedAmong(beside, meant.option)) pickUnrecorded(meant);
  }
}

// The word in the ticket says it.
void SessionJob::pickUnrecorded(const OptionChoice &choice) {
  const QVariant recorded = m_session.ticket().value(choice.option);
  if (m_session.pick(choice.option, choice.choice)) {
    m_session.setTicketValue(choice.option, recorded);
  }
}

int SessionJob::pagesPerSheet() const {
  return integerReading(m_session.ticket().value(layoutNUpKey));
}

void SessionJob::setPagesPerSheet(int pages) {
  const ActionScope action(m_session);
  m_session.setTicketValue(layoutNUpKey, pages);
}

void SessionJob::pickPagesPerSheet(int pages) {
  const ActionScope action(m_session);
  const bool hadBooklet = bookletSettings(m_session.ticket().values()).enabled;
  setPagesPerSheet(pages);
  m_session.panels().willShow();
  if (!hadBooklet || pages < 2) return;
  // Where no panel has seen to it.
  m_session.setTicketValue(enableBookletKey, QString(falseValue));
  m_session.say(
      {Words::tr("Booklet was set to Off: it can't be combined with several pages per sheet")});
}

QString SessionJob::sheetPaper() const {
  const auto papers =
      m_session.marks().printer().option(QLatin1String(imposition::sheetPaperOption)).choices();
  const int target = bookletSettings(m_session.ticket().values()).targetPaper;
  const auto choice = imposition::targetPaperChoice(target, static_cast<int>(papers.size()));
  return choice ? papers[*choice].keyword : QString();
}

TicketValues SessionJob::ticketToKeep() {
  return withoutUntrueWords(m_session.marksToTry(), m_session.ticket().values());
}

QStringList SessionJob::optionsWithCustomValues() const {
  return orvek::optionsWithCustomValues(m_session.marks());
}

QStringList SessionJob::overruledOptions() {
  return orvek::overruledOptions(m_session.marksToTry(), sources());
}

QMap<QString, QString> SessionJob::options() {
  return jobOptionsFor(m_session.marksToTry(), sources());
}

QMap<QString, QString> SessionJob::savedOptions(const QMap<QString, QString> &said) {
  const QStringList overruled = overruledOptions();
  QMap<QString, QString> saved;
  for (const OptionChoice &option : m_session.origin().queueOptions) {
    const bool isSaid = valueNamed(said, option.option).has_value();
    const bool isOverruled = overruled.contains(option.option, Qt::CaseInsensitive);
    if (isSaid || isOverruled || describesQueue(option.option)) continue;
    saved.insert(option.option, option.choice);
  }
  return saved;
}

}  // namespace orvek
