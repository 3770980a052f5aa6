// SPDX-License-Identifier: Apache-2.0
// libcups' connection to a server: with a limit on every wait, so that a server that stops answers
// with a failure instead of a hang.
#pragma once

#include <QString>
#include <memory>

#include "host/server/ProgramLink.h"
#include "host/server/WaitLimit.h"
#include "platform/system/Result.h"

namespace orvek {

/// Which server, and as whom. Plain data.
struct ServerWish {
  /// HOST[:PORT], or a socket's path; null leaves it to libcups.
  QString server;
  QString user;
  std::chrono::milliseconds patience{};
  /// Nobody waits for the answers, or can be asked.
  bool isLeft = false;
  /// The one password there is then.
  std::optional<GivenPassword> password = {};
};

/// An open connection. libcups keeps server and user per thread: use a connection, and every
/// libcups call about its server, on the thread that opened it, and one connection at a time. Owns
/// libcups' connection; borrows the link, over which passwords are asked for. Calls that fail are
/// put into words by lastFailure().
class CupsConnection {
 public:
  /// Tells the server's name first. Fails where the server is unknown or does not answer within a
  /// few seconds.
  static Result<std::unique_ptr<CupsConnection>> open(const ServerWish &wish, ProgramLink &link);

  ~CupsConnection();
  CupsConnection(const CupsConnection &) = delete;
  CupsConnection &operator=(const CupsConnection &) = delete;

  http_t *http() const { return m_http.get(); }
  ProgramLink &link() const { return m_link; }

  /// What to call the server in a message.
  const QString &serverName() const { return m_serverName; }

  /// Whether an answer was given up or lost. libcups may still report the success of an earlier
  /// call.
  bool isBroken() const;

  /// Whether the server wants a password that nobody gave. libcups may still report the answer to
  /// another question.
  bool lacksPassword() const { return m_lacksPassword; }

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
  CupsConnection(const ServerWish &wish, ProgramLink &link);
  static const char *password(const char *prompt, http_t *http, const char *method,
                              const char *resource, void *connection);
  const char *nextPassword(const http_t *asking);
  std::optional<GivenPassword> asked(bool isAnew);

  ServerWish m_wish;
  ProgramLink &m_link;
  QString m_serverName;
  WaitLimit m_limit;
  HttpHandle m_http;
  /// libcups' connection that wanted the last password.
  const http_t *m_asking = nullptr;
  bool m_lacksPassword = false;
  /// Lent to libcups, which copies it.
  QByteArray m_password;
};

}  // namespace orvek
