// SPDX-License-Identifier: Apache-2.0
// Configures nginx as the door to the scheduler's socket.

#include "tests/support/FrontServer.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QStandardPaths>
#include <QThread>

#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

constexpr int patience = 10000;
constexpr int pauseMilliseconds = 20;

QString nginx() {
  return QStandardPaths::findExecutable(QStringLiteral("nginx"),
                                        {QStringLiteral("/usr/sbin"), QStringLiteral("/usr/bin"),
                                         QStringLiteral("/sbin"), QStringLiteral("/bin")});
}

QByteArray locations(Guarded guarded, const QByteArray &behind) {
  const QByteArray door = "auth_basic printing; auth_basic_user_file users;\n";
  switch (guarded) {
    case Guarded::Everything:
      return "location / {" + door + behind + "}\n";
    case Guarded::Queues:
      return "location / {" + behind + "}\nlocation /printers/ {" + door + behind + "}\n";
    case Guarded::Nothing:
      return "location / {" + behind + "}\n";
  }
  return {};
}

QByteArray configuration(const PrivateCups &cups, int port, Guarded guarded, const QString &name) {
  const QByteArray host = name.isEmpty() ? QByteArray("$http_host") : name.toUtf8();
  const QByteArray behind =
      "proxy_pass http://unix:" + cups.socket().toUtf8() +
      ";\nproxy_http_version 1.1; proxy_request_buffering off; proxy_set_header Host " + host +
      // The scheduler has no such user; who may come in is decided here.
      ";\nproxy_set_header Authorization \"\";\n";
  return "pid nginx.pid; error_log error.log; user root; daemon off; events {}\n"
         "http { access_log off; client_body_temp_path t1; proxy_temp_path t2;\n"
         "fastcgi_temp_path t3; uwsgi_temp_path t4; scgi_temp_path t5; client_max_body_size 0;\n"
         "server { listen 127.0.0.1:" +
         QByteArray::number(port) + ";\n" + locations(guarded, behind) + "} }\n";
}

}  // namespace

QString FrontServer::obstacle() {
  return nginx().isEmpty() ? QStringLiteral("nginx is not installed") : QString();
}

FrontServer::FrontServer(const PrivateCups &cups, Guarded guarded, const QString &name)
    : m_port(freePort()) {
  writeContents(m_folder.filePath(QStringLiteral("users")), "anna:{PLAIN}secret\n");
  writeContents(m_folder.filePath(QStringLiteral("nginx.conf")),
                configuration(cups, m_port, guarded, name));
  m_server.start(nginx(), {QStringLiteral("-p"), m_folder.path(), QStringLiteral("-c"),
                           m_folder.filePath(QStringLiteral("nginx.conf"))});
  QElapsedTimer clock;
  for (clock.start(); clock.elapsed() < patience; QThread::msleep(pauseMilliseconds)) {
    if (isListening(m_port)) return;
  }
  ADD_FAILURE() << "the web server does not answer: "
                << m_server.readAllStandardError().toStdString();
}

FrontServer::~FrontServer() {
  m_server.terminate();
  if (!m_server.waitForFinished(patience)) m_server.kill();
  m_server.waitForFinished(patience);
}

}  // namespace orvek::test
