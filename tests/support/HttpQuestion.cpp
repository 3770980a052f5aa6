// SPDX-License-Identifier: Apache-2.0
// Headers, then a body by its length or in chunks.

#include "tests/support/HttpQuestion.h"

#include <sys/socket.h>

#include <QList>
#include <QString>
#include <array>

namespace orvek::test {
namespace {

const QByteArray lineEnd = "\r\n";

bool readMore(int socket, QByteArray *buffer) {
  std::array<char, 65536> block{};
  const ssize_t count = ::recv(socket, block.data(), block.size(), 0);
  if (count > 0) buffer->append(block.data(), count);
  return count > 0;
}

/// Up to `end`, which is left out.
std::optional<QByteArray> readUntil(int socket, QByteArray *buffer, const QByteArray &end) {
  while (!buffer->contains(end)) {
    if (!readMore(socket, buffer)) return std::nullopt;
  }
  const qsizetype at = buffer->indexOf(end);
  const QByteArray text = buffer->left(at);
  buffer->remove(0, at + end.size());
  return text;
}

std::optional<QByteArray> readBytes(int socket, QByteArray *buffer, qsizetype size) {
  while (buffer->size() < size) {
    if (!readMore(socket, buffer)) return std::nullopt;
  }
  const QByteArray bytes = buffer->left(size);
  buffer->remove(0, size);
  return bytes;
}

std::optional<QByteArray> readChunks(int socket, QByteArray *buffer) {
  constexpr int hexadecimal = 16;
  QByteArray body;
  while (true) {
    const auto line = readUntil(socket, buffer, lineEnd);
    if (!line) return std::nullopt;
    const qsizetype size = line->trimmed().toLongLong(nullptr, hexadecimal);
    const auto chunk = readBytes(socket, buffer, size + lineEnd.size());
    if (!chunk) return std::nullopt;
    if (size == 0) return body;
    body += chunk->left(size);
  }
}

}  // namespace

std::optional<HttpQuestion> readQuestion(int socket, QByteArray *buffer) {
  const auto head = readUntil(socket, buffer, lineEnd + lineEnd);
  if (!head) return std::nullopt;
  HttpQuestion question;
  question.isGet = head->startsWith("GET ");
  qsizetype length = 0;
  bool isChunked = false;
  for (const QByteArray &line : head->split('\n')) {
    const QByteArray header = line.trimmed().toLower();
    if (header.startsWith("content-length:")) length = header.mid(15).trimmed().toLongLong();
    if (header.startsWith("transfer-encoding:")) isChunked = header.contains("chunked");
    if (header.startsWith("authorization:")) question.hasPassword = true;
    if (header.startsWith("expect:")) {
      const QByteArray go = "HTTP/1.1 100 Continue\r\n\r\n";
      ::send(socket, go.constData(), static_cast<std::size_t>(go.size()), MSG_NOSIGNAL);
    }
  }
  const auto body = isChunked ? readChunks(socket, buffer) : readBytes(socket, buffer, length);
  if (!body) return std::nullopt;
  question.body = *body;
  return question;
}

}  // namespace orvek::test
