// SPDX-License-Identifier: Apache-2.0
// Looks each choice up in the PPD.

#include "host/presets/PresetFit.h"

#include <QCoreApplication>

#include "host/ppd/CustomValue.h"

namespace orvek {
namespace {

/// The words of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::PresetFit)
};

const char *const kEquipmentGroup = "InstallableOptions";

bool groupHolds(const ppd_group_t &group, const ppd_option_t *option) {
  for (int i = 0; i < group.num_options; ++i)
    if (&group.options[i] == option) return true;
  for (int i = 0; i < group.num_subgroups; ++i)
    if (groupHolds(group.subgroups[i], option)) return true;
  return false;
}

bool isEquipment(const ppd_file_t &ppd, const ppd_option_t *option) {
  for (int i = 0; i < ppd.num_groups; ++i)
    if (qstricmp(ppd.groups[i].name, kEquipmentGroup) == 0)
      return groupHolds(ppd.groups[i], option);
  return false;
}

QString nameOf(const ppd_option_t &option) {
  return QString::fromUtf8(option.text[0] ? option.text : option.keyword);
}

/// "Custom.WIDTHxHEIGHT" is a choice of its own beside the one called "Custom".
QString spelledChoice(const ppd_choice_t &found, const QString &choice) {
  return hasCustomValues(choice) ? choice : QString::fromUtf8(found.choice);
}

/// Another printer has other limits. Null where the choice keeps to them.
QString customProblem(ppd_file_t *ppd, const OptionChoice &choice) {
  const QList<CustomParameter> parameters = customParameters(ppd, choice.option);
  const CustomValues values = customValues(parameters, choice.choice);
  for (const CustomParameter &parameter : parameters) {
    const auto value = values.constFind(parameter.name);
    if (value == values.constEnd()) continue;
    const QString problem = customValueProblem(parameter, *value);
    if (!problem.isNull()) return problem;
  }
  return {};
}

void fitOption(const QString &keyword, const QString &choice, ppd_file_t *ppd, PresetFit &fit) {
  const auto misfit = [&](const QString &why) {
    fit.misfits << PresetMisfit{keyword, choice, why};
  };
  ppd_option_t *option = ppd ? ppdFindOption(ppd, keyword.toUtf8().constData()) : nullptr;
  if (!option) return misfit(Text::tr("this printer has no option \"%1\"").arg(keyword));
  if (isEquipment(*ppd, option))
    return misfit(Text::tr("\"%1\" is installed equipment, which a preset does not change")
                      .arg(nameOf(*option)));
  const ppd_choice_t *found = ppdFindChoice(option, choice.toUtf8().constData());
  if (!found)
    return misfit(
        Text::tr("\"%1\" of this printer has no choice \"%2\"").arg(nameOf(*option), choice));
  if (const QString problem = customProblem(ppd, {keyword, choice}); !problem.isNull())
    return misfit(Text::tr("\"%1\" of this printer takes %2").arg(nameOf(*option), problem));
  fit.options.insert(QString::fromUtf8(option->keyword), spelledChoice(*found, choice));
}

}  // namespace

QString PresetMisfit::line() const {
  return option + u'=' + choice + QStringLiteral(": ") + why;
}

PresetFit fitPreset(const Preset &preset, ppd_file_t *ppd) {
  PresetFit fit;
  fit.ticket = preset.ticket;
  for (auto option = preset.options.cbegin(); option != preset.options.cend(); ++option)
    fitOption(option.key(), option.value(), ppd, fit);
  return fit;
}

}  // namespace orvek
