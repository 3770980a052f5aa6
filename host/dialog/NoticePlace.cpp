// SPDX-License-Identifier: Apache-2.0
// Comes and goes with the bar.

#include "host/dialog/NoticePlace.h"

#include <QEvent>
#include <algorithm>

#include "platform/ui/TextScale.h"

namespace orvek {
namespace {

constexpr int usualWidth = 400;
constexpr int leastWidth = 160;
constexpr int leastHeight = 36;
constexpr int shareOfWindow = 4;

}  // namespace

NoticePlace::NoticePlace(QWidget *bar, QWidget *parent) : QScrollArea(parent) {
  setFrameShape(QFrame::NoFrame);
  setFocusPolicy(Qt::NoFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setWidgetResizable(true);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  const bool speaks = !bar->isHidden();
  setWidget(bar);
  viewport()->setAutoFillBackground(false);
  bar->setAutoFillBackground(false);
  // A scroll area shows its widget.
  bar->setVisible(speaks);
  setVisible(speaks);
}

QSize NoticePlace::sizeHint() const {
  const int width = scaledToText(usualWidth);
  return {width, heightForWidth(width)};
}

QSize NoticePlace::minimumSizeHint() const {
  return {leastWidth, leastHeight};
}

int NoticePlace::heightForWidth(int width) const {
  const int most = std::max(scaledToText(leastHeight), window()->height() / shareOfWindow);
  return std::min(most, widget()->heightForWidth(width));
}

bool NoticePlace::eventFilter(QObject *watched, QEvent *event) {
  const bool done = QScrollArea::eventFilter(watched, event);
  if (watched != widget()) return done;
  if (event->type() == QEvent::ShowToParent) show();
  if (event->type() == QEvent::HideToParent) hide();
  if (event->type() == QEvent::LayoutRequest) updateGeometry();
  return done;
}

}  // namespace orvek
