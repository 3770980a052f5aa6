// SPDX-License-Identifier: Apache-2.0
// The toolkit's own way gives a body whose height follows its width the height that it would like
// to have; this one gives it the least that it needs.

#include "host/dialog/ScrollingBody.h"

#include <QEvent>
#include <QLayout>
#include <QScrollBar>
#include <algorithm>

namespace orvek {
namespace {

constexpr int leastWidth = 200;
constexpr int leastHeight = 100;

}  // namespace

ScrollingBody::ScrollingBody(QWidget *body, QWidget *parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setWidget(body);
  // The window's own colour shows through.
  viewport()->setAutoFillBackground(false);
  body->setAutoFillBackground(false);
}

QSize ScrollingBody::sizeHint() const {
  const QSize wish = widget()->sizeHint();
  const QLayout *layout = widget()->layout();
  return {wish.width(),
          layout->hasHeightForWidth() ? layout->heightForWidth(wish.width()) : wish.height()};
}

QSize ScrollingBody::minimumSizeHint() const {
  return {leastWidth, leastHeight};
}

QSize ScrollingBody::sizeWithin(QSize room) const {
  const QLayout *layout = widget()->layout();
  const QSize least = layout->minimumSize();
  const int width = std::max(room.width(), least.width());
  const int height =
      layout->hasHeightForWidth() ? layout->minimumHeightForWidth(width) : least.height();
  return {width, std::max(room.height(), height)};
}

void ScrollingBody::fit() {
  const QSize room = maximumViewportSize();
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
  QSize size = sizeWithin(room);
  // A bar at one side takes room from the other.
  const bool hasBar = size.height() > room.height();
  if (hasBar) size = sizeWithin({room.width() - bar, room.height()});
  if (size.width() > room.width() - (hasBar ? bar : 0)) {
    size = sizeWithin({room.width() - (hasBar ? bar : 0), room.height() - bar});
  }
  widget()->resize(size);
}

bool ScrollingBody::eventFilter(QObject *watched, QEvent *event) {
  const bool done = QScrollArea::eventFilter(watched, event);
  if (watched == widget() && event->type() == QEvent::LayoutRequest) {
    updateGeometry();
    fit();
  }
  return done;
}

void ScrollingBody::resizeEvent(QResizeEvent *event) {
  QScrollArea::resizeEvent(event);
  fit();
}

}  // namespace orvek
