// SPDX-License-Identifier: Apache-2.0
// Two number fields with a sign between them.

#include "host/settings/CustomSizeRow.h"

#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QSignalBlocker>
#include <cmath>

#include "host/settings/NumberField.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gap = 6;

// Rounded towards the inside, so that what the field takes the printer takes too.
double inUnit(double points, const PaperUnit &unit, double (*round)(double)) {
  const double scale = std::pow(10, unit.decimals);
  return round(points / unit.points * scale) / scale;
}

void showLength(QDoubleSpinBox *field, double points, double least, double most,
                const PaperUnit &unit) {
  const QSignalBlocker silent(field);
  field->setRange(inUnit(least, unit, std::ceil), inUnit(most, unit, std::floor));
  const double value = inUnit(points, unit, std::round);
  // Setting an equal value would spoil a number that is being typed.
  if (std::abs(field->value() - value) > std::pow(10, -unit.decimals) / 2) field->setValue(value);
}

}  // namespace

CustomSizeRow::CustomSizeRow(QWidget *parent) : QWidget(parent), m_unit(PaperUnit::ofLocale()) {
  auto *row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(gap);
  m_width = addField(QStringLiteral("customWidth"), tr("Paper width"));
  row->addWidget(new PlainLabel(QStringLiteral("×"), this));
  m_height = addField(QStringLiteral("customHeight"), tr("Paper height"));
  row->addStretch(1);
  setFocusProxy(m_width);
}

QDoubleSpinBox *CustomSizeRow::addField(const QString &name, const QString &text) {
  auto *field = new NumberField(m_unit.points, this);
  field->setObjectName(name);
  field->setAccessibleName(text);
  field->setToolTip(plainToolTip(text));
  field->setDecimals(m_unit.decimals);
  field->setSuffix(QLatin1Char(' ') + QString::fromLatin1(m_unit.cupsName));
  // Each digit on the way to a size would be a pick of its own.
  field->setKeyboardTracking(false);
  layout()->addWidget(field);
  connect(field, &QDoubleSpinBox::valueChanged, this, [this] { Q_EMIT choicePicked(choice()); });
  return field;
}

void CustomSizeRow::setSize(QSizeF size, const CustomPaperLimits &limits) {
  showLength(m_width, size.width(), limits.least.width(), limits.most.width(), m_unit);
  showLength(m_height, size.height(), limits.least.height(), limits.most.height(), m_unit);
}

QString CustomSizeRow::choice() const {
  return customPaperChoice(
      QSizeF(m_width->value() * m_unit.points, m_height->value() * m_unit.points), m_unit);
}

}  // namespace orvek
