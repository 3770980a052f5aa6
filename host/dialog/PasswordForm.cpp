// SPDX-License-Identifier: Apache-2.0
// Words, fields and two buttons, one below the other.

#include "host/dialog/PasswordForm.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/PlainText.h"

namespace orvek {

PasswordForm::PasswordForm(const QString &words, const QString &accept, QWidget *parent)
    : QDialog(parent),
      m_words(new PlainLabel(words, this)),
      m_password(new QLineEdit(this)),
      m_fields(new QFormLayout) {
  setWindowTitle(tr("Password"));
  m_password->setEchoMode(QLineEdit::Password);
  m_fields->addRow(tr("&Password:"), m_password);
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
  ok->setText(accept);
  ok->setEnabled(false);
  buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
  connect(m_password, &QLineEdit::textChanged, ok,
          [ok](const QString &text) { ok->setEnabled(!text.isEmpty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *column = new QVBoxLayout(this);
  column->addWidget(m_words);
  column->addLayout(m_fields);
  column->addWidget(buttons);
  m_password->setFocus();
}

QString PasswordForm::password() const {
  return m_password->text();
}

void PasswordForm::addField(const QString &label, QLineEdit *field) {
  m_fields->insertRow(m_fields->rowCount() - 1, label, field);
  setTabOrder(field, m_password);
}

}  // namespace orvek
