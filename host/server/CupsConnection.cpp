// SPDX-License-Identifier: Apache-2.0
// Connects, limits waits, and has passwords asked for.

#include "host/server/CupsConnection.h"

#include <utility>

#include "host/server/Reasons.h"

namespace orvek {
namespace {

/// Without this libcups would read a password from the terminal, also under a window.
const char *noPassword(const char *, http_t *, const char *, const char *, void *) {
  return nullptr;
}

const char *orNull(const QByteArray &bytes) {
  return bytes.isEmpty() ? nullptr : bytes.constData();
}

QString nameOfServer() {
  const QString server = QString::fromUtf8(cupsServer());
  if (server.startsWith(u'/')) return server;
  return QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

}  // namespace

CupsConnection::CupsConnection(const ServerWish &wish, ProgramLink &link)
    : m_wish(wish), m_link(link), m_limit(wish.patience) {}

CupsConnection::~CupsConnection() {
  cupsSetPasswordCB2(noPassword, nullptr);
}

Result<std::unique_ptr<CupsConnection>> CupsConnection::open(const ServerWish &wish,
                                                             ProgramLink &link) {
  cupsSetServer(orNull(wish.server.toUtf8()));
  cupsSetUser(orNull(wish.user.toUtf8()));
  std::unique_ptr<CupsConnection> connection(new CupsConnection(wish, link));
  cupsSetPasswordCB2(password, connection.get());
  connection->m_serverName = nameOfServer();
  if (!wish.isLeft) {
    link.say(messageOf(MessageKind::Named,
                       {{QLatin1String("server"), fieldOf(connection->m_serverName)}}));
  }
  QElapsedTimer clock;
  clock.start();
  connection->m_http = connection->m_limit.connect(cupsServer(), ippPort(), cupsEncryption());
  if (!connection->m_http) {
    return Failure{FailureKind::Io, connection->m_serverName,
                   whyNobodyAnswers(cupsServer(), ippPort(), clock.elapsed())};
  }
  return connection;
}

bool CupsConnection::isBroken() const {
  return m_limit.gaveUp() || httpError(http()) != 0;
}

const char *CupsConnection::password(const char *, http_t *http, const char *, const char *,
                                     void *connection) {
  return static_cast<CupsConnection *>(connection)->nextPassword(http);
}

std::optional<GivenPassword> CupsConnection::asked(bool isAnew) {
  if (m_wish.isLeft) return std::exchange(m_wish.password, std::nullopt);
  return m_link.password(QString::fromUtf8(cupsUser()), isAnew);
}

const char *CupsConnection::nextPassword(const http_t *asking) {
  // libcups may open a connection of its own, which begins without a password.
  const bool isAnew = std::exchange(m_asking, asking) != asking;
  const auto answer = m_lacksPassword ? std::nullopt : asked(isAnew);
  m_lacksPassword = !answer.has_value();
  if (!answer) return nullptr;
  cupsSetUser(orNull(answer->user));
  m_password = answer->password;
  return m_password.constData();
}

CupsConnection::Unasked::Unasked(const CupsConnection &connection) : m_connection(connection) {
  cupsSetPasswordCB2(noPassword, nullptr);
}

CupsConnection::Unasked::~Unasked() {
  // libcups hands it back as it is; the connection itself is not constant.
  cupsSetPasswordCB2(password, const_cast<CupsConnection *>(&m_connection));
}

Failure CupsConnection::lastFailure(const Phrase &what) const {
  if (m_limit.gaveUp()) return {FailureKind::Io, m_serverName, stoppedAnswering()};
  if (const int error = httpError(http())) return {FailureKind::Io, what, whyItBroke(error)};
  return {FailureKind::Io, what, whyRefused(http())};
}

}  // namespace orvek
