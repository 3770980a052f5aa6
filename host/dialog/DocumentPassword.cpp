// SPDX-License-Identifier: Apache-2.0
// A line of words, a field and two buttons.

#include "host/dialog/DocumentPassword.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "platform/ui/PlainText.h"

namespace orvek {
namespace {

constexpr int leastWidth = 320;

}  // namespace

DocumentPassword::DocumentPassword(const QString &document, bool isRepeated, QWidget *parent)
    : QDialog(parent), m_password(new QLineEdit(this)) {
  setWindowTitle(tr("Password"));
  setObjectName(QStringLiteral("documentPassword"));
  const QString words = isRepeated ? tr("That password does not open %1.").arg(document)
                                   : tr("%1 is protected by a password.").arg(document);
  auto *label = new PlainLabel(words, this);
  label->setObjectName(QStringLiteral("documentPasswordWords"));
  label->setWordWrap(true);
  label->setMinimumWidth(leastWidth);
  m_password->setObjectName(QStringLiteral("documentPasswordField"));
  m_password->setEchoMode(QLineEdit::Password);
  m_password->setAccessibleDescription(words);
  auto *form = new QFormLayout;
  form->addRow(tr("&Password:"), m_password);
  auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
  QPushButton *open = buttons->button(QDialogButtonBox::Ok);
  open->setText(tr("&Open"));
  open->setEnabled(false);
  buttons->button(QDialogButtonBox::Cancel)->setText(tr("Cancel"));
  connect(m_password, &QLineEdit::textChanged, open,
          [open](const QString &text) { open->setEnabled(!text.isEmpty()); });
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  auto *column = new QVBoxLayout(this);
  column->addWidget(label);
  column->addLayout(form);
  column->addWidget(buttons);
  m_password->setFocus();
}

QString DocumentPassword::password() const {
  return m_password->text();
}

}  // namespace orvek
