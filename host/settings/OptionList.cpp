// SPDX-License-Identifier: Apache-2.0
// Walks the groups of a PPD.

#include "host/settings/OptionList.h"

#include <QHash>
#include <QSet>

#include "host/ppd/CustomValue.h"

namespace orvek {
namespace {

using Standards = QHash<QString, QString>;  // option in lower case to choice

QString textOr(const char *text, const char *keyword) {
  return QString::fromUtf8(text[0] != '\0' ? text : keyword);
}

Standards standardsOf(const QList<OptionChoice> &queueOptions) {
  Standards standards;
  for (const OptionChoice &option : queueOptions) {
    standards.insert(option.option.toLower(), option.choice);
  }
  return standards;
}

QString standardOf(const ppd_option_t &option, const Standards &standards) {
  const auto ofQueue = standards.constFind(QString::fromUtf8(option.keyword).toLower());
  if (ofQueue == standards.constEnd()) return QString::fromUtf8(option.defchoice);
  // What the PPD lacks was not marked either.
  auto &mutableOption = const_cast<ppd_option_t &>(option);  // libcups' look-up takes no const
  const ppd_choice_t *choice = ppdFindChoice(&mutableOption, ofQueue->toUtf8().constData());
  if (choice == nullptr) return QString::fromUtf8(option.defchoice);
  return hasCustomValues(*ofQueue) ? *ofQueue : QString::fromUtf8(choice->choice);
}

void appendGroup(QList<OptionGroup> *groups, const ppd_group_t &group, const QString &text,
                 const QSet<QString> &leftOut, const Standards &standards) {
  OptionGroup found{text, {}};
  for (int i = 0; i < group.num_options; ++i) {
    const ppd_option_t &option = group.options[i];
    const QString keyword = QString::fromUtf8(option.keyword);
    if (leftOut.contains(keyword.toLower())) continue;
    found.options.append(
        {keyword, textOr(option.text, option.keyword), standardOf(option, standards)});
  }
  if (!found.options.isEmpty()) groups->append(found);
  for (int i = 0; i < group.num_subgroups; ++i) {
    const ppd_group_t &inner = group.subgroups[i];
    appendGroup(groups, inner, text + QStringLiteral(" – ") + textOr(inner.text, inner.name),
                leftOut, standards);
  }
}

}  // namespace

QList<OptionGroup> optionGroups(ppd_file_t *ppd, const QStringList &leftOut,
                                const QList<OptionChoice> &queueOptions) {
  QList<OptionGroup> groups;
  if (ppd == nullptr) return groups;
  QSet<QString> names;
  for (const QString &keyword : leftOut) names.insert(keyword.toLower());
  const Standards standards = standardsOf(queueOptions);
  for (int i = 0; i < ppd->num_groups; ++i) {
    const ppd_group_t &group = ppd->groups[i];
    appendGroup(&groups, group, textOr(group.text, group.name), names, standards);
  }
  return groups;
}

QList<SettingChoice> choicesOf(ppd_file_t *ppd, const QString &option) {
  QList<SettingChoice> choices;
  const ppd_option_t *found = ppdFindOption(ppd, option.toUtf8().constData());
  if (found == nullptr) return choices;
  const bool asksForValues = !customParameters(ppd, option).isEmpty();
  for (int i = 0; i < found->num_choices; ++i) {
    const ppd_choice_t &choice = found->choices[i];
    const QString keyword = QString::fromUtf8(choice.choice);
    QString text = textOr(choice.text, choice.choice);
    if (isCustomChoice(keyword)) {
      if (!asksForValues) continue;
      text += QStringLiteral("…");
    }
    choices.append({keyword, text});
  }
  return choices;
}

bool isSwitch(ppd_file_t *ppd, const QString &option) {
  ppd_option_t *found = ppdFindOption(ppd, option.toUtf8().constData());
  constexpr int onAndOff = 2;
  return found != nullptr && found->ui == PPD_UI_BOOLEAN && found->num_choices == onAndOff &&
         ppdFindChoice(found, "True") != nullptr && ppdFindChoice(found, "False") != nullptr;
}

bool isChanged(const Marks &marks, const OptionEntry &entry) {
  return marks.marked(entry.keyword).compare(entry.standard, Qt::CaseInsensitive) != 0;
}

QString searchText(ppd_file_t *ppd, const OptionEntry &entry) {
  QString text = entry.text + QLatin1Char('\n') + entry.keyword;
  const ppd_option_t *option = ppdFindOption(ppd, entry.keyword.toUtf8().constData());
  for (int i = 0; option != nullptr && i < option->num_choices; ++i) {
    text += QLatin1Char('\n') + QString::fromUtf8(option->choices[i].text);
  }
  return text;
}

}  // namespace orvek
