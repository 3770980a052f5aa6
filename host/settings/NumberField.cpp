// SPDX-License-Identifier: Apache-2.0
// Reads numbers and units.

#include "host/settings/NumberField.h"

#include <QLocale>
#include <algorithm>

#include "host/ppd/LengthUnit.h"

namespace orvek {
namespace {

// As a program writes it; null where two signs could both stand before the decimals.
QString plainNumber(QString text) {
  text.remove(QLatin1Char(' ')).remove(QChar::Nbsp).remove(QChar(0x202f));
  text.replace(QChar(0x2212), QLatin1Char('-'));
  const qsizetype commas = text.count(QLatin1Char(','));
  const qsizetype points = text.count(QLatin1Char('.'));
  const bool pointIsLast = text.lastIndexOf(QLatin1Char('.')) > text.lastIndexOf(QLatin1Char(','));
  if (commas > 0 && points > 0) text.remove(QLatin1Char(pointIsLast ? ',' : '.'));
  text.replace(QLatin1Char(','), QLatin1Char('.'));
  return text.count(QLatin1Char('.')) > 1 ? QString() : text;
}

// Digits of other scripts are what they are worth.
QString withPlainDigits(QString text) {
  for (QChar &letter : text) {
    if (letter.digitValue() >= 0) letter = QChar(u'0' + letter.digitValue());
  }
  return text;
}

bool isOfNumber(QChar letter) {
  return letter.digitValue() >= 0 || letter.isSpace() || QStringLiteral(".,-+").contains(letter) ||
         letter == QChar(0x2212);
}

std::optional<double> pointsOf(const QString &unit) {
  if (unit == QLatin1String("\"") || unit == QChar(0x2033)) return pointsPerInch;
  return pointsPerUnit(unit);
}

}  // namespace

std::optional<double> typedNumber(const QString &text, double unitPoints) {
  const auto end = std::find_if_not(text.begin(), text.end(), isOfNumber);
  const QString digits = text.left(end - text.begin());
  const QString unit = text.mid(end - text.begin()).trimmed();
  bool isNumber = false;
  const double number = plainNumber(withPlainDigits(digits)).toDouble(&isNumber);
  if (!isNumber) return std::nullopt;
  if (unit.isEmpty()) return number;
  const std::optional<double> points = unitPoints > 0 ? pointsOf(unit) : std::nullopt;
  return points ? std::optional(number * *points / unitPoints) : std::nullopt;
}

NumberField::NumberField(double unitPoints, QWidget *parent)
    : QDoubleSpinBox(parent), m_unitPoints(unitPoints) {}

// Without the field's own unit behind it.
QString NumberField::typed(const QString &text) const {
  return text.endsWith(suffix()) ? text.chopped(suffix().size()) : text;
}

QValidator::State NumberField::validate(QString &text, int &) const {
  const QString plain = typed(text);
  const bool mayHaveUnit = m_unitPoints > 0;
  const bool isPossible = std::all_of(plain.begin(), plain.end(), [&](QChar letter) {
    const bool isUnits = letter.isLetter() || letter == u'"' || letter == QChar(0x2033);
    return isOfNumber(letter) || (mayHaveUnit && isUnits);
  });
  if (!isPossible) return QValidator::Invalid;
  const std::optional<double> number = typedNumber(plain, m_unitPoints);
  if (!number) return QValidator::Intermediate;
  const double nearest = valueFromText(text);
  return nearest >= minimum() && nearest <= maximum() ? QValidator::Acceptable
                                                      : QValidator::Intermediate;
}

double NumberField::valueFromText(const QString &text) const {
  const double number = typedNumber(typed(text), m_unitPoints).value_or(value());
  return QString::number(number, 'f', decimals()).toDouble();
}

}  // namespace orvek
