// SPDX-License-Identifier: Apache-2.0
// libcups' spelling of custom values, written and read.

#include "host/ppd/CustomValue.h"

#include <cups/cups.h>

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <array>
#include <optional>

namespace orvek {
namespace {

constexpr int shownDecimals = 2;
constexpr double pointsPerInch = 72;
constexpr double pointsPerCentimetre = pointsPerInch / 2.54;
const QString customPrefix = QStringLiteral("Custom.");
const QString paperOption = QStringLiteral("PageSize");

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::CustomValue)
};

struct LengthUnit {
  const char *name;
  double points;
};
constexpr std::array<LengthUnit, 7> lengthUnits{{{"", 1},
                                                 {"pt", 1},
                                                 {"in", pointsPerInch},
                                                 {"ft", 12 * pointsPerInch},
                                                 {"cm", pointsPerCentimetre},
                                                 {"mm", pointsPerCentimetre / 10},
                                                 {"m", pointsPerCentimetre * 100}}};

CustomParameter parameterOf(const ppd_cparam_t &found) {
  using Kind = CustomParameter::Kind;
  const auto as = [&found](Kind kind, double least, double most) {
    const char *text = found.text[0] != '\0' ? found.text : found.name;
    return CustomParameter{QString::fromUtf8(found.name), QString::fromUtf8(text), kind, least,
                           most};
  };
  const ppd_cplimit_t &least = found.minimum;
  const ppd_cplimit_t &most = found.maximum;
  switch (found.type) {
    case PPD_CUSTOM_INT:
      return as(Kind::Integer, least.custom_int, most.custom_int);
    case PPD_CUSTOM_CURVE:
      return as(Kind::Real, double(least.custom_curve), double(most.custom_curve));
    case PPD_CUSTOM_INVCURVE:
      return as(Kind::Real, double(least.custom_invcurve), double(most.custom_invcurve));
    case PPD_CUSTOM_REAL:
      return as(Kind::Real, double(least.custom_real), double(most.custom_real));
    case PPD_CUSTOM_POINTS:
      return as(Kind::Length, double(least.custom_points), double(most.custom_points));
    case PPD_CUSTOM_PASSCODE:
      return as(Kind::Passcode, least.custom_passcode, most.custom_passcode);
    case PPD_CUSTOM_PASSWORD:
      return as(Kind::Password, least.custom_password, most.custom_password);
    default:
      return as(Kind::Text, least.custom_string, most.custom_string);
  }
}

std::optional<double> numberIn(const QString &text) {
  bool isNumber = false;
  const double number = text.trimmed().toDouble(&isNumber);
  return isNumber ? std::optional(number) : std::nullopt;
}

// "2cm", "56.7"
std::optional<double> pointsIn(const QString &text) {
  const QString length = text.trimmed();
  const auto isOfUnit = [](QChar letter) { return letter.isLetter(); };
  const qsizetype digits = std::find_if(length.begin(), length.end(), isOfUnit) - length.begin();
  const std::optional<double> number = numberIn(length.left(digits));
  for (const LengthUnit &unit : lengthUnits) {
    if (number && length.mid(digits) == QLatin1String(unit.name)) return *number * unit.points;
  }
  return std::nullopt;
}

