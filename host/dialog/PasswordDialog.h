// SPDX-License-Identifier: Apache-2.0
// Asks for user name and password in a small window, from whatever thread a print server wants
// them.
#pragma once

#include <QObject>
#include <QPointer>
#include <memory>

#include "host/dialog/PasswordForm.h"
#include "host/printers/Passwords.h"

namespace orvek {

/// The window, a form like others; the user's name is filled in.
class PasswordDialog final : public PasswordForm {
  Q_OBJECT

 public:
  PasswordDialog(const PasswordQuestion &question, QWidget *parent);

  Credentials credentials() const;

 private:
  QLineEdit *m_user;
};

/// Shows the window on the thread that this object lives on. It must outlive whoever may ask. It
/// may be asked from any thread, which waits; an answer that was not given is a failure. Owns the
/// small window while it is open.
class PasswordWindow final : public QObject {
  Q_OBJECT

 public:
  using QObject::QObject;

  /// Waits for the user on the thread that calls; on the object's own, with an event loop.
  /// Cancelled from elsewhere, the question goes away.
  Result<Credentials> ask(const PasswordQuestion &question, const std::atomic<bool> *cancelled);

 private:
  struct Wait;

  Result<Credentials> askHere(const PasswordQuestion &question);
  void show(const PasswordQuestion &question, const std::shared_ptr<Wait> &wait);

  QPointer<PasswordDialog> m_dialog;
};

}  // namespace orvek
