// SPDX-License-Identifier: Apache-2.0
// Answers libcups' question whether to go on waiting.

#include "host/server/WaitLimit.h"

namespace orvek {
namespace {

constexpr double askEverySeconds = 0.25;
/// Asked more than this after the last time, a new wait has begun: bytes went over in between.
constexpr qint64 newStallMilliseconds = 1000;

}  // namespace

HttpHandle WaitLimit::connect(const char *host, int port, http_encryption_t encryption) {
  constexpr int blocking = 1;
  HttpHandle http(httpConnect2(host, port, nullptr, AF_UNSPEC, encryption, blocking,
                               connectMilliseconds, nullptr));
  if (http) httpSetTimeout(http.get(), askEverySeconds, keepWaiting, this);
  return http;
}

int WaitLimit::keepWaiting(http_t *, void *limit) {
  return static_cast<WaitLimit *>(limit)->mayWaitLonger() ? 1 : 0;
}

bool WaitLimit::mayWaitLonger() {
  if (m_gaveUp) return false;
  if (!m_lastAsked.isValid() || m_lastAsked.elapsed() > newStallMilliseconds) m_stall.start();
  m_lastAsked.start();
  m_gaveUp = m_stall.elapsed() > m_patience.count();
  return !m_gaveUp;
}

}  // namespace orvek
