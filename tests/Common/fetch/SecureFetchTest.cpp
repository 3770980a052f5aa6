// SPDX-License-Identifier: Apache-2.0
// The fall-back to HTTPS against a real web server with a certificate of its own making, and basic
// authentication.

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>
#include <chrono>
#include <fstream>
#include <sstream>
#include <thread>

#include "Common/Utilities.h"
#include "platform/system/Gestalt.h"
#include "tests/Common/support/OwnNetwork.h"

using namespace orvek::test;

namespace {

QUrl url(const char *text) {
  return QUrl(QString::fromUtf8(text));
}

std::string contents(const std::string &path) {
  std::ifstream file(path);
  std::stringstream text;
  text << file.rdbuf();
  return text.str();
}

/// nginx on ports 80 and 443 of the test's own loopback. The certificate is self-signed and for
/// another name.
class WebServer : public testing::Test {
 protected:
  static void SetUpTestSuite() {
    if (!OwnNetwork::whyNot().empty()) return;
    folder = new QTemporaryDir;
    writeFiles();
    const std::string path = root();
    if (std::system(("cd " + path +
                     " && openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=elsewhere "
                     "-keyout key.pem -out cert.pem >/dev/null 2>&1"
                     " && echo \"admin:$(openssl passwd -apr1 secret)\" >users"
                     " && nginx -p . -c nginx.conf >start.log 2>&1")
                        .c_str()) != 0) {
      missing = "nginx and openssl are needed: " + contents(path + "/start.log");
    }
  }

  static void TearDownTestSuite() {
    if (folder == nullptr) return;
    const std::string stop =
        "cd " + root() + " && nginx -p . -c nginx.conf -s stop >/dev/null 2>&1";
    EXPECT_EQ(std::system(stop.c_str()), 0);
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    delete folder;
    folder = nullptr;
  }

  void SetUp() override {
    NEEDS_OWN_NETWORK();
    if (!missing.empty()) GTEST_SKIP() << missing;
  }
  void TearDown() override { orvek::clearGestaltForTesting(); }

  static std::string root() { return folder->path().toStdString(); }

  /// How many requests the HTTPS side has answered. The server writes them down a moment after its
  /// answer.
  static std::size_t secureRequests() {
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    const std::string log = contents(root() + "/secure.log");
    return static_cast<std::size_t>(std::count(log.begin(), log.end(), '\n'));
  }

  static void writeFiles() {
    std::ofstream(root() + "/document.xml") << "<status>ready</status>";
    std::ofstream(root() + "/nginx.conf")
        << "pid nginx.pid; error_log error.log; user root; events {}\n"
           "http { access_log off; client_body_temp_path t1; proxy_temp_path t2;\n"
           "fastcgi_temp_path t3; uwsgi_temp_path t4; scgi_temp_path t5;\n"
           "server { listen 127.0.0.1:80; root .;\n"
           "  location /document.xml { return 302 https://127.0.0.1$request_uri; }\n"
           "  location /protected/ { return 302 https://127.0.0.1$request_uri; }\n"
           "  location /plain { return 200 plain; } }\n"
           "server { listen 127.0.0.1:443 ssl; root .; access_log secure.log;\n"
           "  ssl_certificate cert.pem; ssl_certificate_key key.pem;\n"
           "  location /protected/ { auth_basic printer; auth_basic_user_file users;\n"
           "                         alias ./; }\n"
           "  location /moved { return 302 /document.xml; } } }\n";
  }

  static QTemporaryDir *folder;
  static std::string missing;
};

QTemporaryDir *WebServer::folder = nullptr;
std::string WebServer::missing;

TEST_F(WebServer, GivesAPlainDocument) {
  EXPECT_EQ(GetURLWithAuthentication(url("http://127.0.0.1/plain"), {}, {}), QByteArray("plain"));
}

TEST_F(WebServer, IsAskedOverHTTPSExactlyOnceWhereItsCertificateFails) {
  const std::size_t before = secureRequests();
  EXPECT_EQ(GetURLWithAuthentication(url("http://127.0.0.1/document.xml"), {}, {}),
            QByteArray("<status>ready</status>"));
  EXPECT_EQ(secureRequests(), before + 1);
}

TEST_F(WebServer, GetsUserAndPasswordOverHTTPSToo) {
  const QString user = QStringLiteral("admin");
  const QUrl document = url("http://127.0.0.1/protected/document.xml");
  EXPECT_EQ(GetURLWithAuthentication(document, user, QStringLiteral("secret")),
            QByteArray("<status>ready</status>"));
  EXPECT_TRUE(GetURLWithAuthentication(document, user, QStringLiteral("wrong")).contains("401"));
}

TEST_F(WebServer, GetsUserAndPasswordFromLaterSystemsToo) {
  for (const std::int32_t version : {0x1049, 0x1050, 0x1068}) {
    orvek::setGestaltForTesting(gestaltSystemVersion, version);
    EXPECT_EQ(GetURLWithAuthentication_SSL(url("http://127.0.0.1/protected/document.xml"),
                                           QStringLiteral("admin"), QStringLiteral("secret")),
              QByteArray("<status>ready</status>"))
        << version;
  }
}

TEST_F(WebServer, IsNotFollowedElsewhereOverHTTPS) {
  const QByteArray answer = GetURLWithAuthentication_SSL(url("http://127.0.0.1/moved"), {}, {});
  EXPECT_TRUE(answer.contains("302 Found")) << answer.toStdString();
}

TEST_F(WebServer, IsNotReachedByASchemeThatIsAlreadySecure) {
  const std::size_t before = secureRequests();
  EXPECT_EQ(GetURLWithAuthentication_SSL(url("https://127.0.0.1/document.xml"), {}, {}),
            QByteArray(""));
  EXPECT_EQ(GetURLWithAuthentication(url("https://127.0.0.1/document.xml"), {}, {}),
            QByteArray(""));
  EXPECT_EQ(secureRequests(), before);
}

TEST(SecureFetch, WritesTheErrorOfAFailedRead) {
  testing::internal::CaptureStdout();
  const QByteArray refused = GetURLWithAuthentication_SSL(url("http://127.0.0.1:1/"), {}, {});
  const std::string output = testing::internal::GetCapturedStdout();
  EXPECT_TRUE(refused.isEmpty());
  EXPECT_EQ(output, "\n bytesRead is < 0 cfErr.Error = 111  \n domain = 1 \n");
}

}  // namespace
