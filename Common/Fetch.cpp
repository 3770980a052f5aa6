// SPDX-License-Identifier: Apache-2.0
// Documents from a printer's web server: plain first, and over HTTPS with any certificate where the
// plain path met one that can't be trusted, as printers sign their own.

#include <QUrl>
#include <algorithm>
#include <cstdio>

#include "Common/InactivityLimit.h"
#include "Common/Utilities.h"
#include "platform/network/ReadStream.h"
#include "platform/system/Gestalt.h"
#include "platform/system/LargePages.h"
#include "platform/system/TickCount.h"

namespace {

using orvek::ReadStream;
using orvek::StreamStatus;

constexpr qsizetype chunkSize = 32768;
constexpr qsizetype mebibyte = 1 << 20;
constexpr qsizetype largestReserve = 128 * mebibyte;  // beyond it a server's word is not enough
constexpr qsizetype largestDocument = 1024 * mebibyte;
constexpr std::int32_t version105 = 0x1050;
constexpr qsizetype schemeLength = 4;

std::int32_t systemVersion() {
  std::int32_t version = 0;
  Gestalt(gestaltSystemVersion, &version);
  return version;
}

QByteArray emptyDocument() {
  return QByteArray("");
}

bool isOver(StreamStatus status) {
  return status == StreamStatus::AtEnd || status == StreamStatus::Closed ||
         status == StreamStatus::Error;
}

void addAuthentication(orvek::HTTPRequest *request, const QString &user, const QString &password) {
  if (user.isNull() && password.isNull()) return;
  request->authentication = orvek::HTTPRequest::Basic{user, password};
}

/// Makes room for as much as the server announced, as far as a server is to be believed.
void reserveAnnounced(const ReadStream &stream, QByteArray *document) {
  const qsizetype announced = stream.announcedLength();
  if (announced <= 0) return;
  document->reserve(std::min(announced, largestReserve) + chunkSize);
  orvek::preferLargePages(document->data(), static_cast<std::size_t>(document->capacity()));
}

/// Reads one piece and appends it. What read() gave.
std::int64_t readChunk(ReadStream *stream, QByteArray *document) {
  const qsizetype before = document->size();
  if (before == 0) reserveAnnounced(*stream, document);
  // Read into the document's own space: the piece is then copied once, not twice.
  document->resize(before + chunkSize);
  const std::int64_t count =
      stream->read({document->data() + before, static_cast<std::size_t>(chunkSize)});
  document->resize(before + std::max<std::int64_t>(count, 0));
  return count;
}

/// Asks the stream for data until it is over or two seconds pass without any. `mayRead` says
/// whether a read may be attempted now; `onError` is told of a failed read, and whether to carry
/// on.
template <class MayRead, class OnError>
void readAll(ReadStream *stream, QByteArray *document, MayRead mayRead, OnError onError) {
  orvek::InactivityLimit limit(TickCount());
  while (limit.holds(TickCount()) && document->size() < largestDocument) {
    const StreamStatus status = stream->status();
    if (isOver(status)) return;
    if (status == StreamStatus::Opening || !mayRead()) continue;
    const std::int64_t count = readChunk(stream, document);
    if (count >= 0) limit.mark(TickCount());
    if (count == orvek::streamReadError && !onError()) return;
  }
}

bool isTLSFailure(const orvek::StreamError &error) {
  return error.number >= orvek::tlsErrorFirst && error.number <= orvek::tlsErrorLast;
}

/// The same URL over HTTPS: its first four characters replaced, whatever they are.
QUrl secureURL(const QUrl &url) {
  QString text = QString::fromLatin1(url.toEncoded());
  text.replace(0, schemeLength, QStringLiteral("https"));
  return QUrl(text);
}

}  // namespace

QByteArray GetURLWithAuthentication(const QUrl &url, const QString &user, const QString &password) {
  return GetURLWithAuthentication_CFNetwork(url, user, password);
}

QByteArray GetURLWithAuthentication_CFNetwork(const QUrl &url, const QString &user,
                                              const QString &password) {
  QByteArray document = emptyDocument();
  const auto request = orvek::createGetRequest(url);
  if (request == nullptr) return document;
  addAuthentication(request.get(), user, password);
  const auto stream = ReadStream::createForHTTPRequest(request);
  if (stream == nullptr) return document;
  if (!stream->setShouldAutoredirect(true) || !stream->open()) return document;
  readAll(
      stream.get(), &document, [] { return true; },
      [&] {
        if (!isTLSFailure(stream->error())) return false;
        document = GetURLWithAuthentication_SSL(url, user, password);
        return true;
      });
  stream->close();
  return document;
}

QByteArray GetURLWithAuthentication_SSL(const QUrl &url, const QString &user,
                                        const QString &password) {
  QByteArray document = emptyDocument();
  if (url.isEmpty()) return document;
  const bool early = systemVersion() < version105;
  const auto request = orvek::createGetRequest(secureURL(url));
  if (request == nullptr) return document;
  if (!early) addAuthentication(request.get(), user, password);
  const auto stream = ReadStream::createForHTTPRequest(request);
  if (stream == nullptr) return document;
  // Earlier systems lose an authentication that is there before the stream.
  if (early) addAuthentication(request.get(), user, password);
  stream->setAcceptsAnyPeer(true);
  if (!stream->open()) return document;
  readAll(
      stream.get(), &document, [&] { return !early || stream->hasBytesAvailable(); },
      [&] {
        const orvek::StreamError error = stream->error();
        std::printf("\n bytesRead is < 0 cfErr.Error = %ld  \n domain = %ld \n", error.number,
                    error.domain);
        return false;
      });
  stream->close();
  return document;
}

QByteArray MyXMLTreeCreateWithDataFromURL(const QUrl &url) {
  return GetURLWithAuthentication_CFNetwork(url, {}, {});
}
