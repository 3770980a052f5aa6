// SPDX-License-Identifier: Apache-2.0
// Asks for the password of a protected document.
#pragma once

#include <QDialog>

class QLineEdit;

namespace orvek {

/// The window; the password is not shown. Belongs to its parent, owns its child controls, and lives
/// on the interface's thread. Nothing fails: whoever cancels gave no password.
class DocumentPassword final : public QDialog {
  Q_OBJECT

 public:
  /// `isRepeated`: the one before did not open it.
  DocumentPassword(const QString &document, bool isRepeated, QWidget *parent);

  QString password() const;

 private:
  QLineEdit *m_password;
};

}  // namespace orvek
