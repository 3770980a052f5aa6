// SPDX-License-Identifier: Apache-2.0
// Custom choices of PPD options (*CustomXXX with its *ParamCustomXXX) other than paper sizes: what
// they ask for, and what was given. Reads the PPD only.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include "host/ppd/PrinterDescription.h"

namespace orvek {

/// One value that a custom choice asks for. Plain data.
struct CustomParameter {
  enum class Kind { Integer, Real, Length, Text, Password, Passcode };

  /// Its keyword.
  QString name;
  /// For people.
  QString text;
  Kind kind = Kind::Text;
  /// The range of numbers; of lengths in points; of texts, that of the number of characters.
  double least = 0;
  double most = 0;

  bool isNumber() const { return kind <= Kind::Length; }
  /// Nobody is to read it over a shoulder.
  bool isSecret() const { return kind >= Kind::Password; }
};

/// The parameters of an option's custom choice, in the PPD's order; none where it has no such
/// choice, and for paper sizes.
QList<CustomParameter> customParameters(const PrinterDescription &printer, const QString &option);

/// By a parameter's name; numbers as in a program, lengths in points.
using CustomValues = QMap<QString, QString>;

/// The choice that says these values. Those without a value are left out.
QString customChoice(const QList<CustomParameter> &parameters, const CustomValues &values);

/// What a spelling holds. A number that makes no sense is left out.
CustomValues customValues(const QList<CustomParameter> &parameters, const QString &choice);

/// Why a value can't be taken, as a sentence without a full stop that begins with the parameter's
/// text; null where it can.
QString customValueProblem(const CustomParameter &parameter, const QString &value);

/// The values for people, secrets as dots; null where the choice has none.
QString customValueText(const PrinterDescription &printer, const OptionChoice &choice);

}  // namespace orvek
