// SPDX-License-Identifier: Apache-2.0
// Reads and writes the words that print servers have for them.

#include "host/session/JobChoices.h"

#include <algorithm>
#include <array>
#include <vector>

#include "host/ppd/Keyword.h"
#include "host/ppd/StandardNames.h"
#include "host/session/PrintSession.h"
#include "platform/printing/PrintSettings.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

struct Facts {
  QLatin1String attribute;
  /// What a server does that was told nothing.
  QLatin1String standard;
  std::vector<const char *> keywords;
  /// The server says which it takes, if any.
  bool isServers = false;
};

const Facts &factsOf(JobChoice which) {
  static const std::array<Facts, jobChoices> all{{
      {QLatin1String("page-set"), QLatin1String("all"), {"all", "odd", "even"}},
      {QLatin1String("print-scaling"), QLatin1String("auto"), {"auto", "fit", "fill", "none"}},
      {QLatin1String("number-up-layout"),
       QLatin1String("lrtb"),
       {"lrtb", "rltb", "lrbt", "rlbt", "tblr", "tbrl", "btlr", "btrl"}},
      {QLatin1String("job-sheets"), QLatin1String("none"), {}, true},
      {QLatin1String("job-hold-until"), QLatin1String("no-hold"), {}, true},
      {QLatin1String("job-priority"), QLatin1String("50"), {"30", "50", "80", "100"}, true},
  }};
  return all[static_cast<std::size_t>(which)];
}

// Older words for scaling, where the word itself says nothing.
constexpr std::array fitWords{"fit-to-page", "fitplot"};
constexpr const char *fillWord = "fill";

bool isOn(const QString &value) {
  return isAnyOf(value, {"true", "on", "yes"});
}

QString inTicket(const PrintSession &session, QLatin1String name) {
  const auto value = valueNamed(session.ticket().values(), name);
  return value ? textReading(*value) : QString();
}

QString saved(const PrintSession &session, QLatin1String name) {
  QString found;
  for (const OptionChoice &option : session.origin().queueOptions) {
    if (sameKeyword(option.option, name)) found = option.choice;
  }
  return found;
}

using Source = QString (*)(const PrintSession &, QLatin1String);

// Of a banner before and one after the job the first counts where there is no other.
QString oneOf(QString value) {
  constexpr QLatin1String noneAfter(",none");
  if (value.endsWith(noneAfter)) value.chop(noneAfter.size());
  return value;
}

QString wordIn(const PrintSession &session, JobChoice which, Source source) {
  const QString said = oneOf(source(session, factsOf(which).attribute).trimmed().toLower());
  if (which != JobChoice::Scaling || isAnyOf(said, {"fit", "fill", "none"})) return said;
  for (const char *word : fitWords) {
    if (isOn(source(session, QLatin1String(word)))) return QStringLiteral("fit");
  }
  return isOn(source(session, QLatin1String(fillWord))) ? QStringLiteral("fill") : said;
}

QString queues(const PrintSession &session, JobChoice which) {
  const QString word = wordIn(session, which, saved);
  return word.isEmpty() ? QString(factsOf(which).standard) : word;
}

QString inForce(const PrintSession &session, JobChoice which) {
  const QString word = wordIn(session, which, inTicket);
  return word.isEmpty() ? queues(session, which) : word;
}

QString textOf(const QString &attribute, const QString &keyword, const QString &usual) {
  const QString name = standardChoiceName(attribute, keyword);
  return name.isNull() ? usual : name;
}

QList<SettingChoice> choicesOf(const PrintSession &session, const Facts &facts) {
  QList<SettingChoice> choices;
  for (const char *keyword : facts.keywords) {
    const QString word = QString::fromLatin1(keyword);
    choices.append({word, textOf(facts.attribute, word, word)});
  }
  for (const SettingOffer &offer : session.origin().jobOffers) {
    if (offer.attribute != facts.attribute || !choices.isEmpty()) continue;
    for (const SettingChoice &choice : offer.choices) {
      choices.append({choice.keyword, textOf(facts.attribute, choice.keyword, choice.text)});
    }
  }
  return choices;
}

}  // namespace

std::optional<Setting> jobChoice(const PrintSession &session, JobChoice which) {
  const Facts &facts = factsOf(which);
  if (session.marks().printer().has(facts.attribute)) return std::nullopt;
  if (facts.isServers && session.origin().jobOffers.isEmpty()) return std::nullopt;
  Setting setting{facts.attribute, standardOptionName(facts.attribute), choicesOf(session, facts),
                  inForce(session, which), false};
  if (setting.choices.size() < 2) return std::nullopt;
  const bool isUsual =
      std::any_of(setting.choices.begin(), setting.choices.end(),
                  [&](const SettingChoice &choice) { return choice.keyword == setting.current; });
  if (!isUsual) {
    setting.choices.append(
        {setting.current, textOf(facts.attribute, setting.current, setting.current)});
  }
  return setting;
}

void pickJobChoice(PrintSession &session, JobChoice which, const QString &choice) {
  const ActionScope action(session);
  const Facts &facts = factsOf(which);
  for (const QString &key : session.ticket().values().keys()) {
    if (jobChoiceOf(key) == which) session.setTicketValue(key, QVariant());
  }
  if (choice == queues(session, which)) return;
  session.setTicketValue(facts.attribute, choice);
  if (which != JobChoice::Scaling || choice != facts.standard) return;
  // The word for "automatic" lets the queue's older words count.
  for (const char *word : {fitWords[0], fitWords[1], fillWord}) {
    const QLatin1String name(word);
    if (isOn(saved(session, name))) session.setTicketValue(name, QStringLiteral("false"));
  }
}

bool isJobChoiceChanged(const PrintSession &session, JobChoice which) {
  return inForce(session, which) != queues(session, which);
}

std::optional<JobChoice> jobChoiceOf(const QString &key) {
  for (int place = 0; place < jobChoices; ++place) {
    const auto which = static_cast<JobChoice>(place);
    if (sameKeyword(key, factsOf(which).attribute)) return which;
  }
  const bool isScaling = isAnyOf(key, {fitWords[0], fitWords[1], fillWord});
  return isScaling ? std::optional(JobChoice::Scaling) : std::nullopt;
}

}  // namespace orvek
