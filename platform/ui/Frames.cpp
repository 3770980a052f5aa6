// SPDX-License-Identifier: Apache-2.0
// The conversion between frames and Qt's geometry, and what pinning means. A view that was designed
// in points stands in pixels: more of them where text is large, and from the right where reading
// begins there.

#include "platform/ui/Frames.h"

#include <QFrame>
#include <QGroupBox>
#include <QVariant>
#include <QWidget>

#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

// Of a view: how many pixels make a point. Absent: one.
constexpr const char *scaleProperty = "pixelsOfAPoint";

double scaleOf(const QWidget *view) {
  const QVariant scale = view->property(scaleProperty);
  return scale.isValid() ? scale.toDouble() : 1;
}

// There is never less than one pixel to a point, so points survive the way there and back.
int pixels(double points, const QWidget *view) {
  return qRound(qRound(points) * scaleOf(view));
}

int points(int pixels, const QWidget *view) {
  return qRound(pixels / scaleOf(view));
}

// The distance of a view's lower edge from its superview's, given the distance of its upper edge.
// The relation is its own inverse, so it serves both directions. In points.
int flipped(const QWidget *view, int distance, int height) {
  const QWidget *superview = view->parentWidget();
  return superview == nullptr ? 0 : points(superview->height(), view) - distance - height;
}

// The distance of a view's left edge from its superview's, given the distance between those edges
// where reading begins, and the other way round. In pixels.
int mirrored(const QWidget *view, int distance) {
  return view->isRightToLeft() ? view->parentWidget()->width() - distance - view->width()
                               : distance;
}

QList<QWidget *> subviewsOf(const QWidget *view) {
  QList<QWidget *> subviews = view->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
  subviews.removeIf([](const QWidget *subview) { return subview->isWindow(); });
  return subviews;
}

// Distances from the top and from the left survive a resize by themselves, since Qt measures from
// there.
void keepSubviewsPinned(QWidget *view, QSize before) {
  const int wider = view->width() - before.width();
  const int higher = points(view->height(), view) - points(before.height(), view);
  if (wider == 0 && higher == 0) return;
  for (QWidget *subview : subviewsOf(view)) {
    const bool isLow = pinnedEdge(subview) == PinnedEdge::Bottom;
    const int y = isLow ? pixels(points(subview->y(), subview) + higher, subview) : subview->y();
    subview->move(subview->x() + (subview->isRightToLeft() ? wider : 0), y);
  }
}

// What stands in any other view is its own business.
void adoptSubviews(QWidget *view, double scale) {
  if (!onlyHoldsViews(view) || view->layout() != nullptr) return;
  for (QWidget *subview : subviewsOf(view)) {
    const QRect designed = subview->geometry();
    if (scale > 1) subview->setProperty(scaleProperty, scale);
    subview->resize(pixels(designed.width(), subview), pixels(designed.height(), subview));
    subview->move(mirrored(subview, pixels(designed.x(), subview)), pixels(designed.y(), subview));
    adoptSubviews(subview, scale);
  }
}

}  // namespace

bool onlyHoldsViews(const QWidget *view) {
  if (view == nullptr) return false;
  const QMetaObject *type = view->metaObject();
  return type == &QWidget::staticMetaObject || type == &QFrame::staticMetaObject ||
         type == &QGroupBox::staticMetaObject;
}

void adoptDesign(QWidget *root) {
  if (root == nullptr) return;
  const double scale = textScale();
  const QSize designed = root->size();
  if (scale > 1) root->setProperty(scaleProperty, scale);
  root->resize(pixels(designed.width(), root), pixels(designed.height(), root));
  adoptSubviews(root, scale);
}

QRectF frame(const QWidget *view) {
  if (view == nullptr) return {};
  const int width = points(view->width(), view);
  const int height = points(view->height(), view);
  if (view->parentWidget() == nullptr) return {0, 0, qreal(width), qreal(height)};
  return {qreal(points(mirrored(view, view->x()), view)),
          qreal(flipped(view, points(view->y(), view), height)), qreal(width), qreal(height)};
}

void setFrame(QWidget *view, const QRectF &frame) {
  if (view == nullptr) return;
  const QSize before = view->size();
  view->resize(pixels(frame.width(), view), pixels(frame.height(), view));
  // A view may refuse a size; what counts is the one it took.
  keepSubviewsPinned(view, before);
  if (view->parentWidget() == nullptr) return;
  const int top = flipped(view, qRound(frame.y()), points(view->height(), view));
  view->move(mirrored(view, pixels(frame.x(), view)), pixels(top, view));
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
