// SPDX-License-Identifier: Apache-2.0
// The helper's end of the socket to the program that started it.
#pragma once

#include <optional>

#include "host/printers/ServerMessages.h"

namespace orvek {

/// An answer to the question for a password. Plain data.
struct GivenPassword {
  QByteArray user;
  QByteArray password;
};

/// Reads and writes messages, and waits for as long as either takes. Where the program is gone, or
/// says what can't be read, it ends the process. Borrows the descriptor; use it on one thread.
class ProgramLink {
 public:
  explicit ProgramLink(int socket) : m_socket(socket) {}
  ProgramLink(const ProgramLink &) = delete;
  ProgramLink &operator=(const ProgramLink &) = delete;

  Message next();
  void say(const Message &message) const;

  /// Has somebody asked for a password; nothing where nobody gives one. `isAnew`: another
  /// connection wants it, so one that was given before may be right.
  std::optional<GivenPassword> password(const QString &user, bool isAnew);

  /// Reads the fields of a message that holds an answer for password(), or of the same form.
  static std::optional<GivenPassword> passwordIn(Fields fields);

 private:
  int m_socket;
  MessageReader m_received;
};

}  // namespace orvek
