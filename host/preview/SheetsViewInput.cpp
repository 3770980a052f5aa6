// SPDX-License-Identifier: Apache-2.0
// Keys, wheel and mouse.

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

#include "host/preview/SheetsView.h"

namespace orvek {
namespace {

constexpr int wheelNotch = 120;
constexpr double zoomStep = 1.25;

}  // namespace

void SheetsView::step(int sides) {
  setCurrent(m_current + sides);
}

// Smaller than a whole side there are several, larger than small ones there is one.
void SheetsView::zoomBy(double factor) {
  constexpr double largestCell = 2.4;
  const bool shrinksOne = !m_showsSeveral && m_zoom <= 1 && factor < 1;
  const bool growsSeveral = m_showsSeveral && m_zoom * factor > largestCell;
  if (shrinksOne) return setShowsSeveral(true);
  if (growsSeveral) return setShowsSeveral(false);
  setZoom(m_zoom * factor);
}

void SheetsView::wheelEvent(QWheelEvent *event) {
  const bool zooms = event->modifiers().testFlag(Qt::ControlModifier);
  const bool scrolls = m_showsSeveral || m_zoom > 1;
  if (!zooms && scrolls) return QAbstractScrollArea::wheelEvent(event);
  m_wheel += event->angleDelta().y();
  const int notches = m_wheel / wheelNotch;
  m_wheel -= notches * wheelNotch;
  event->accept();
  for (int i = 0; zooms && i < std::abs(notches); ++i) {
    zoomBy(notches > 0 ? zoomStep : 1 / zoomStep);
  }
  if (!zooms) step(-notches);
}

bool SheetsView::scrollKey(int key) {
  if (m_showsSeveral || m_zoom <= 1) return false;
  switch (key) {
    case Qt::Key_Up:
      verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
      return true;
    case Qt::Key_Down:
      verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
      return true;
    case Qt::Key_Left:
      horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
      return true;
    case Qt::Key_Right:
      horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
      return true;
    default:
      return false;
  }
}

void SheetsView::keyPressEvent(QKeyEvent *event) {
  if (scrollKey(event->key())) return;
  const int row = m_showsSeveral ? columns() : 1;
  const int rows = std::max(1, viewport()->height() / std::max(1, cellSize().height()));
  const int page = m_showsSeveral ? row * rows : 1;
  switch (event->key()) {
    case Qt::Key_Left:
      return step(-1);
    case Qt::Key_Right:
      return step(1);
    case Qt::Key_Up:
      return step(-row);
    case Qt::Key_Down:
      return step(row);
    case Qt::Key_PageUp:
      return step(-page);
    case Qt::Key_PageDown:
      return step(page);
    case Qt::Key_Home:
      return setCurrent(0);
    case Qt::Key_End:
      return setCurrent(lastSide());
    case Qt::Key_Plus:
      return zoomBy(zoomStep);
    case Qt::Key_Minus:
      return zoomBy(1 / zoomStep);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

void SheetsView::mousePressEvent(QMouseEvent *event) {
  const int side = m_showsSeveral ? sideAt(event->position().toPoint()) : -1;
  if (side >= 0) setCurrent(side);
}

void SheetsView::mouseDoubleClickEvent(QMouseEvent *event) {
  const int side = sideAt(event->position().toPoint());
  if (side < 0) return;
  setCurrent(side);
  setShowsSeveral(!m_showsSeveral);
}

}  // namespace orvek
