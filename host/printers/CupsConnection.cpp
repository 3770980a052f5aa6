// SPDX-License-Identifier: Apache-2.0
// Connects, limits waits, and puts libcups' last error into words.

#include "host/printers/CupsConnection.h"

#include <cerrno>
#include <utility>

namespace orvek {
namespace {

/// Without this libcups would read a password from the terminal, also under a window.
const char *noPassword(const char *, http_t *, const char *, const char *, void *) {
  return nullptr;
}

QByteArray bytesOrNull(const QString &text) {
  return text.isEmpty() ? QByteArray() : text.toUtf8();
}

const char *orNull(const QByteArray &bytes) {
  return bytes.isEmpty() ? nullptr : bytes.constData();
}

QString nameOfServer() {
  const QString server = QString::fromUtf8(cupsServer());
  if (server.startsWith(u'/')) return server;
  return QStringLiteral("%1:%2").arg(server).arg(ippPort());
}

// Why the server did not do what libcups' last call asked for.
Phrase refusalInWords() {
  switch (cupsLastError()) {
    case IPP_STATUS_ERROR_NOT_FOUND:
      return Phrase(
          QT_TRANSLATE_NOOP("orvek::Failure", "the print server has no such queue or job"));
    case IPP_STATUS_ERROR_FORBIDDEN:
    case IPP_STATUS_ERROR_NOT_AUTHORIZED:
    case IPP_STATUS_ERROR_NOT_AUTHENTICATED:
      return Phrase(
          QT_TRANSLATE_NOOP("orvek::Failure", "the print server does not allow it for user \"%1\""),
          {QString::fromUtf8(cupsUser())});
    case IPP_STATUS_ERROR_NOT_ACCEPTING_JOBS:
      return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the queue takes no jobs at present"));
    default:
      break;
  }
  const QString text = QString::fromUtf8(cupsLastErrorString()).simplified();
  if (!text.isEmpty()) return Phrase::ofSystem(text);
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the print server gave no answer"));
}

}  // namespace

CupsConnection::CupsConnection(const ServerAccess &access)
    : m_access(access), m_limit(access.patience, access.cancelled), m_passwords(access.passwords) {}

CupsConnection::~CupsConnection() {
  cupsSetPasswordCB2(noPassword, nullptr);
}

Result<std::unique_ptr<CupsConnection>> CupsConnection::open(const ServerAccess &access) {
  cupsSetServer(orNull(bytesOrNull(access.server)));
  cupsSetUser(orNull(bytesOrNull(access.user)));
  std::unique_ptr<CupsConnection> connection(new CupsConnection(access));
  cupsSetPasswordCB2(password, connection.get());
  connection->m_serverName = nameOfServer();
  connection->m_http = connection->m_limit.connect(cupsServer(), ippPort(), cupsEncryption());
  if (!connection->m_http) {
    const int error = errno;
    return Failure{FailureKind::Io, connection->m_serverName,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "no print server answers there (%1)"),
                          {Phrase::ofSystem(error)})};
  }
  return connection;
}

bool CupsConnection::isBroken() const {
  return isCancelled() || m_limit.gaveUp() || httpError(http()) != 0;
}

const char *CupsConnection::password(const char *, http_t *http, const char *, const char *,
                                     void *connection) {
  return static_cast<CupsConnection *>(connection)->nextPassword(http);
}

const char *CupsConnection::nextPassword(const http_t *asking) {
  // For a PPD libcups may open a connection of its own, which begins without a password.
  if (std::exchange(m_asking, asking) != asking) m_passwords.beginAnew();
  const auto answer =
      m_passwords.next(m_serverName, QString::fromUtf8(cupsUser()), m_access.cancelled);
  if (!answer) return nullptr;
  cupsSetUser(orNull(bytesOrNull(answer->user)));
  m_password = answer->password.toUtf8();
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
  if (isCancelled()) return cancelledFailure(what);
  if (lacksPassword()) return *m_passwords.failure();
  if (m_limit.gaveUp()) {
    return {FailureKind::Io, m_serverName,
            Phrase(QT_TRANSLATE_NOOP(
                "orvek::Failure", "the print server stopped answering; try again once it is up"))};
  }
  if (const int error = httpError(http())) {
    return {
        FailureKind::Io, what,
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the connection to the print server broke (%1)"),
               {Phrase::ofSystem(error)})};
  }
  return {FailureKind::Io, what, refusalInWords()};
}

}  // namespace orvek
