// SPDX-License-Identifier: Apache-2.0
// Every event of the thread passes through the application.

#include "bench/preview/Heartbeat.h"

#include <algorithm>
#include <ctime>

namespace orvek::bench {
namespace {

double workOfThread() {
  timespec time{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

}  // namespace

void Heartbeat::restart() {
  m_longest = 0;
  m_longestWork = 0;
}

bool Heartbeat::notify(QObject *receiver, QEvent *event) {
  if (m_depth > 0) return QApplication::notify(receiver, event);
  QElapsedTimer clock;
  clock.start();
  const double workBefore = workOfThread();
  ++m_depth;
  const bool result = QApplication::notify(receiver, event);
  --m_depth;
  m_longest = std::max(m_longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
  m_longestWork = std::max(m_longestWork, workOfThread() - workBefore);
  return result;
}

}  // namespace orvek::bench
