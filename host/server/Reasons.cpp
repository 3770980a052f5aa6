// SPDX-License-Identifier: Apache-2.0
// libcups has error numbers, keywords and texts, not all of which mean what they say.

#include "host/server/Reasons.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <memory>

#include "host/printers/ServerMessages.h"

namespace orvek {
namespace {

constexpr int onceMoreMilliseconds = 1000;

using Addresses = std::unique_ptr<http_addrlist_t, decltype(&httpAddrFreeList)>;

int errorOf(int socket) {
  int error = 0;
  socklen_t size = sizeof error;
  ::getsockopt(socket, SOL_SOCKET, SO_ERROR, &error, &size);
  return error;
}

// 0: it can be reached after all.
int errorOfConnecting(const http_addr_t &address) {
  const int socket =
      ::socket(address.addr.sa_family, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  if (socket < 0) return errno;
  int error = 0;
  const auto size = static_cast<socklen_t>(httpAddrLength(&address));
  if (::connect(socket, &address.addr, size) != 0) error = errno;
  if (error == EINPROGRESS) {
    pollfd ready{socket, POLLOUT, 0};
    error = ::poll(&ready, 1, onceMoreMilliseconds) > 0 ? errorOf(socket) : ETIMEDOUT;
  }
  ::close(socket);
  return error;
}

int errorOfConnecting(const http_addrlist_t *addresses) {
  int error = 0;
  for (; addresses != nullptr && error == 0; addresses = addresses->next) {
    error = errorOfConnecting(addresses->addr);
  }
  return error;
}

// libcups keeps the system's last error for what never reached it, or for what it can't read.
bool meansNothing(int error) {
  return error == 0 || error == EBADF || error == EAGAIN || error == EINTR || error == ENOENT ||
         error == EINPROGRESS;
}

// "client-error-not-possible" is "not possible".
QString wordsOf(const QString &keyword) {
  for (const char *group : {"client-error-", "server-error-", "cups-"}) {
    const QLatin1String prefix(group);
    if (keyword.startsWith(prefix)) return keyword.mid(prefix.size()).replace(u'-', u' ');
  }
  return keyword;
}

bool isTextOfAnError(const QString &text) {
  constexpr std::array errors{0, EBADF, EAGAIN, EINTR, ENOENT, EINPROGRESS, EINVAL};
  for (const int error : errors) {
    if (text == QString::fromLocal8Bit(std::strerror(error))) return true;
  }
  return false;
}

}  // namespace

Phrase whyNobodyAnswers(const char *host, int port, qint64 milliseconds) {
  const QByteArray service = QByteArray::number(port);
  const Addresses addresses(httpAddrGetList(host, AF_UNSPEC, service.constData()),
                            &httpAddrFreeList);
  if (!addresses) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "no print server has this name"));
  }
  const bool tookLong = milliseconds > onceMoreMilliseconds;
  const int error = tookLong ? ETIMEDOUT : errorOfConnecting(addresses.get());
  if (error == 0) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "no print server answers there"));
  }
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "no print server answers there (%1)"),
                {Phrase::ofSystem(error)});
}

Phrase whyItBroke(int error) {
  if (error == EINVAL || error == EILSEQ) return unreadableAnswer();
  if (meansNothing(error)) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the connection to the print server broke"));
  }
  return Phrase(
      QT_TRANSLATE_NOOP("orvek::Failure", "the connection to the print server broke (%1)"),
      {Phrase::ofSystem(error)});
}

Phrase whyRefused(http_t *http) {
  const ipp_status_t status = cupsLastError();
  switch (status) {
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
  if (httpGetStatus(http) == HTTP_STATUS_ERROR) return whyItBroke(0);
  const QString text = QString::fromUtf8(cupsLastErrorString()).simplified();
  if (status < IPP_STATUS_REDIRECTION_OTHER_SITE || isTextOfAnError(text)) {
    return unreadableAnswer();
  }
  if (text.isEmpty()) {
    return Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "the print server gave no answer"));
  }
  return Phrase::ofSystem(wordsOf(text));
}

}  // namespace orvek
