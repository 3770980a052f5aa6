// SPDX-License-Identifier: Apache-2.0
// The keys that take back what was done last, and do it again.
#pragma once

#include <QObject>

class QKeyEvent;
class QWidget;

namespace orvek {

/// Ctrl+Z and Ctrl+Shift+Z, or what the desktop has for them, wherever the keyboard is in the
/// window. A text field in which something was typed takes back its typing first. Borrows the
/// window, its parent. Lives on the interface's thread; nothing fails.
class HistoryKeys final : public QObject {
  Q_OBJECT

 public:
  explicit HistoryKeys(QWidget &window);

  bool eventFilter(QObject *watched, QEvent *event) override;

 Q_SIGNALS:
  void undoAsked();
  void redoAsked();

 private:
  bool takes(const QKeyEvent &event);

  QWidget &m_window;
};

}  // namespace orvek
