// SPDX-License-Identifier: Apache-2.0
// Where sides lie in the view, how they are drawn, and which pages are wished for. What the user
// does to it stands in SheetsViewInput.cpp.

#include "host/preview/SheetsView.h"

#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

#include "platform/ui/FocusMark.h"
#include "platform/ui/SpokenRole.h"

namespace orvek {
namespace {

using namespace imposition;

constexpr int margin = 8;
constexpr int captionGap = 2;
constexpr int usualCell = 96;    // a small side's longer edge
constexpr int darkGround = 128;  // lightness below which a ground counts as dark
constexpr int sidesAhead = 4;    // rendered before they are asked for
constexpr int pickedFrame = 2;
constexpr double leastZoom = 0.5;
constexpr double mostZoom = 6;
constexpr QSize usualSize(250, 240);
constexpr QSize leastSize(120, 80);

QSizeF largestOf(const std::vector<PrintedSide> &sides) {
  QSizeF largest(1, 1);
  for (const PrintedSide &side : sides) {
    largest = largest.expandedTo(QSizeF(side.size.width, side.size.height));
  }
  return largest;
}

}  // namespace

SheetsView::SheetsView(PagePictures &pictures, QWidget *parent)
    : QAbstractScrollArea(parent), m_pictures(pictures) {
  // A picture, not something that others stand in.
  speakAs<SheetsView, QAccessible::Graphic>();
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  viewport()->setBackgroundRole(QPalette::Window);
  viewport()->setAutoFillBackground(true);
  connect(&pictures, &PagePictures::arrived, this, [this] {
    viewport()->update();
    wish();
  });
}

SheetsView::Sides SheetsView::setSides(Sides sides) {
  m_sides.swap(sides);
  m_largest = largestOf(m_sides);
  m_current = std::clamp(m_current, 0, std::max(0, lastSide()));
  updateScrollBars();
  viewport()->update();
  wish();
  Q_EMIT currentChanged(m_current);
  return sides;
}

void SheetsView::setCurrent(int side) {
  const int next = std::clamp(side, 0, std::max(0, lastSide()));
  if (next == m_current) return;
  m_current = next;
  if (m_showsSeveral) showCurrentCell();
  viewport()->update();
  wish();
  Q_EMIT currentChanged(m_current);
}

void SheetsView::setShowsSeveral(bool several) {
  if (several == m_showsSeveral) return;
  m_showsSeveral = several;
  m_zoom = 1;
  updateScrollBars();
  showCurrentCell();
  viewport()->update();
  wish();
  Q_EMIT showsSeveralChanged(several);
}

void SheetsView::setZoom(double zoom) {
  const double next = std::clamp(zoom, m_showsSeveral ? leastZoom : 1.0, mostZoom);
  if (next == m_zoom) return;
  m_zoom = next;
  updateScrollBars();
  if (m_showsSeveral) showCurrentCell();
  viewport()->update();
  wish();
}

QSize SheetsView::sizeHint() const {
  return usualSize;
}

QSize SheetsView::minimumSizeHint() const {
  return leastSize;
}

QSize SheetsView::cellSize() const {
  if (!m_showsSeveral) {
    const QSizeF room = QSizeF(viewport()->size()) * m_zoom;
    return {static_cast<int>(room.width()), static_cast<int>(room.height())};
  }
  const double scale = usualCell * m_zoom / std::max(m_largest.width(), m_largest.height());
  return {static_cast<int>(m_largest.width() * scale) + 2 * margin,
          static_cast<int>(m_largest.height() * scale) + 2 * margin + captionGap +
              fontMetrics().height()};
}

int SheetsView::columns() const {
  return std::max(1, viewport()->width() / std::max(1, cellSize().width()));
}

// In the viewport.
QRect SheetsView::cell(int side) const {
  const QPoint scrolled(horizontalScrollBar()->value(), verticalScrollBar()->value());
  const QSize size = cellSize();
  if (!m_showsSeveral) return {-scrolled, size};
  const int across = columns();
  const int indent = std::max(0, (viewport()->width() - across * size.width()) / 2);
  return {QPoint(indent + side % across * size.width(), side / across * size.height()) - scrolled,
          size};
}

QRectF SheetsView::paperOf(int side) const {
  QRectF place = QRectF(cell(side)).adjusted(margin, margin, -margin, -margin);
  const PrintedSide &printed = m_sides[static_cast<std::size_t>(side)];
  if (!m_showsSeveral) return fittedSide(printed, place);
  place.setBottom(place.bottom() - captionGap - fontMetrics().height());
  const double scale = place.width() / m_largest.width();
  QRectF paper(0, 0, printed.size.width * scale, printed.size.height * scale);
  paper.moveCenter(place.center());
  return paper;
}

int SheetsView::sideAt(QPoint place) const {
  const auto [first, last] = visibleSides();
  for (int side = first; side <= last; ++side) {
    if (cell(side).contains(place)) return side;
  }
  return -1;
}

// None: the first lies behind the last.
std::pair<int, int> SheetsView::visibleSides() const {
  if (isEmpty()) return {0, -1};
  if (!m_showsSeveral) return {m_current, m_current};
  const int height = std::max(1, cellSize().height());
  const int top = verticalScrollBar()->value() / height;
  const int bottom = (verticalScrollBar()->value() + viewport()->height() - 1) / height;
  return {std::min(lastSide(), top * columns()),
          std::min(lastSide(), (bottom + 1) * columns() - 1)};
}

void SheetsView::updateScrollBars() {
  const QSize size = cellSize();
  const int rows = m_showsSeveral ? (lastSide() + columns()) / columns() : 1;
  const int width = m_showsSeveral ? 0 : size.width();
  const auto set = [](QScrollBar *bar, int whole, int shown, int single) {
    bar->setRange(0, std::max(0, whole - shown));
    bar->setPageStep(shown);
    bar->setSingleStep(std::max(1, single));
  };
  set(horizontalScrollBar(), width, viewport()->width(), viewport()->width() / 8);
  set(verticalScrollBar(), rows * size.height(), viewport()->height(),
      m_showsSeveral ? size.height() / 2 : viewport()->height() / 8);
}

void SheetsView::showCurrentCell() {
  if (!m_showsSeveral || isEmpty()) return;
  const QRect place = cell(m_current);
  QScrollBar *bar = verticalScrollBar();
  if (place.top() < 0) bar->setValue(bar->value() + place.top());
  if (place.bottom() >= viewport()->height()) {
    bar->setValue(bar->value() + place.bottom() - viewport()->height() + 1);
  }
}

void SheetsView::resizeEvent(QResizeEvent *event) {
  QAbstractScrollArea::resizeEvent(event);
  updateScrollBars();
  wish();
}

void SheetsView::scrollContentsBy(int, int) {
  viewport()->update();
  wish();
}

void SheetsView::paintCell(QPainter *painter, int side) const {
  const PrintedSide &printed = m_sides[static_cast<std::size_t>(side)];
  const QRectF paper = paperOf(side);
  if (m_showsSeveral) {
    const QRect place = cell(side);
    const QString caption = printed.face == Face::Back ? tr("%1, back").arg(printed.sheet)
                                                       : QString::number(printed.sheet);
    painter->setPen(palette().color(QPalette::WindowText));
    painter->drawText(place.adjusted(0, 0, 0, -margin / 2), Qt::AlignHCenter | Qt::AlignBottom,
                      caption);
  }
  const bool isOnDark = palette().color(QPalette::Window).lightness() < darkGround;
  paintSide(painter, {paper, isOnDark}, printed,
            [this](int page) { return m_pictures.picture(page); });
  const bool isPicked = side == m_current && m_showsSeveral;
  if (!isPicked) return;
  painter->setPen(QPen(palette().color(QPalette::Highlight), pickedFrame));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(paper.adjusted(-pickedFrame, -pickedFrame, pickedFrame, pickedFrame));
}

void SheetsView::paintEvent(QPaintEvent *) {
  QPainter painter(viewport());
  painter.setFont(font());
  const auto [first, last] = visibleSides();
  for (int side = first; side <= last; ++side) paintCell(&painter, side);
  paintFocusMark(painter, *viewport());
}

void SheetsView::focusInEvent(QFocusEvent *event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void SheetsView::focusOutEvent(QFocusEvent *event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

void SheetsView::addWishes(int side, QList<PageWish> *wishes) const {
  if (side < 0 || side > lastSide()) return;
  const PrintedSide &printed = m_sides[static_cast<std::size_t>(side)];
  const double scale =
      paperOf(side).width() / std::max(1.0, printed.size.width) * viewport()->devicePixelRatioF();
  for (const PlacedPage &page : printed.pages) {
    QSizeF size(page.frame.width * scale, page.frame.height * scale);
    if (page.turn % 180 != 0) size.transpose();
    wishes->append({page.page, QSize(static_cast<int>(std::lround(size.width())),
                                     static_cast<int>(std::lround(size.height())))});
  }
}

// What can be seen first, then what comes next, then what came before.
void SheetsView::wish() {
  if (isEmpty() || !isVisible()) return;
  QList<PageWish> wishes;
  const auto [first, last] = visibleSides();
  for (int side = first; side <= last; ++side) addWishes(side, &wishes);
  for (int ahead = 1; ahead <= sidesAhead; ++ahead) addWishes(last + ahead, &wishes);
  for (int back = 1; back <= sidesAhead / 2; ++back) addWishes(first - back, &wishes);
  m_pictures.want(wishes);
}

}  // namespace orvek
