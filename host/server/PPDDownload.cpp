// SPDX-License-Identifier: Apache-2.0
// One GET, asked again where the server wants a password, another connection or encryption.

#include "host/server/PPDDownload.h"

#include <array>

namespace orvek {
namespace {

constexpr int mostRounds = 12;  // passwords, new connections, encryption
constexpr std::size_t blockBytes = 65536;
constexpr qsizetype largestPPD = 64 << 20;

/// A server's answer. Plain data.
struct PPDAnswer {
  /// OK; NOT_MODIFIED; NOT_FOUND; why not.
  http_status_t status = HTTP_STATUS_ERROR;
  /// Where OK.
  QByteArray ppd;
  /// Where OK: when it was changed last.
  time_t date = 0;
};

bool reconnect(http_t *http) {
  return httpReconnect2(http, connectMilliseconds, nullptr) == 0;
}

http_status_t statusOfGet(http_t *http, const QByteArray &resource, time_t date) {
  const bool isClosing = qstricmp(httpGetField(http, HTTP_FIELD_CONNECTION), "close") == 0;
  if (isClosing && !reconnect(http)) return HTTP_STATUS_ERROR;
  httpClearFields(http);
  httpSetField(http, HTTP_FIELD_AUTHORIZATION, httpGetAuthString(http));
  if (date > 0) {
    std::array<char, 256> text{};
    httpSetField(http, HTTP_FIELD_IF_MODIFIED_SINCE,
                 httpGetDateString2(date, text.data(), int(text.size())));
  }
  if (httpGet(http, resource.constData()) != 0) return HTTP_STATUS_ERROR;
  http_status_t status = HTTP_STATUS_CONTINUE;
  while (status == HTTP_STATUS_CONTINUE) status = httpUpdate(http);
  return status;
}

// Whether the same may be asked once more.
bool meetWish(http_t *http, http_status_t status, const QByteArray &resource) {
  if (status == HTTP_STATUS_UNAUTHORIZED) {
    httpFlush(http);
    return cupsDoAuthentication(http, "GET", resource.constData()) == 0 && reconnect(http);
  }
  if (status == HTTP_STATUS_UPGRADE_REQUIRED) {
    httpFlush(http);
    return reconnect(http) && httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0;
  }
  return false;
}

PPDAnswer readAnswer(http_t *http) {
  PPDAnswer answer{
      HTTP_STATUS_OK, {}, httpGetDateTime(httpGetField(http, HTTP_FIELD_LAST_MODIFIED))};
  std::array<char, blockBytes> block{};
  ssize_t count = 0;
  while ((count = httpRead2(http, block.data(), block.size())) > 0) {
    answer.ppd.append(block.data(), count);
    if (answer.ppd.size() > largestPPD) return {HTTP_STATUS_REQUEST_TOO_LARGE, {}, 0};
  }
  if (count < 0 || httpError(http) != 0) return {HTTP_STATUS_ERROR, {}, 0};
  return answer;
}

PPDAnswer downloadPPD(http_t *http, const QString &queue, time_t date) {
  std::array<char, HTTP_MAX_URI> coded{};
  httpAssembleURIf(HTTP_URI_CODING_ALL, coded.data(), int(coded.size()), "http", nullptr, "x", 0,
                   "/printers/%s.ppd", queue.toUtf8().constData());
  const QByteArray resource = QByteArray(coded.data()).mid(QByteArrayView("http://x").size());
  http_status_t status = HTTP_STATUS_ERROR;
  for (int round = 0; round < mostRounds; ++round) {
    status = statusOfGet(http, resource, date);
    if (!meetWish(http, status, resource)) break;
  }
  if (status == HTTP_STATUS_OK) return readAnswer(http);
  httpFlush(http);
  return {status, {}, 0};
}

Phrase whyNoPPD(http_status_t status) {
  if (status == HTTP_STATUS_ERROR) return unreadableAnswer();
  return Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                  "the print server does not give its printer description (%1)"),
                {QString::fromUtf8(httpStatus(status))});
}

}  // namespace

Result<QCborMap> downloadPPDAsAsked(const CupsConnection &connection, Fields fields) {
  const QString queue = fields.text("queue");
  const PPDAnswer answer = downloadPPD(connection.http(), queue, fields.number("date"));
  if (connection.isBroken() || connection.lacksPassword()) return connection.lastFailure(queue);
  const bool exists = answer.status != HTTP_STATUS_NOT_FOUND;
  const bool isNew = answer.status == HTTP_STATUS_OK;
  if (exists && !isNew && answer.status != HTTP_STATUS_NOT_MODIFIED) {
    return Failure{FailureKind::Io, queue, whyNoPPD(answer.status)};
  }
  if (isNew) connection.link().say({MessageKind::Description, answer.ppd});
  return QCborMap{{QLatin1String("exists"), exists},
                  {QLatin1String("new"), isNew},
                  {QLatin1String("date"), static_cast<qint64>(answer.date)}};
}

}  // namespace orvek
