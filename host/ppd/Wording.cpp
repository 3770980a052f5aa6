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

QString sentence(const PrinterDescription &printer, const ChoiceChange &change) {
  return Text::tr("%1 was set to %2: it can't be combined with %3")
      .arg(optionText(printer, change.option),
           choiceText(printer, {change.option, change.newChoice}),
           namedChoice(printer, change.partner));
}

QString refusal(const PrinterDescription &printer, const Resolution &resolution) {
  QStringList partners;
  for (const OptionChoice &partner : resolution.incompatible) {
    partners << namedChoice(printer, partner);
  }
  return Text::tr("%1 was not set to %2: it can't be combined with %3")
      .arg(optionText(printer, resolution.pick.option), choiceText(printer, resolution.pick),
           partners.join(QStringLiteral(", ")));
}

}  // namespace

QString optionText(const PrinterDescription &printer, const QString &option) {
  const QString text = printer.option(option).text();
  return text.isEmpty() ? option : text;
}

QString choiceText(const PrinterDescription &printer, const OptionChoice &choice) {
  const std::optional<PrinterChoice> found = printer.option(choice.option).choice(choice.choice);
  if (!found || found->text.isEmpty()) return choice.choice;
  const QString values = customValueText(printer, choice);
  return values.isNull() ? found->text : found->text + QStringLiteral(": ") + values;
}

QString namedChoice(const PrinterDescription &printer, const OptionChoice &choice) {
  const PrinterOption option = printer.option(choice.option);
  const QString text = choiceText(printer, choice);
  const bool selfExplaining =
      option && option.kind() != OptionKind::Boolean && !printer.isEquipment(choice.option);
  return selfExplaining ? text : optionText(printer, choice.option) + QStringLiteral(": ") + text;
}

QStringList wordsFor(const PrinterDescription &printer, const Resolution &resolution) {
  if (!resolution.marked) return {refusal(printer, resolution)};
  QStringList words;
  for (const ChoiceChange &change : resolution.changes) words << sentence(printer, change);
  return words;
}

}  // namespace orvek
