// SPDX-License-Identifier: Apache-2.0
// Measures the time from a start to a window's first painted frame, and says it on standard output.
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QTimer>
#include <QWidget>
#include <cstdio>

namespace orvek::bench {

/// Shows a window with a word in it and takes it away. A program that prints has had windows
/// before; what the toolkit does once per process (finding fonts above all) belongs to neither
/// dialog.
inline void warmUp() {
  QLabel word(QStringLiteral("Print"));
  word.show();
  word.grab();
  QCoreApplication::processEvents();
}

/// Watches `window`; once it has painted, prints the milliseconds since `clock` was started and
/// ends the application. Painting of children comes within the same pass, so the line is written
/// from a timer that fires when that pass is over.
class FirstPaint : public QObject {
 public:
  FirstPaint(QWidget *window, const QElapsedTimer &clock) : m_clock(clock) {
    window->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject *, QEvent *event) override {
    if (event->type() == QEvent::Paint && !m_seen) {
      m_seen = true;
      QTimer::singleShot(0, this, [this] {
        std::printf("%.3f\n", static_cast<double>(m_clock.nsecsElapsed()) / 1e6);
        QCoreApplication::quit();
      });
    }
    return false;
  }

 private:
  QElapsedTimer m_clock;
  bool m_seen = false;
};

}  // namespace orvek::bench
