// SPDX-License-Identifier: Apache-2.0
// Fetching from servers that behave and from all the others.

#include <gtest/gtest.h>

#include <chrono>
#include <ctime>

#include "Common/Utilities.h"
#include "tests/Common/support/HttpServer.h"
#include "tests/Common/support/OwnNetwork.h"

using namespace orvek::test;

namespace {

using Clock = std::chrono::steady_clock;
using Ended = std::atomic<bool>;

double secondsSince(Clock::time_point begin) {
  return std::chrono::duration<double>(Clock::now() - begin).count();
}

double processorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

std::string fetch(const std::string &url, const QString &user = {}, const QString &password = {}) {
  const QByteArray document =
      GetURLWithAuthentication(QUrl(QString::fromStdString(url)), user, password);
  EXPECT_FALSE(document.isNull());
  return document.toStdString();
}

HttpServer::Handler answering(const std::string &bytes) {
  return [bytes](const HttpConnection &connection, const std::string &, const Ended &) {
    connection.send(bytes);
  };
}

/// Sends `before`, keeps silent, and sends `after` to whoever is still there.
HttpServer::Handler stalling(const std::string &before, const std::string &after) {
  return [=](const HttpConnection &connection, const std::string &, const Ended &ended) {
    connection.send(before);
    connection.pause(5, ended);
    connection.send(after);
  };
}

TEST(Fetch, GivesAnEmptyDocumentForANullURL) {
  EXPECT_EQ(fetch(""), "");
  const QByteArray secure = GetURLWithAuthentication_SSL(QUrl(), {}, {});
  EXPECT_TRUE(secure.isEmpty() && !secure.isNull());
}

TEST(Fetch, GivesAnEmptyDocumentForWhatIsNotOnTheWeb) {
  EXPECT_EQ(fetch("file:///etc/hostname"), "");
  EXPECT_EQ(fetch("ftp://127.0.0.1/x"), "");
  EXPECT_EQ(fetch("relative/path"), "");
}

TEST(Fetch, AsksWithGetByHTTP11WithoutAuthentication) {
  HttpServer server(answering(httpAnswer("document")));
  EXPECT_EQ(fetch(server.url("/a%20b?c=d#e")), "document");
  const std::string request = server.requests().at(0);
  EXPECT_TRUE(request.starts_with("GET /a%20b?c=d HTTP/1.1\r\n")) << request;
  EXPECT_EQ(request.find("Authorization"), std::string::npos);
}

TEST(Fetch, KeepsEveryByteOfALargeDocument) {
  std::string large(3 * 1024 * 1024 + 17, '\0');
  for (std::size_t i = 0; i < large.size(); ++i) large[i] = static_cast<char>(i * 7 + i / 251);
  HttpServer server(answering(httpAnswer(large)));
  EXPECT_TRUE(fetch(server.url()) == large);
}

TEST(Fetch, ReadsChunkedDocumentsAndThoseThatEndWithTheConnection) {
  HttpServer chunked(
      answering("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n"
                "5\r\nhello\r\n6\r\n world\r\n0\r\n\r\n"));
  EXPECT_EQ(fetch(chunked.url()), "hello world");
  HttpServer open(answering("HTTP/1.0 200 OK\r\n\r\nhello"));
  EXPECT_EQ(fetch(open.url()), "hello");
}

TEST(Fetch, GivesTheBodyWhateverTheStatus) {
  HttpServer server(answering(httpAnswer("sorry", "404 Not Found")));
  EXPECT_EQ(fetch(server.url()), "sorry");
}

TEST(Fetch, SendsUserAndPasswordAtOnce) {
  HttpServer server(answering(httpAnswer("x")));
  fetch(server.url(), QStringLiteral("admin"), QStringLiteral("s:cret"));
  EXPECT_EQ(server.requests().size(), 1U);
  EXPECT_NE(server.requests().at(0).find("Authorization: Basic YWRtaW46czpjcmV0\r\n"),
            std::string::npos);
}

TEST(Fetch, SendsAUserWithoutAPasswordAndTheReverse) {
  HttpServer server(answering(httpAnswer("x")));
  fetch(server.url(), QStringLiteral("admin"), {});
  fetch(server.url(), {}, QStringLiteral("secret"));
  EXPECT_NE(server.requests().at(0).find("Authorization: Basic YWRtaW46\r\n"), std::string::npos);
  EXPECT_NE(server.requests().at(1).find("Authorization: Basic OnNlY3JldA==\r\n"),
            std::string::npos);
}

TEST(Fetch, FollowsRedirections) {
  HttpServer server(
      [](const HttpConnection &connection, const std::string &request, const Ended &) {
        const bool first = request.starts_with("GET /old ");
        connection.send(first ? httpAnswer("moved", "302 Found", "Location: /new\r\n")
                              : httpAnswer("found"));
      });
  EXPECT_EQ(fetch(server.url("/old")), "found");
}

TEST(Fetch, EndsARedirectionThatNeverEnds) {
  HttpServer server(answering(httpAnswer("moved", "302 Found", "Location: /again\r\n")));
  EXPECT_EQ(fetch(server.url()), "");
  EXPECT_LT(server.requests().size(), 50U);
}

TEST(Fetch, DoesNotFollowARedirectionToAFile) {
  HttpServer server(answering(httpAnswer("", "302 Found", "Location: file:///etc/hostname\r\n")));
  EXPECT_EQ(fetch(server.url()), "");
}

TEST(Fetch, EndsTwoSecondsAfterTheLastDataOfABody) {
  HttpServer server(stalling("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nfirst", "second"));
  const auto begin = Clock::now();
  EXPECT_EQ(fetch(server.url()), "first");
  EXPECT_NEAR(secondsSince(begin), 2.05, 0.15);
}

TEST(Fetch, EndsTwoSecondsIntoASilentHeader) {
  HttpServer server(stalling("HTTP/1.1 200 OK\r\nX-Half", ": x\r\n\r\nbody"));
  const auto begin = Clock::now();
  EXPECT_EQ(fetch(server.url()), "");
  EXPECT_NEAR(secondsSince(begin), 2.05, 0.15);
}

TEST(Fetch, EndsTwoSecondsIntoAHeaderThatDrips) {
  HttpServer server([](const HttpConnection &connection, const std::string &, const Ended &ended) {
    connection.send("HTTP/1.1 200 OK\r\n");
    for (int i = 0; i < 50 && !ended; ++i) {
      connection.send("X-Drip: drop\r\n");
      connection.pause(0.1, ended);
    }
  });
  const auto begin = Clock::now();
  EXPECT_EQ(fetch(server.url()), "");
  EXPECT_NEAR(secondsSince(begin), 2.05, 0.15);
}

TEST(Fetch, EndsTwoSecondsIntoAConnectionThatNobodyTakes) {
  NEEDS_OWN_NETWORK();
  const auto begin = Clock::now();
  EXPECT_EQ(fetch("http://10.99.0.77/"), "");
  EXPECT_NEAR(secondsSince(begin), 2.05, 0.15);
}

TEST(Fetch, WaitsWithoutWorking) {
  HttpServer server(stalling("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\nfirst", ""));
  const double before = processorSeconds();
  fetch(server.url());
  EXPECT_LT(processorSeconds() - before, 0.2);
}

TEST(Fetch, StaysWithADocumentThatDripsInLessThanTwoSecondsEach) {
  HttpServer server([](const HttpConnection &connection, const std::string &, const Ended &ended) {
    connection.send("HTTP/1.1 200 OK\r\nContent-Length: 4\r\n\r\n");
    for (const char *drop : {"a", "b", "c", "d"}) {
      connection.pause(0.8, ended);
      connection.send(drop);
    }
  });
  EXPECT_EQ(fetch(server.url()), "abcd");
}

TEST(Fetch, KeepsWhatCameBeforeAReset) {
  HttpServer server([](const HttpConnection &connection, const std::string &, const Ended &ended) {
    connection.send("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\npartly");
    connection.pause(0.3, ended);
    connection.reset();
  });
  EXPECT_EQ(fetch(server.url()), "partly");
}

TEST(Fetch, GivesAnEmptyDocumentForGarbageAndForRefusal) {
  HttpServer server(answering("\x16\x03\x01 no HTTP at all"));
  EXPECT_EQ(fetch(server.url()), "");
  EXPECT_EQ(fetch("http://127.0.0.1:1/"), "");
}

TEST(Fetch, DoesNotTrustAnAbsurdLength) {
  HttpServer server(
      answering("HTTP/1.1 200 OK\r\nContent-Length: 9223372036854775807\r\n\r\nshort"));
  EXPECT_EQ(fetch(server.url()), "short");
}

TEST(Fetch, ReadsNoMoreThanTheAnnouncedLength) {
  HttpServer server(answering("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\nshort and more"));
  EXPECT_EQ(fetch(server.url()), "short");
}

TEST(Fetch, GivesTheRawBytesWhereATreeIsNamed) {
  HttpServer server(answering(httpAnswer("<not <xml")));
  EXPECT_EQ(MyXMLTreeCreateWithDataFromURL(QUrl(QString::fromStdString(server.url()))),
            QByteArray("<not <xml"));
}

}  // namespace
