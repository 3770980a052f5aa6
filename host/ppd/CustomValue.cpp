// SPDX-License-Identifier: Apache-2.0
// Parameters and values between the PPD, a choice's spelling, and people.

#include "host/ppd/CustomValue.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <optional>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/LengthUnit.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

constexpr int shownDecimals = 2;
const QString paperOption = QStringLiteral("PageSize");

/// The texts of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::CustomValue)
};

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
  const std::optional<double> unit = pointsPerUnit(length.mid(digits));
  return number && unit ? std::optional(*number * *unit) : std::nullopt;
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

QList<CustomParameter> customParameters(const PrinterDescription &printer, const QString &option) {
  QList<CustomParameter> parameters;
  if (sameKeyword(option, paperOption)) return parameters;
  ppd_coption_t *custom = ppdFindCustomOption(printer.lend(), option.toUtf8().constData());
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
  if (parameters.size() == 1) {
    return CustomChoice::ofValue(values.value(parameters.first().name)).text();
  }
  QStringList parts;
  for (const CustomParameter &parameter : parameters) {
    const auto value = values.constFind(parameter.name);
    if (value == values.constEnd()) continue;
    const QString written = parameter.isNumber() ? *value : CustomChoice::quoted(*value);
    parts << parameter.name + QLatin1Char('=') + written;
  }
  return CustomChoice::ofParts(parts).text();
}

CustomValues customValues(const QList<CustomParameter> &parameters, const QString &choice) {
  CustomValues values;
  const std::optional<CustomChoice> custom = CustomChoice::read(choice);
  if (parameters.isEmpty() || !custom) return values;
  CustomValues given = custom->values();
  if (!custom->value().isNull()) given.insert(parameters.first().name, custom->value());
  for (const CustomParameter &parameter : parameters) {
    const auto text = std::find_if(given.keyBegin(), given.keyEnd(), [&](const QString &name) {
      return sameKeyword(name, parameter.name);
    });
    if (text == given.keyEnd()) continue;
    const QString value = readValue(parameter, given.value(*text));
    if (!value.isNull()) values.insert(parameter.name, value);
  }
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

QString customValueText(const PrinterDescription &printer, const OptionChoice &choice) {
  const QList<CustomParameter> parameters = customParameters(printer, choice.option);
  const CustomValues values = customValues(parameters, choice.choice);
  QStringList words;
  for (const CustomParameter &parameter : parameters) {
    const auto value = values.constFind(parameter.name);
    if (value != values.constEnd()) words << valueText(parameter, *value);
  }
  return words.isEmpty() ? QString() : words.join(QStringLiteral(", "));
}

}  // namespace orvek
