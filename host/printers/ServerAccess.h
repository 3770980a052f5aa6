// SPDX-License-Identifier: Apache-2.0
// Which print server is meant, and how long it may take. Plain data.
#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <memory>

namespace orvek {

class PasswordSource;

/// How long a server may neither take nor give a byte before it counts as hanging.
inline constexpr std::chrono::milliseconds kServerPatience{10000};

/// Which server, and as whom. A null text leaves it to libcups: CUPS_SERVER, CUPS_USER,
/// client.conf.
struct ServerAccess {
  QString server;  ///< HOST[:PORT], or a socket's path
  QString user;
  const std::atomic<bool> *cancelled = nullptr;  ///< borrowed; set, it ends every wait
  std::chrono::milliseconds patience = kServerPatience;
  std::shared_ptr<PasswordSource> passwords = {};  ///< null: nobody can be asked for a password
};

}  // namespace orvek
