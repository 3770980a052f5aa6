// SPDX-License-Identifier: Apache-2.0
// Asks for the password of a protected document.
#pragma once

#include "host/dialog/PasswordForm.h"

namespace orvek {

/// The window, a form like others.
class DocumentPassword final : public PasswordForm {
  Q_OBJECT

 public:
  /// `isRepeated`: the one before did not open it.
  DocumentPassword(const QString &document, bool isRepeated, QWidget *parent);
};

}  // namespace orvek