QString plainNumber(double number) {
  return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

// As a field would show it; null where it is none.
QString readValue(const CustomParameter &parameter, const QString &text) {
  if (!parameter.isNumber()) return text;
  const bool isLength = parameter.kind == CustomParameter::Kind::Length;
  const std::optional<double> number = isLength ? pointsIn(text) : numberIn(text);
  return number ? plainNumber(*number) : QString();
}

QString quoted(QString text) {
  text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  text.replace(QLatin1Char('"'), QLatin1String("\\\""));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

QString numberText(double number) {
  QString text = QLocale().toString(number, 'f', shownDecimals);
  while (text.endsWith(QLatin1Char('0'))) text.chop(1);
  return text.back().isDigit() ? text : text.chopped(1);
}

QString valueText(const CustomParameter &parameter, const QString &value) {
  if (parameter.isSecret()) return QStringLiteral("••••");
  if (!parameter.isNumber()) return value;
  const QString number = numberText(value.toDouble());
  return parameter.kind == CustomParameter::Kind::Length ? Text::tr("%1 pt").arg(number) : number;
}

bool isDigits(const QString &text) {
  return std::all_of(text.begin(), text.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString textProblem(const CustomParameter &parameter, const QString &value) {
  if (parameter.kind == CustomParameter::Kind::Passcode && !isDigits(value)) {
    return Text::tr("%1: digits only").arg(parameter.text);
  }
  const auto size = static_cast<double>(value.size());
  if (size >= parameter.least && size <= parameter.most) return {};
  if (parameter.least == parameter.most) {
    return Text::tr("%1: %2 characters").arg(parameter.text, numberText(parameter.most));
  }
  return Text::tr("%1: %2 to %3 characters")
      .arg(parameter.text, numberText(parameter.least), numberText(parameter.most));
}

}  // namespace

QList<CustomParameter> customParameters(ppd_file_t *ppd, const QString &option) {
  QList<CustomParameter> parameters;
  if (ppd == nullptr || option.compare(paperOption, Qt::CaseInsensitive) == 0) return parameters;
  ppd_coption_t *custom = ppdFindCustomOption(ppd, option.toUtf8().constData());
  if (custom == nullptr) return parameters;
  QList<ppd_cparam_t *> found;
  for (ppd_cparam_t *each = ppdFirstCustomParam(custom); each != nullptr;
       each = ppdNextCustomParam(custom)) {
    found << each;
  }
  std::stable_sort(
      found.begin(), found.end(),
      [](const ppd_cparam_t *one, const ppd_cparam_t *other) { return one->order < other->order; });
  for (const ppd_cparam_t *each : found) parameters << parameterOf(*each);
  return parameters;
}

QString customChoice(const QList<CustomParameter> &parameters, const CustomValues &values) {
  if (parameters.size() == 1) return customPrefix + values.value(parameters.first().name);
  QStringList parts;
  for (const CustomParameter &parameter : parameters) {
    const auto value = values.constFind(parameter.name);
    if (value == values.constEnd()) continue;
    parts << parameter.name + QLatin1Char('=') + (parameter.isNumber() ? *value : quoted(*value));
  }
  return QLatin1Char('{') + parts.join(QLatin1Char(' ')) + QLatin1Char('}');
}

bool isCustomChoice(const QString &choice) {
  return choice.compare(customPrefix.chopped(1), Qt::CaseInsensitive) == 0 ||
         hasCustomValues(choice);
}

bool hasCustomValues(const QString &choice) {
  return choice.startsWith(customPrefix, Qt::CaseInsensitive) ||
         choice.startsWith(QLatin1Char('{'));
}

CustomValues customValues(const QList<CustomParameter> &parameters, const QString &choice) {
  CustomValues values;
  if (parameters.isEmpty() || !hasCustomValues(choice)) return values;
  if (!choice.startsWith(QLatin1Char('{'))) {
    const QString value = readValue(parameters.first(), choice.mid(customPrefix.size()));
    if (!value.isNull()) values.insert(parameters.first().name, value);
    return values;
  }
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(choice.toUtf8().constData(), 0, &options);
  for (const CustomParameter &parameter : parameters) {
    const char *text = cupsGetOption(parameter.name.toUtf8().constData(), count, options);
    const QString value =
        text == nullptr ? QString() : readValue(parameter, QString::fromUtf8(text));
    if (!value.isNull()) values.insert(parameter.name, value);
  }
  cupsFreeOptions(count, options);
  return values;
}

QString customValueProblem(const CustomParameter &parameter, const QString &value) {
  if (!parameter.isNumber()) return textProblem(parameter, value);
  const std::optional<double> number = numberIn(value);
  if (number && *number >= parameter.least && *number <= parameter.most) return {};
  return Text::tr("%1: %2 to %3")
      .arg(parameter.text, valueText(parameter, plainNumber(parameter.least)),
           valueText(parameter, plainNumber(parameter.most)));
}

QString customValueText(ppd_file_t *ppd, const OptionChoice &choice) {
  const QList<CustomParameter> parameters = customParameters(ppd, choice.option);
  const CustomValues values = customValues(parameters, choice.choice);
  QStringList words;
  for (const CustomParameter &parameter : parameters) {
    const auto value = values.constFind(parameter.name);
    if (value != values.constEnd()) words << valueText(parameter, *value);
  }
  return words.isEmpty() ? QString() : words.join(QStringLiteral(", "));
}

}  // namespace orvek
