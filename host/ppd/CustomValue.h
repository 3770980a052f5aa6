// SPDX-License-Identifier: Apache-2.0
// Custom choices of PPD options (*CustomXXX with its *ParamCustomXXX) other than paper sizes: what
// they ask for, and how libcups spells what was given. Reads the PPD only.
#pragma once

#include <QList>
#include <QMap>
#include <QString>

#include "host/ppd/Marks.h"

namespace orvek {

/// One value that a custom choice asks for.
struct CustomParameter {
  enum class Kind { Integer, Real, Length, Text, Password, Passcode };

  QString name;  ///< its keyword
  QString text;  ///< for people
  Kind kind = Kind::Text;
  double least = 0;  ///< of numbers; lengths are points; of texts, the number of characters
  double most = 0;

  bool isNumber() const { return kind <= Kind::Length; }
  /// Nobody is to read it over a shoulder.
  bool isSecret() const { return kind >= Kind::Password; }
};

/// The parameters of an option's custom choice, in the PPD's order; none where it has no such
/// choice, and for paper sizes.
QList<CustomParameter> customParameters(ppd_file_t *ppd, const QString &option);

/// By a parameter's name; numbers as in a program, lengths in points.
using CustomValues = QMap<QString, QString>;

/// "Custom.VALUE", or "{NAME=VALUE ...}" where there are several parameters. Those without a value
/// are left out.
QString customChoice(const QList<CustomParameter> &parameters, const CustomValues &values);

/// True for the choice called "Custom", and for either spelling with values.
bool isCustomChoice(const QString &choice);

/// True for either spelling with values.
bool hasCustomValues(const QString &choice);

/// What a spelling holds. A number that makes no sense is left out.
CustomValues customValues(const QList<CustomParameter> &parameters, const QString &choice);

/// Why a value can't be taken, as a sentence without a full stop that begins with the parameter's
/// text; null where it can.
QString customValueProblem(const CustomParameter &parameter, const QString &value);

/// The values for people, secrets as dots; null where the choice has none.
QString customValueText(ppd_file_t *ppd, const OptionChoice &choice);

}  // namespace orvek
