// SPDX-License-Identifier: Apache-2.0
// Keeps the wheel from changing what is only scrolled over, also in panels, which bring controls of
// their own.
#pragma once

#include <QObject>

class QWidget;

namespace orvek {

/// While it lives, the wheel over a control of the window that has no keyboard focus scrolls the
/// page that the control stands on, and gives it no focus either. Borrows the window, its parent,
/// as a rule. Lives on the interface's thread; nothing fails.
class WheelGuard final : public QObject {
 public:
  explicit WheelGuard(QWidget &window);

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  QWidget &m_window;
};

}  // namespace orvek
