// SPDX-License-Identifier: Apache-2.0
// Saves a session's settings and brings them back.

#include "host/presets/SessionPreset.h"

#include <algorithm>

#include "host/ppd/Wording.h"
#include "host/session/CommonSettings.h"
#include "host/ticket/BookletSettings.h"
#include "platform/plugin/BookletKeys.h"

namespace orvek {
namespace {

bool isMisfit(const PresetFit &fit, const QString &key) {
  return std::any_of(fit.misfits.begin(), fit.misfits.end(),
                     [&](const PresetMisfit &misfit) { return misfit.option == key; });
}

void writeTicket(PrintSession &session, const PresetFit &fit, const QStringList &keep) {
  for (auto entry = fit.ticket.begin(); entry != fit.ticket.end(); ++entry) {
    if (keep.contains(entry.key()) || isMisfit(fit, entry.key())) continue;
    // A choice is recorded by its pick, and not at all where the pick is undone.
    const bool isChoice = session.marks().spelled(entry.key(), textReading(*entry)).has_value();
    if (!isChoice) session.setTicketValue(entry.key(), *entry);
  }
}

// A ticket may hold choices that no mark of the preset repeats: one that is the PPD's default.
QMap<QString, QString> choicesOf(const PresetFit &fit, const PrintSession &session) {
  QMap<QString, QString> choices;
  for (auto entry = fit.ticket.begin(); entry != fit.ticket.end(); ++entry) {
    const auto spelled = session.marks().spelled(entry.key(), textReading(*entry));
    if (spelled) choices.insert(spelled->option, spelled->choice);
  }
  choices.insert(fit.options);
  return choices;
}

// Words say what their options' own names leave unsaid; on another printer that may be everything.
void pickWords(PrintSession &session, const PresetFit &fit, const QMap<QString, QString> &choices,
               const QStringList &keep) {
  QList<OptionChoice> asked;
  for (auto entry = fit.ticket.begin(); entry != fit.ticket.end(); ++entry) {
    if (!keep.contains(entry.key())) asked.append({entry.key(), textReading(*entry)});
  }
  QList<OptionChoice> beside = asked;
  for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
    beside.append({choice.key(), choice.value()});
  }
  for (const QString &kept : keep) beside.append({kept, QString()});
  for (const OptionChoice &option : asked) session.job().pickWord(option, beside);
}

// Panels also write down what nobody asked for. It says what an absent key says, and on another
// queue it would overrule the booklet that is saved there.
TicketValues withoutAbsentBooklet(const TicketValues &ticket) {
  TicketValues said;
  for (auto entry = ticket.begin(); entry != ticket.end(); ++entry) {
    const bool isBooklets = bookletEntry({entry.key(), textReading(*entry)}).has_value();
    const bool saysNothing = bookletSettings({{entry.key(), *entry}}) == bookletSettings({});
    if (!isBooklets || !saysNothing) said.insert(entry.key(), *entry);
  }
  return said;
}

// Nothing that was meant for one document is to befall the next, and no secret is to be kept.
bool isOneJobs(const QString &key) {
  const QString name = key.toLower();
  if (name == u"job-sheets") return false;
  const auto begins = [&name](const char *word) { return name.startsWith(QLatin1String(word)); };
  const bool isAbout = begins("job-") || begins("document-") || begins("requesting-");
  const bool isSelection = begins("page-ranges") || begins("page-set") || begins("page-label");
  return isAbout || isSelection || name == u"copies" || name.contains(u"password");
}

}  // namespace

Preset presetOf(PrintSession &session, const QString &name) {
  Preset preset;
  preset.name = name;
  preset.printerModel =
      session.origin().printer ? session.origin().printer->modelName() : QString();
  preset.ticket = session.job().ticketToKeep();
  for (const OptionChoice &mark : session.marks().differingFromDefaults()) {
    if (session.marks().printer().isEquipment(mark.option)) continue;
    preset.options.insert(mark.option, mark.choice);
    preset.titles.insert(mark.option, optionText(session.marks().printer(), mark.option));
  }
  return preset;
}

Preset entriesOf(PrintSession &session) {
  Preset entries = presetOf(session, {});
  entries.ticket = withoutAbsentBooklet(entries.ticket);
  const auto paper = commonSetting(session, CommonSetting::PaperSize);
  if (!paper || !paper->isInPpd || paper->current.isNull()) return entries;
  entries.options.insert(paper->key, paper->current);
  entries.titles.insert(paper->key, paper->title);
  return entries;
}

Preset lastUsedOf(PrintSession &session) {
  Preset used = entriesOf(session);
  for (const QString &key : used.ticket.keys()) {
    if (isOneJobs(key)) used.ticket.remove(key);
  }
  for (const OptionChoice &saved : session.origin().queueOptions) {
    const auto queues = session.marks().spelled(saved.option, saved.choice);
    if (!queues || session.marks().printer().isEquipment(queues->option)) continue;
    const QString marked = session.marks().marked(queues->option);
    if (!marked.isNull()) used.options.insert(queues->option, marked);
  }
  return used;
}

SettingsInForce settingsInForce(const PrintSession &session) {
  SettingsInForce settings;
  const TicketValues said = withoutAbsentBooklet(session.ticket().values());
  for (auto entry = said.begin(); entry != said.end(); ++entry) {
    const bool isOnePage = entry.key() == layoutNUpKey && integerReading(*entry) <= 1;
    const bool isMark = session.marks().printer().has(entry.key());
    if (!isOnePage && !isMark) settings.insert(entry.key(), textReading(*entry));
  }
  for (const OptionChoice &mark : session.marks().differingFromDefaults()) {
    settings.insert(mark.option, mark.choice);
  }
  return settings;
}

QList<PresetMisfit> applyPreset(PrintSession &session, const Preset &preset,
                                const QStringList &keep) {
  const PresetFit fit = fitPreset(preset, session.marks().printer());
  const ActionScope action(session);
  writeTicket(session, fit, keep);
  const QMap<QString, QString> choices = choicesOf(fit, session);
  pickWords(session, fit, choices, keep);
  for (auto choice = choices.begin(); choice != choices.end(); ++choice) {
    if (!keep.contains(choice.key())) session.pick(choice.key(), choice.value());
  }
  session.panels().restore();
  return fit.misfits;
}

}  // namespace orvek
