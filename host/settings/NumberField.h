// SPDX-License-Identifier: Apache-2.0
// A number field that takes what people type: a comma or a point, whichever their language has, and
// a length in a unit of their own.
#pragma once

#include <QDoubleSpinBox>
#include <optional>

namespace orvek {

/// The number that a text says: with a comma or a point before its decimals, and signs between
/// groups of digits where the other one is there too. A length may end in "mm", "cm", "in" or "pt"
/// (inches also as a double quote) and is given in the field's unit, `unitPoints` points long,
/// which it is in without an ending. Zero points: a plain number, with no units. Nothing where the
/// text says no number.
std::optional<double> typedNumber(const QString &text, double unitPoints);

/// Shows numbers as the language has them; a number out of range is not taken. Belongs to its
/// parent and lives on the interface's thread; nothing fails.
class NumberField final : public QDoubleSpinBox {
  Q_OBJECT

 public:
  /// `unitPoints` as for typedNumber().
  explicit NumberField(double unitPoints, QWidget *parent = nullptr);

  QValidator::State validate(QString &text, int &place) const override;
  double valueFromText(const QString &text) const override;

 private:
  QString typed(const QString &text) const;

  double m_unitPoints;
};

}  // namespace orvek
