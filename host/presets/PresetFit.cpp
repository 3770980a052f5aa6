// SPDX-License-Identifier: Apache-2.0
// Looks each choice up in the PPD.

#include "host/presets/PresetFit.h"

#include <QCoreApplication>

#include "host/ppd/CustomValue.h"
#include "host/ticket/BookletSettings.h"
#include "platform/plugin/BookletKeys.h"
#include "platform/plugin/FinishingKeywords.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

/// The words of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::PresetFit)
};

/// Another printer has other limits. Null where the choice keeps to them.
QString customProblem(const PrinterDescription &printer, const OptionChoice &choice) {
  const QList<CustomParameter> parameters = customParameters(printer, choice.option);
  const CustomValues values = customValues(parameters, choice.choice);
  for (const CustomParameter &parameter : parameters) {
    const auto value = values.constFind(parameter.name);
    if (value == values.constEnd()) continue;
    const QString problem = customValueProblem(parameter, *value);
    if (!problem.isNull()) return problem;
  }
  return {};
}

// Null where the printer takes the choice.
QString problemOf(const PrinterDescription &printer, const OptionChoice &choice,
                  const QString &title) {
  const PrinterOption option = printer.option(choice.option);
  if (!option) return Text::tr("this printer has no option \"%1\"").arg(title);
  if (printer.isEquipment(choice.option)) {
    return Text::tr("\"%1\" is installed equipment, which a preset does not change")
        .arg(option.text());
  }
  if (option.spelled(choice.choice).isNull()) {
    return Text::tr("\"%1\" of this printer has no choice \"%2\"")
        .arg(option.text(), choice.choice);
  }
  const QString problem = customProblem(printer, choice);
  return problem.isNull() ? QString()
                          : Text::tr("\"%1\" of this printer takes %2").arg(option.text(), problem);
}

bool makesBooklets(const PrinterDescription &printer) {
  return printer.attribute(hasBookletAttribute) == trueValue;
}

void takeOutBooklet(PresetFit *fit) {
  fit->misfits << PresetMisfit{enableBookletKey, trueValue,
                               Text::tr("this printer makes no booklets")};
  for (const QLatin1String key : bookletFlags) removeNamed(&fit->ticket, key);
  for (const QLatin1String key : bookletNumbers) removeNamed(&fit->ticket, key);
}

}  // namespace

QString PresetMisfit::line() const {
  return option + u'=' + choice + QStringLiteral(": ") + why;
}

PresetFit fitPreset(const Preset &preset, const PrinterDescription &printer) {
  PresetFit fit;
  fit.ticket = preset.ticket;
  for (auto option = preset.options.cbegin(); option != preset.options.cend(); ++option) {
    const QString problem = problemOf(printer, {option.key(), option.value()},
                                      preset.titles.value(option.key(), option.key()));
    if (!problem.isNull()) {
      fit.misfits << PresetMisfit{option.key(), option.value(), problem};
    } else if (const auto spelled = printer.spelled(option.key(), option.value())) {
      fit.options.insert(spelled->option, spelled->choice);
    }
  }
  if (bookletSettings(fit.ticket).enabled && !makesBooklets(printer)) takeOutBooklet(&fit);
  return fit;
}

}  // namespace orvek
