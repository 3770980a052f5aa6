// SPDX-License-Identifier: Apache-2.0
// Fields for the values that an option's custom choice asks for. Shows and asks; changes nothing by
// itself.
#pragma once

#include <QList>
#include <QWidget>

#include "host/ppd/CustomValue.h"

class QFormLayout;
class QLabel;

namespace orvek {

/// One field for each parameter; what is wrong with a value stands below it. Belongs to its parent,
/// owns its child controls, and lives on the interface's thread. Nothing fails.
class CustomValueForm final : public QWidget {
  Q_OBJECT

 public:
  explicit CustomValueForm(QWidget *parent = nullptr);

  /// Makes fields for these parameters, unless they are there already, and shows the values. A
  /// number without a value is at its least.
  void show(const QList<CustomParameter> &parameters, const CustomValues &values);

  /// In the order of the parameters.
  QList<QWidget *> fields() const;

  /// The keyboard goes to the first field.
  void startTyping();

  /// Gives what the fields hold, where the printer can take it; else says why it can't.
  void offer();

 Q_SIGNALS:
  /// The user gave all values; this is their spelling.
  void choicePicked(const QString &choice);

 private:
  struct Field {
    CustomParameter parameter;
    QWidget *widget;
  };

  void makeFields(const QList<CustomParameter> &parameters);
  QWidget *makeNumber(const CustomParameter &parameter);
  QWidget *makeText(const CustomParameter &parameter);
  CustomValues values() const;
  QString problem() const;

  QFormLayout *m_rows;
  QLabel *m_problem;
  QList<Field> m_fields;
};

}  // namespace orvek
