// SPDX-License-Identifier: Apache-2.0
// A row for each parameter, and a line that says what is still missing.

#include "host/settings/CustomValueForm.h"

#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <algorithm>

#include "host/settings/Announcement.h"
#include "host/settings/LabelText.h"
#include "host/settings/NumberField.h"
#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int gap = 6;
constexpr int decimals = 2;
constexpr int numberWidth = 120;

bool areFor(const QList<CustomParameter> &one, const QList<CustomParameter> &other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const CustomParameter &left, const CustomParameter &right) {
                      return left.name == right.name && left.text == right.text &&
                             left.kind == right.kind && left.least == right.least &&
                             left.most == right.most;
                    });
}

void showNumber(QDoubleSpinBox *field, double number) {
  const QSignalBlocker silent(field);
  field->setValue(number);
}

void showText(QLineEdit *field, const QString &text) {
  const QSignalBlocker silent(field);
  if (field->text() != text) field->setText(text);
}

}  // namespace

CustomValueForm::CustomValueForm(QWidget *parent)
    : QWidget(parent), m_rows(new QFormLayout(this)), m_problem(new PlainLabel(this)) {
  setObjectName(QStringLiteral("customValues"));
  m_problem->setObjectName(QStringLiteral("customProblem"));
  m_problem->setWordWrap(true);
  m_rows->setContentsMargins(0, 0, 0, 0);
  m_rows->setSpacing(gap);
  m_rows->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
  m_rows->addRow(m_problem);
}

void CustomValueForm::show(const QList<CustomParameter> &parameters, const CustomValues &values) {
  QList<CustomParameter> present;
  for (const Field &field : m_fields) present << field.parameter;
  if (!areFor(present, parameters)) makeFields(parameters);
  for (const Field &field : m_fields) {
    const QString value = values.value(field.parameter.name);
    if (auto *number = qobject_cast<QDoubleSpinBox *>(field.widget); number != nullptr) {
      showNumber(number, value.isNull() ? field.parameter.least : value.toDouble());
    } else {
      showText(static_cast<QLineEdit *>(field.widget), value);
    }
  }
  m_problem->setText(problem());
  m_problem->setVisible(!m_problem->text().isEmpty());
}

QList<QWidget *> CustomValueForm::fields() const {
  QList<QWidget *> widgets;
  for (const Field &field : m_fields) widgets << field.widget;
  return widgets;
}

void CustomValueForm::startTyping() {
  if (m_fields.isEmpty()) return;
  QWidget *first = m_fields.first().widget;
  first->setFocus(Qt::TabFocusReason);
}

void CustomValueForm::offer() {
  m_problem->setText(problem());
  m_problem->setVisible(!m_problem->text().isEmpty());
  announce(*m_problem, m_problem->text());
  if (!m_problem->text().isEmpty()) return;
  QList<CustomParameter> parameters;
  for (const Field &field : m_fields) parameters << field.parameter;
  Q_EMIT choicePicked(customChoice(parameters, values()));
}

void CustomValueForm::makeFields(const QList<CustomParameter> &parameters) {
  while (m_rows->rowCount() > 1) m_rows->removeRow(0);
  m_fields.clear();
  for (const CustomParameter &parameter : parameters) {
    QWidget *field = parameter.isNumber() ? makeNumber(parameter) : makeText(parameter);
    field->setObjectName(QStringLiteral("custom") + parameter.name);
    field->setAccessibleName(parameter.text);
    auto *label = new PlainLabel(labelText(parameter.text), this);
    label->setBuddy(field);
    m_rows->insertRow(m_rows->rowCount() - 1, label, field);
    m_fields.append({parameter, field});
  }
}

QWidget *CustomValueForm::makeNumber(const CustomParameter &parameter) {
  const bool isLength = parameter.kind == CustomParameter::Kind::Length;
  // In points, or in what else is typed behind it.
  auto *field = new NumberField(isLength ? 1 : 0, this);
  field->setDecimals(parameter.kind == CustomParameter::Kind::Integer ? 0 : decimals);
  field->setRange(parameter.least, parameter.most);
  if (parameter.kind == CustomParameter::Kind::Real) field->setSingleStep(0.1);
  if (isLength) field->setSuffix(tr(" pt"));
  field->setMinimumWidth(numberWidth);
  // Each digit on the way to a number would be a pick of its own.
  field->setKeyboardTracking(false);
  const QString limits =
      tr("%1 to %2")
          .arg(field->textFromValue(parameter.least), field->textFromValue(parameter.most));
  field->setToolTip(plainToolTip(limits));
  field->setAccessibleDescription(limits);
  connect(field, &QDoubleSpinBox::valueChanged, this, &CustomValueForm::offer);
  return field;
}

QWidget *CustomValueForm::makeText(const CustomParameter &parameter) {
  auto *field = new QLineEdit(this);
  field->setMaxLength(static_cast<int>(parameter.most));
  field->setMinimumWidth(2 * numberWidth);
  if (parameter.isSecret()) field->setEchoMode(QLineEdit::Password);
  if (parameter.kind == CustomParameter::Kind::Passcode) {
    field->setInputMethodHints(Qt::ImhDigitsOnly | Qt::ImhHiddenText);
  }
  connect(field, &QLineEdit::editingFinished, this, &CustomValueForm::offer);
  return field;
}

CustomValues CustomValueForm::values() const {
  CustomValues values;
  for (const Field &field : m_fields) {
    const auto *number = qobject_cast<const QDoubleSpinBox *>(field.widget);
    const QString text = number != nullptr
                             ? QString::number(number->value(), 'f', number->decimals())
                             : static_cast<const QLineEdit *>(field.widget)->text();
    values.insert(field.parameter.name, text);
  }
  return values;
}

QString CustomValueForm::problem() const {
  const CustomValues given = values();
  for (const Field &field : m_fields) {
    const QString problem = customValueProblem(field.parameter, given.value(field.parameter.name));
    if (!problem.isNull()) return problem;
  }
  return {};
}

}  // namespace orvek
