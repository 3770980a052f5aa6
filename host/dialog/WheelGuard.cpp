// SPDX-License-Identifier: Apache-2.0
// Sees the window's events before its controls do.

#include "host/dialog/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>

namespace orvek {
namespace {

bool changesByWheel(const QWidget *widget) {
  if (qobject_cast<const QScrollBar *>(widget) != nullptr) return false;
  return qobject_cast<const QComboBox *>(widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox *>(widget) != nullptr ||
         qobject_cast<const QAbstractSlider *>(widget) != nullptr ||
         qobject_cast<const QTabBar *>(widget) != nullptr;
}

}  // namespace

// The toolkit's events for a widget pass the application first, whoever the widget belongs to.
WheelGuard::WheelGuard(QWidget &window) : QObject(&window), m_window(window) {
  QApplication::instance()->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() != QEvent::Wheel && event->type() != QEvent::Show) return false;
  auto *widget = qobject_cast<QWidget *>(watched);
  if (widget == nullptr || !changesByWheel(widget) || !m_window.isAncestorOf(widget)) return false;
  // Else it would have the focus by the time that its event comes.
  if (widget->focusPolicy() == Qt::WheelFocus) widget->setFocusPolicy(Qt::StrongFocus);
  if (event->type() == QEvent::Show || widget->hasFocus()) return false;
  // The next one around it is asked.
  event->ignore();
  return true;
}

}  // namespace orvek
