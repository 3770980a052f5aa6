// SPDX-License-Identifier: Apache-2.0
// What windows have in common that ask for a password.
#pragma once

#include <QDialog>

class QFormLayout;
class QLabel;
class QLineEdit;

namespace orvek {

/// Words, fields, the password's last, and two buttons: the one that hands the password on waits
/// for some of it. It is not shown, and has the keyboard first. Belongs to its parent, owns its
/// child controls, and lives on the interface's thread. Nothing fails: whoever cancels gave none.
class PasswordForm : public QDialog {
  Q_OBJECT

 public:
  QString password() const;

 protected:
  /// `accept`: what the button says that hands the password on.
  PasswordForm(const QString &words, const QString &accept, QWidget *parent);

  /// Above the password; takes the field.
  void addField(const QString &label, QLineEdit *field);

  QLabel *words() { return m_words; }
  QLineEdit *passwordField() { return m_password; }

 private:
  QLabel *m_words;
  QLineEdit *m_password;
  QFormLayout *m_fields;
};

}  // namespace orvek
