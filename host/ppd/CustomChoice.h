// SPDX-License-Identifier: Apache-2.0
// How a choice is spelled whose values the user gives. The one place that knows the spelling; what
// values an option asks for is CustomValue's business.
#pragma once

#include <QLatin1String>
#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

namespace orvek {

/// A custom choice in one of the three spellings of PPD files and CUPS: "Custom", which leaves its
/// values open; "Custom.VALUE"; "{NAME=VALUE NAME=VALUE}". A value of its own: it borrows nothing,
/// nothing fails, and any thread may have one.
class CustomChoice {
 public:
  /// What every option's custom choice is called.
  static constexpr QLatin1String keyword{"Custom"};

  /// What a constraint on an option's custom choice begins with, before the option's name.
  static constexpr QLatin1String constraintPrefix{"Custom"};

  /// The choice, if it is a custom one.
  static std::optional<CustomChoice> read(const QString &choice);

  static CustomChoice ofValue(const QString &value);

  /// "NAME=VALUE" each, a text in the quotes that quoted() makes.
  static CustomChoice ofParts(const QStringList &parts);
  static QString quoted(QString text);

  /// Whether it says values.
  bool hasValues() const { return m_spelling != Spelling::Open; }

  /// VALUE of "Custom.VALUE"; null for the other spellings.
  QString value() const;

  /// The values of "{NAME=VALUE ...}", by name, without their quotes; none for the others.
  QMap<QString, QString> values() const;

  const QString &text() const { return m_text; }

  /// How libcups finds it in constraints: there it knows "Custom.VALUE" only.
  QString constrainedName() const;

 private:
  enum class Spelling { Open, Value, Parts };

  CustomChoice(Spelling spelling, QString text);

  Spelling m_spelling;
  QString m_text;
};

/// True for a custom choice in any spelling.
bool isCustomChoice(const QString &choice);

/// True for one that says values.
bool hasCustomValues(const QString &choice);

/// The choice as lists show it: one entry stands for all custom values.
QString listedChoice(const QString &choice);

}  // namespace orvek
