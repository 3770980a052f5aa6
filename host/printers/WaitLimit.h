// SPDX-License-Identifier: Apache-2.0
// How long a connection of libcups may stand still.
#pragma once

#include <cups/cups.h>

#include <QElapsedTimer>
#include <atomic>
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
/// while. Must outlive the connection. Borrows the flag that cancels; belongs to the connection's
/// thread. Owns nothing. A wait that ended is no failure of its own: gaveUp() tells.
class WaitLimit {
 public:
  /// `cancelled` (may be null) ends every wait, too.
  WaitLimit(std::chrono::milliseconds patience, const std::atomic<bool> *cancelled)
      : m_patience(patience), m_cancelled(cancelled) {}
  WaitLimit(const WaitLimit &) = delete;
  WaitLimit &operator=(const WaitLimit &) = delete;

  /// Connects within a few seconds; null where nobody answers (errno says why).
  HttpHandle connect(const char *host, int port, http_encryption_t encryption);

  bool isCancelled() const { return m_cancelled && *m_cancelled; }

  /// Whether it waited too long, once and for all.
  bool gaveUp() const { return m_gaveUp; }

 private:
  static int keepWaiting(http_t *http, void *limit);
  bool mayWaitLonger();

  std::chrono::milliseconds m_patience;
  const std::atomic<bool> *m_cancelled;
  /// Since the other side stopped taking or giving bytes.
  QElapsedTimer m_stall;
  /// Since libcups last asked whether to wait.
  QElapsedTimer m_lastAsked;
  bool m_gaveUp = false;
};

}  // namespace orvek
