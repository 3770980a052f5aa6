// SPDX-License-Identifier: Apache-2.0
// Makes entries of a printer's options.

#include "host/settings/OptionList.h"

#include <QHash>
#include <QSet>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/CustomValue.h"

namespace orvek {
namespace {

using Standards = QHash<QString, QString>;  // option in lower case to choice

Standards standardsOf(const QList<OptionChoice> &queueOptions) {
  Standards standards;
  for (const OptionChoice &option : queueOptions) {
    standards.insert(option.option.toLower(), option.choice);
  }
  return standards;
}

QString standardOf(const PrinterOption &option, const Standards &standards) {
  const auto ofQueue = standards.constFind(option.keyword().toLower());
  // What the PPD lacks was not marked either.
  const QString spelled = ofQueue == standards.constEnd() ? QString() : option.spelled(*ofQueue);
  return spelled.isNull() ? option.defaultChoice() : spelled;
}

}  // namespace

QList<OptionGroup> optionGroups(const PrinterDescription &printer, const QStringList &leftOut,
                                const QList<OptionChoice> &queueOptions) {
  QSet<QString> names;
  for (const QString &keyword : leftOut) names.insert(keyword.toLower());
  const Standards standards = standardsOf(queueOptions);
  QList<OptionGroup> groups;
  for (const PrinterOptionGroup &group : printer.options()) {
    OptionGroup found{group.text, {}};
    for (const PrinterOption &option : group.options) {
      const QString keyword = option.keyword();
      if (names.contains(keyword.toLower())) continue;
      found.options.append({keyword, option.text(), standardOf(option, standards)});
    }
    if (!found.options.isEmpty()) groups.append(found);
  }
  return groups;
}

QList<SettingChoice> choicesOf(const PrinterDescription &printer, const QString &option) {
  QList<SettingChoice> choices;
  const bool asksForValues = !customParameters(printer, option).isEmpty();
  for (const PrinterChoice &choice : printer.choices(option)) {
    const bool isCustom = isCustomChoice(choice.keyword);
    if (isCustom && !asksForValues) continue;
    choices.append({choice.keyword, isCustom ? choice.text + QStringLiteral("…") : choice.text});
  }
  return choices;
}

bool isChanged(const Marks &marks, const OptionEntry &entry) {
  return !sameKeyword(marks.marked(entry.keyword), entry.standard);
}

QString searchText(const PrinterDescription &printer, const OptionEntry &entry) {
  QString text = entry.text + QLatin1Char('\n') + entry.keyword;
  for (const PrinterChoice &choice : printer.choices(entry.keyword)) {
    text += QLatin1Char('\n') + choice.text;
  }
  return text;
}

}  // namespace orvek
