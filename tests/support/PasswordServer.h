// SPDX-License-Identifier: Apache-2.0
// A private print server behind a web server that lets nobody in without a password.
#pragma once

#include <QProcess>
#include <QString>
#include <QTemporaryDir>

#include "tests/support/PrivateCups.h"

namespace orvek::testing {

/// What is behind the password: all, or all but the list of queues.
enum class Guarded { Everything, Queues };

/// Runs as long as it lives. User "anna" has the password "secret".
class PasswordServer {
 public:
  PasswordServer(const PrivateCups &cups, Guarded guarded);
  ~PasswordServer();
  PasswordServer(const PasswordServer &) = delete;
  PasswordServer &operator=(const PasswordServer &) = delete;

  /// Why there can be none on this machine; empty where there can.
  static QString obstacle();

  QString hostAndPort() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }

 private:
  QTemporaryDir m_folder;
  QProcess m_server;
  int m_port;
};

}  // namespace orvek::testing
