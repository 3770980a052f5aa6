// SPDX-License-Identifier: Apache-2.0
// Says beside a number field of a panel what was understood of what was typed there, while that is
// something else.
#pragma once

#include <QObject>
#include <QString>

#include "host/settings/FieldNote.h"

class QLineEdit;
class QWidget;

namespace orvek {

/// A panel reads its fields as it likes and puts what it read in their place, so that "12.7" can
/// become 127 before anyone has seen it. Watches the text fields on a page of the window: what was
/// typed letter by letter, and what stands there then. Belongs to the page and borrows it. Lives on
/// the interface's thread; nothing fails.
class UnderstoodNote final : public QObject {
  Q_OBJECT

 public:
  explicit UnderstoodNote(QWidget &page);

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void follow(QLineEdit *field, const QString &edited);
  void forget();

  FieldNote m_note;
  /// What was typed since the keyboard came to the field, but for what was deleted.
  QString m_typed;
  /// The field as its panel left it after the last letter.
  QString m_left;
  /// The last number that it left.
  QString m_number;
};

}  // namespace orvek
