// SPDX-License-Identifier: Apache-2.0
// libcups' spelling of custom choices.

#include "host/ppd/CustomChoice.h"

#include <cups/cups.h>

#include <utility>

#include "host/ppd/Keyword.h"

namespace orvek {
namespace {

const QString valuePrefix = QString(CustomChoice::keyword) + QLatin1Char('.');
constexpr QChar partsBegin = u'{';
constexpr QChar partsEnd = u'}';

}  // namespace

CustomChoice::CustomChoice(Spelling spelling, QString text)
    : m_spelling(spelling), m_text(std::move(text)) {}

std::optional<CustomChoice> CustomChoice::read(const QString &choice) {
  if (choice.startsWith(partsBegin)) return CustomChoice(Spelling::Parts, choice);
  if (choice.startsWith(valuePrefix, Qt::CaseInsensitive)) {
    return CustomChoice(Spelling::Value, choice);
  }
  if (sameKeyword(choice, keyword)) return CustomChoice(Spelling::Open, choice);
  return std::nullopt;
}

CustomChoice CustomChoice::ofValue(const QString &value) {
  return {Spelling::Value, valuePrefix + value};
}

CustomChoice CustomChoice::ofParts(const QStringList &parts) {
  return {Spelling::Parts, partsBegin + parts.join(QLatin1Char(' ')) + partsEnd};
}

QString CustomChoice::quoted(QString text) {
  text.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
  text.replace(QLatin1Char('"'), QLatin1String("\\\""));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

QString CustomChoice::value() const {
  return m_spelling == Spelling::Value ? m_text.mid(valuePrefix.size()) : QString();
}

QMap<QString, QString> CustomChoice::values() const {
  QMap<QString, QString> values;
  if (m_spelling != Spelling::Parts) return values;
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(m_text.toUtf8().constData(), 0, &options);
  for (int i = 0; i < count; ++i) {
    values.insert(QString::fromUtf8(options[i].name), QString::fromUtf8(options[i].value));
  }
  cupsFreeOptions(count, options);
  return values;
}

QString CustomChoice::constrainedName() const {
  return m_spelling == Spelling::Parts ? valuePrefix + QStringLiteral("values") : m_text;
}

bool isCustomChoice(const QString &choice) {
  return CustomChoice::read(choice).has_value();
}

bool hasCustomValues(const QString &choice) {
  const std::optional<CustomChoice> custom = CustomChoice::read(choice);
  return custom && custom->hasValues();
}

QString listedChoice(const QString &choice) {
  return isCustomChoice(choice) ? QString(CustomChoice::keyword) : choice;
}

}  // namespace orvek
