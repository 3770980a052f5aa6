// SPDX-License-Identifier: Apache-2.0
// A stream's states, in the order in which a reader sees them.

#include "platform/network/ReadStream.h"

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <array>
#include <cerrno>
#include <string>

#include "platform/network/Transfer.h"
#include "tests/Common/support/HttpServer.h"

using namespace orvek::test;

namespace {

using orvek::ReadStream;
using orvek::StreamStatus;

std::unique_ptr<ReadStream> streamFor(const std::string &url) {
  return ReadStream::createForHTTPRequest(
      orvek::createGetRequest(QUrl(QString::fromStdString(url))));
}

StreamStatus openedStatus(ReadStream *stream) {
  StreamStatus status = stream->status();
  while (status == StreamStatus::Opening) status = stream->status();
  return status;
}

/// Reads until something other than "nothing yet" comes.
std::int64_t readSomething(ReadStream *stream, std::span<char> into) {
  std::int64_t count = orvek::streamReadNothingYet;
  while (count == orvek::streamReadNothingYet) count = stream->read(into);
  return count;
}

HttpServer::Handler answering(const std::string &answer) {
  return [answer](const HttpConnection &connection, const std::string &,
                  const std::atomic<bool> &) { connection.send(answer); };
}

TEST(ReadStream, GoesFromNotOpenToItsEndAndToClosed) {
  HttpServer server(answering(httpAnswer("hello")));
  const auto stream = streamFor(server.url());
  EXPECT_EQ(stream->status(), StreamStatus::NotOpen);
  ASSERT_TRUE(stream->open());
  EXPECT_EQ(openedStatus(stream.get()), StreamStatus::Open);
  std::array<char, 16> piece{};
  EXPECT_EQ(readSomething(stream.get(), piece), 5);
  EXPECT_EQ(stream->announcedLength(), 5);
  EXPECT_EQ(stream->status(), StreamStatus::Reading);
  EXPECT_EQ(readSomething(stream.get(), piece), 0);
  EXPECT_EQ(stream->status(), StreamStatus::AtEnd);
  EXPECT_EQ(stream->read(piece), 0);
  stream->close();
  EXPECT_EQ(stream->status(), StreamStatus::Closed);
  EXPECT_EQ(stream->read(piece), orvek::streamReadError);
}

TEST(ReadStream, HandsADocumentOutInPiecesOfTheReadersSize) {
  HttpServer server(answering(httpAnswer("hello world")));
  const auto stream = streamFor(server.url());
  stream->open();
  std::string all;
  std::array<char, 4> piece{};
  for (std::int64_t count; (count = readSomething(stream.get(), piece)) > 0;) {
    EXPECT_LE(count, 4);
    all.append(piece.data(), static_cast<std::size_t>(count));
  }
  EXPECT_EQ(all, "hello world");
}

TEST(ReadStream, SaysWhetherAReadWouldWait) {
  HttpServer server(
      [](const HttpConnection &connection, const std::string &, const std::atomic<bool> &ended) {
        connection.pause(0.3, ended);
        connection.send(httpAnswer("late"));
      });
  const auto stream = streamFor(server.url());
  EXPECT_FALSE(stream->hasBytesAvailable());
  stream->open();
  EXPECT_FALSE(stream->hasBytesAvailable());
  std::array<char, 4> piece{};
  EXPECT_EQ(stream->read(piece), orvek::streamReadNothingYet);
  while (!stream->hasBytesAvailable()) {
  }
  EXPECT_EQ(stream->read(piece), 4);
}

TEST(ReadStream, ShowsAnErrorInAReadFirst) {
  const auto stream = streamFor("http://127.0.0.1:1/");
  stream->open();
  EXPECT_EQ(openedStatus(stream.get()), StreamStatus::Open);
  EXPECT_TRUE(stream->hasBytesAvailable());
  std::array<char, 4> piece{};
  EXPECT_EQ(stream->read(piece), orvek::streamReadError);
  EXPECT_EQ(stream->status(), StreamStatus::Error);
  EXPECT_EQ(stream->error().domain, static_cast<long>(orvek::StreamErrorDomain::POSIX));
  EXPECT_EQ(stream->error().number, ECONNREFUSED);
}

TEST(ReadStream, OpensOnceAndTakesNoSettingsAfterThat) {
  HttpServer server(answering(httpAnswer("x")));
  const auto stream = streamFor(server.url());
  EXPECT_TRUE(stream->setShouldAutoredirect(true));
  EXPECT_TRUE(stream->open());
  EXPECT_FALSE(stream->open());
  EXPECT_FALSE(stream->setShouldAutoredirect(false));
  EXPECT_FALSE(stream->setAcceptsAnyPeer(true));
}

TEST(ReadStream, NeedsARequestAndThatAURL) {
  EXPECT_EQ(orvek::createGetRequest(QUrl()), nullptr);
  EXPECT_EQ(orvek::createGetRequest(QUrl(QStringLiteral("no/scheme"))), nullptr);
  EXPECT_EQ(ReadStream::createForHTTPRequest(nullptr), nullptr);
}

TEST(StreamError, OfTLSLiesInTheSecureTransportRange) {
  for (const CURLcode code :
       {CURLE_PEER_FAILED_VERIFICATION, CURLE_SSL_CONNECT_ERROR, CURLE_SSL_CIPHER,
        CURLE_SSL_CERTPROBLEM, CURLE_SSL_ISSUER_ERROR, CURLE_SSL_CACERT_BADFILE,
        CURLE_SSL_CRL_BADFILE, CURLE_SSL_INVALIDCERTSTATUS, CURLE_SSL_PINNEDPUBKEYNOTMATCH,
        CURLE_SSL_SHUTDOWN_FAILED}) {
    const auto error = orvek::streamErrorFor(code, 0);
    ASSERT_TRUE(error) << code;
    EXPECT_EQ(error->domain, static_cast<long>(orvek::StreamErrorDomain::TLS));
    EXPECT_GE(error->number, -9848) << code;
    EXPECT_LE(error->number, -9801) << code;
  }
}

TEST(StreamError, OfAnythingElseLiesOutsideOfIt) {
  for (const CURLcode code : {CURLE_COULDNT_RESOLVE_HOST, CURLE_COULDNT_CONNECT, CURLE_RECV_ERROR,
                              CURLE_PARTIAL_FILE, CURLE_GOT_NOTHING}) {
    for (const long systemError : {0L, static_cast<long>(ECONNRESET)}) {
      EXPECT_GT(orvek::streamErrorFor(code, systemError)->number, 0) << code;
    }
  }
  EXPECT_FALSE(orvek::streamErrorFor(CURLE_OK, 0));
}

}  // namespace
