// SPDX-License-Identifier: Apache-2.0
// Says which document it is.

#include "host/dialog/DocumentPassword.h"

#include <QLabel>
#include <QLineEdit>

namespace orvek {
namespace {

constexpr int leastWidth = 320;

QString wordsFor(const QString &document, bool isRepeated) {
  return isRepeated ? DocumentPassword::tr("That password does not open %1.").arg(document)
                    : DocumentPassword::tr("%1 is protected by a password.").arg(document);
}

}  // namespace

DocumentPassword::DocumentPassword(const QString &document, bool isRepeated, QWidget *parent)
    : PasswordForm(wordsFor(document, isRepeated), tr("&Open"), parent) {
  setObjectName(QStringLiteral("documentPassword"));
  words()->setObjectName(QStringLiteral("documentPasswordWords"));
  words()->setWordWrap(true);
  words()->setMinimumWidth(leastWidth);
  passwordField()->setObjectName(QStringLiteral("documentPasswordField"));
  passwordField()->setAccessibleDescription(words()->text());
}

}  // namespace orvek
