// SPDX-License-Identifier: Apache-2.0
// The conversion between upward frames and Qt's downward geometry, and what pinning means.

#include "platform/ui/Frames.h"

#include <QVariant>
#include <QWidget>

namespace orvek {
namespace {

// The distance of a view's lower edge from its superview's, given the distance of its upper edge.
// The relation is its own inverse, so it serves both directions.
int flipped(const QWidget *view, int distance, int height) {
  const QWidget *superview = view->parentWidget();
  return superview == nullptr ? 0 : superview->height() - distance - height;
}

// Distances from the top survive a resize by themselves, since Qt measures from there.
void keepSubviewsPinned(QWidget *view, int growth) {
  if (growth == 0) return;
  for (QObject *child : view->children()) {
    auto *subview = qobject_cast<QWidget *>(child);
    if (subview == nullptr || subview->isWindow()) continue;
    if (pinnedEdge(subview) == PinnedEdge::Bottom) {
      subview->move(subview->x(), subview->y() + growth);
    }
  }
}

}  // namespace

QRectF frame(const QWidget *view) {
  if (view == nullptr) return {};
  if (view->parentWidget() == nullptr) return {0, 0, qreal(view->width()), qreal(view->height())};
  return {qreal(view->x()), qreal(flipped(view, view->y(), view->height())), qreal(view->width()),
          qreal(view->height())};
}

void setFrame(QWidget *view, const QRectF &frame) {
  if (view == nullptr) return;
  const int oldHeight = view->height();
  view->resize(qRound(frame.width()), qRound(frame.height()));
  // A view may refuse a size; what counts is the one it took.
  keepSubviewsPinned(view, view->height() - oldHeight);
  if (view->parentWidget() == nullptr) return;
  view->move(qRound(frame.x()), flipped(view, qRound(frame.y()), view->height()));
}

QSizeF frameSize(const QWidget *view) {
  return frame(view).size();
}

void setFrameSize(QWidget *view, const QSizeF &size) {
  const QRectF old = frame(view);
  setFrame(view, QRectF(old.topLeft(), size));
}

PinnedEdge pinnedEdge(const QWidget *view) {
  if (view == nullptr) return PinnedEdge::Top;
  const bool bottom = view->property(pinnedProperty).toString() == QLatin1String("bottom");
  return bottom ? PinnedEdge::Bottom : PinnedEdge::Top;
}

}  // namespace orvek
