// SPDX-License-Identifier: Apache-2.0
// Builds the sentences shown to users from display texts.

#include "host/ppd/Wording.h"

#include <QCoreApplication>

#include "host/ppd/CustomValue.h"

namespace orvek {
namespace {

/// The sentences of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::Wording)
};

QString sentence(ppd_file_t *ppd, const ChoiceChange &change) {
  return Text::tr("%1 was set to %2: it can't be combined with %3")
      .arg(optionText(ppd, change.option), choiceText(ppd, {change.option, change.newChoice}),
           namedChoice(ppd, change.partner));
}

QString refusal(ppd_file_t *ppd, const Resolution &resolution) {
  QStringList partners;
  for (const OptionChoice &partner : resolution.incompatible) partners << namedChoice(ppd, partner);
  return Text::tr("%1 was not set to %2: it can't be combined with %3")
      .arg(optionText(ppd, resolution.pick.option), choiceText(ppd, resolution.pick),
           partners.join(QStringLiteral(", ")));
}

}  // namespace

QString optionText(ppd_file_t *ppd, const QString &option) {
  const ppd_option_t *found = ppdFindOption(ppd, option.toUtf8().constData());
  const QString text = found == nullptr ? QString() : QString::fromUtf8(found->text);
  return text.isEmpty() ? option : text;
}

QString choiceText(ppd_file_t *ppd, const OptionChoice &choice) {
  ppd_option_t *option = ppdFindOption(ppd, choice.option.toUtf8().constData());
  if (option == nullptr || choice.choice.isEmpty()) return choice.choice;
  const ppd_choice_t *found = ppdFindChoice(option, choice.choice.toUtf8().constData());
  const QString text = found == nullptr ? QString() : QString::fromUtf8(found->text);
  if (text.isEmpty()) return choice.choice;
  const QString values = customValueText(ppd, choice);
  return values.isNull() ? text : text + QStringLiteral(": ") + values;
}

QString namedChoice(ppd_file_t *ppd, const OptionChoice &choice) {
  const ppd_option_t *option = ppdFindOption(ppd, choice.option.toUtf8().constData());
  const QString text = choiceText(ppd, choice);
  const bool selfExplaining = option != nullptr && option->ui != PPD_UI_BOOLEAN &&
                              !isInstalledEquipment(ppd, choice.option);
  return selfExplaining ? text : optionText(ppd, choice.option) + QStringLiteral(": ") + text;
}

QStringList wordsFor(ppd_file_t *ppd, const Resolution &resolution) {
  if (!resolution.marked) return {refusal(ppd, resolution)};
  QStringList words;
  for (const ChoiceChange &change : resolution.changes) words << sentence(ppd, change);
  return words;
}

}  // namespace orvek
