// SPDX-License-Identifier: Apache-2.0
// How long a connection of libcups may stand still.
#pragma once

#include <cups/cups.h>

#include <QElapsedTimer>
#include <chrono>
#include <memory>

namespace orvek {

/// Closes libcups' connections. Owns nothing itself; for the thread of the connection, and nothing
/// fails.
struct HttpCloser {
  void operator()(http_t *http) const { httpClose(http); }
};

/// Closes with its holder.
using HttpHandle = std::unique_ptr<http_t, HttpCloser>;

/// Ends every wait of one connection once the other side has neither taken nor given a byte for a
/// while. Must outlive the connection, and belongs to its thread. Owns nothing. A wait that ended
/// is no failure of its own: gaveUp() tells.
class WaitLimit {
 public:
  explicit WaitLimit(std::chrono::milliseconds patience) : m_patience(patience) {}
  WaitLimit(const WaitLimit &) = delete;
  WaitLimit &operator=(const WaitLimit &) = delete;

  /// Connects within a few seconds; null where nobody answers.
  HttpHandle connect(const char *host, int port, http_encryption_t encryption);

  /// Whether it waited too long, once and for all.
  bool gaveUp() const { return m_gaveUp; }

 private:
  static int keepWaiting(http_t *http, void *limit);
  bool mayWaitLonger();

  std::chrono::milliseconds m_patience;
  /// Since the other side stopped taking or giving bytes.
  QElapsedTimer m_stall;
  /// Since libcups last asked whether to wait.
  QElapsedTimer m_lastAsked;
  bool m_gaveUp = false;
};

/// How long connecting may take.
inline constexpr int connectMilliseconds = 5000;

}  // namespace orvek
