// SPDX-License-Identifier: Apache-2.0
// Which print server is meant, and how long it may take. Plain data.
#pragma once

#include <QString>
#include <atomic>
#include <chrono>
#include <memory>

namespace orvek {

class PasswordSource;

/// How long a server may neither take nor give a byte before it counts as hanging. Seven and a half
/// times that is the limit on everything it is asked for at once, whatever it sends meanwhile, and
/// on each piece of a document. ORVEK_PRINT_PATIENCE is another number, in seconds.
std::chrono::milliseconds serverPatience();

/// Which server, and as whom. A null text leaves it to libcups: CUPS_SERVER, CUPS_USER,
/// client.conf. Plain data, for any thread, but for what it borrows and shares.
struct ServerAccess {
  /// HOST[:PORT], or a socket's path.
  QString server;
  QString user;
  /// Borrowed; set, it ends every wait.
  const std::atomic<bool> *cancelled = nullptr;
  std::chrono::milliseconds patience = serverPatience();
  /// Null: nobody can be asked for a password.
  std::shared_ptr<PasswordSource> passwords = {};
  /// Whether the connection stays open for a moment, for whoever asks the same server next; no
  /// longer than the thread that opened it lasts.
  bool staysOpen = false;
};

}  // namespace orvek
