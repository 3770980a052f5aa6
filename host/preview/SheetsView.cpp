// SPDX-License-Identifier: Apache-2.0
// Rows of two sides; the scroll bar's unit is a pixel.

#include "host/preview/SheetsView.h"

#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>

#include "host/preview/SheetPainter.h"

namespace orvek {
namespace {

constexpr int gap = 16;
constexpr int captionGap = 4;
constexpr int widestSide = 320;
constexpr int comfortableSide = 190;
constexpr int narrowestSide = 60;
constexpr int rowsAtOnce = 2;
constexpr int darkGround = 128;  // lightness below which a ground counts as dark
constexpr QSize usualSize(520, 320);
constexpr QSize leastSize(220, 140);

}  // namespace

SheetsView::SheetsView(QWidget *parent) : QAbstractScrollArea(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  viewport()->setBackgroundRole(QPalette::Window);
  viewport()->setAutoFillBackground(true);
}

void SheetsView::setState(const PreviewState &state) {
  m_state = state;
  updateScrollBar();
  viewport()->update();
}

QSize SheetsView::sizeHint() const {
  return usualSize;
}

QSize SheetsView::minimumSizeHint() const {
  return leastSize;
}

// As wide as the place allows; narrower where two rows fit then, but not so narrow that pages can't
// be told apart.
int SheetsView::sideWidth() const {
  const int byWidth = (viewport()->width() - 3 * gap) / 2;
  const int rows = std::clamp(static_cast<int>(m_state.sheets.size()), 1, rowsAtOnce);
  const int rowHeight = (viewport()->height() - gap) / rows;
  const double height = rowHeight - fontMetrics().height() - captionGap - gap;
  const int byHeight = static_cast<int>(height / sideHeight(1, m_state.paper));
  const int wanted = std::min(byWidth, std::max(byHeight, comfortableSide));
  return std::clamp(wanted, narrowestSide, widestSide);
}

int SheetsView::rowHeight() const {
  const int side = static_cast<int>(sideHeight(sideWidth(), m_state.paper));
  return fontMetrics().height() + captionGap + side + gap;
}

void SheetsView::updateScrollBar() {
  const int whole = static_cast<int>(m_state.sheets.size()) * rowHeight() + gap;
  verticalScrollBar()->setRange(0, std::max(0, whole - viewport()->height()));
  verticalScrollBar()->setPageStep(viewport()->height());
  verticalScrollBar()->setSingleStep(rowHeight() / 4);
}

void SheetsView::resizeEvent(QResizeEvent *event) {
  QAbstractScrollArea::resizeEvent(event);
  updateScrollBar();
}

void SheetsView::paintRow(QPainter *painter, int sheet, int top) const {
  const ImposedSheet &imposed = m_state.sheets[sheet];
  const int width = sideWidth();
  const int captionHeight = fontMetrics().height();
  const int left = (viewport()->width() - 2 * width - gap) / 2;
  const bool isInverted = palette().color(QPalette::Window).lightness() < darkGround;
  const auto paintOne = [&](int x, const QString &caption, const ImposedSide &side) {
    painter->setPen(palette().color(QPalette::WindowText));
    painter->drawText(QRect(x, top, width, captionHeight), Qt::AlignCenter, caption);
    const QRectF place(x, top + captionHeight + captionGap, width,
                       sideHeight(width, m_state.paper));
    paintSide(painter, {place, isInverted}, side, imposed.creep, m_state);
  };
  paintOne(left, tr("Sheet %1, front").arg(sheet + 1), imposed.front);
  paintOne(left + width + gap, tr("Sheet %1, back").arg(sheet + 1), imposed.back);
}

void SheetsView::paintEvent(QPaintEvent *) {
  QPainter painter(viewport());
  painter.setFont(font());
  const int height = rowHeight();
  const int offset = gap - verticalScrollBar()->value();
  const int first = std::max(0, -offset / height);
  for (int sheet = first; sheet < m_state.sheets.size(); ++sheet) {
    const int top = offset + sheet * height;
    if (top > viewport()->height()) break;
    paintRow(&painter, sheet, top);
  }
}

void SheetsView::keyPressEvent(QKeyEvent *event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
    case Qt::Key_Down:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
    case Qt::Key_PageUp:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepSub);
    case Qt::Key_PageDown:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
    case Qt::Key_Home:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMinimum);
    case Qt::Key_End:
      return verticalScrollBar()->triggerAction(QAbstractSlider::SliderToMaximum);
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

}  // namespace orvek
