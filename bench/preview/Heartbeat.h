// SPDX-License-Identifier: Apache-2.0
// How long the interface's thread is busy with one thing: while it is, no key is answered.
#pragma once

#include <QApplication>
#include <QElapsedTimer>

namespace orvek::bench {

/// Watches how long the handling of each event takes, what it leads to included. Milliseconds.
class Heartbeat final : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject *receiver, QEvent *event) override;

  /// The longest since the start, by the clock on the wall. On a machine that is busy with
  /// something else, waiting for a processor is in it.
  double longest() const { return m_longest; }

  /// The most processor time that one took.
  double longestWork() const { return m_longestWork; }

  void restart();

 private:
  int m_depth = 0;
  double m_longest = 0;
  double m_longestWork = 0;
};

}  // namespace orvek::bench
