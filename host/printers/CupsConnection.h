// SPDX-License-Identifier: Apache-2.0
// The one way to a CUPS server: with a limit on every wait, so that a server that stops answers
// with a failure instead of a hang.
#pragma once

#include <QString>
#include <memory>

#include "host/printers/Passwords.h"
#include "host/printers/ServerAccess.h"
#include "host/printers/WaitLimit.h"
#include "platform/system/Result.h"

namespace orvek {

/// An open connection. libcups keeps server and user per thread: use a connection, and every
/// libcups call about its server, on the thread that opened it, and one connection at a time. Owns
/// libcups' connection; shares the passwords; borrows the flag that cancels it. Calls that fail are
/// put into words by lastFailure().
class CupsConnection {
 public:
  /// Fails where the server is unknown or does not answer within a few seconds.
  static Result<std::unique_ptr<CupsConnection>> open(const ServerAccess &access);

  ~CupsConnection();
  CupsConnection(const CupsConnection &) = delete;
  CupsConnection &operator=(const CupsConnection &) = delete;

  http_t *http() const { return m_http.get(); }

  /// What to call the server in a message.
  const QString &serverName() const { return m_serverName; }

  bool isCancelled() const { return m_limit.isCancelled(); }

  /// What cancels it; may be null.
  const std::atomic<bool> *cancelled() const { return m_access.cancelled; }

  /// Whether an answer was given up or lost. libcups may still report the success of an earlier
  /// call.
  bool isBroken() const;

  /// Whether the server wants a password that nobody gave. libcups may still report the answer to
  /// another question.
  bool lacksPassword() const { return m_passwords.failure().has_value(); }

  /// The failure of the libcups call just made, in words; `what` is what the call was about.
  Failure lastFailure(const Phrase &what) const;

  /// While it lives nobody is asked for a password: for questions to others than the server.
  /// Borrows the connection, on whose thread it lives; nothing fails.
  class Unasked {
   public:
    explicit Unasked(const CupsConnection &connection);
    ~Unasked();
    Unasked(const Unasked &) = delete;
    Unasked &operator=(const Unasked &) = delete;

   private:
    const CupsConnection &m_connection;
  };

 private:
  explicit CupsConnection(const ServerAccess &access);
  static const char *password(const char *prompt, http_t *http, const char *method,
                              const char *resource, void *connection);
  const char *nextPassword(const http_t *asking);

  ServerAccess m_access;
  QString m_serverName;
  WaitLimit m_limit;
  HttpHandle m_http;
  PasswordRounds m_passwords;
  /// Libcups' connection that wanted the last password.
  const http_t *m_asking = nullptr;
  /// Lent to libcups, which copies it.
  QByteArray m_password;
};

}  // namespace orvek
