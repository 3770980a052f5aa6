// SPDX-License-Identifier: Apache-2.0
// One question of a client of a print server, as it comes over a socket.
#pragma once

#include <QByteArray>
#include <optional>

namespace orvek::test {

/// A question of HTTP. Plain data.
struct HttpQuestion {
  bool isGet = false;
  bool hasPassword = false;
  QByteArray body;

  /// Of an IPP request in it; 0: none.
  int operation() const { return number16(2); }
  int requestId() const { return number16(4) << 16 | number16(6); }

 private:
  int number16(qsizetype at) const {
    if (body.size() < at + 2) return 0;
    return static_cast<unsigned char>(body[at]) << 8 | static_cast<unsigned char>(body[at + 1]);
  }
};

/// Reads the next one, and says that a body may come where that is asked; nothing once the other
/// side is gone.
std::optional<HttpQuestion> readQuestion(int socket, QByteArray *buffer);

}  // namespace orvek::test
