// SPDX-License-Identifier: Apache-2.0
// A private print server behind a web server, as one that wants a password or goes by another name.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include "tests/support/PrivateCups.h"

namespace orvek::test {

/// What is behind the password: all, all but the list of queues, or nothing.
enum class Guarded { Everything, Queues, Nothing };

/// Runs as long as it lives. User "anna" has the password "secret".
class FrontServer {
 public:
  /// The print server takes `name` for the host that it is asked under; empty: the right one.
  FrontServer(const PrivateCups &cups, Guarded guarded, const QString &name = {});
  ~FrontServer();
  FrontServer(const FrontServer &) = delete;
  FrontServer &operator=(const FrontServer &) = delete;

  /// Why there can be none on this machine; empty where there can.
  static QString obstacle();

  QString hostAndPort() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }

 private:
  QTemporaryDir m_folder;
  QProcess m_server;
  int m_port;
};

}  // namespace orvek::test
