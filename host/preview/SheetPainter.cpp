// SPDX-License-Identifier: Apache-2.0
// Paper stays white whatever the desktop's colours are.

#include "host/preview/SheetPainter.h"

#include <QPainter>
#include <algorithm>

namespace orvek {
namespace {

constexpr QColor paperColor(255, 255, 255);
constexpr QColor outlineColor(150, 150, 150);
constexpr QColor outlineOnDark(90, 90, 90);
constexpr QColor shadowColor(0, 0, 0, 40);
constexpr QColor foldColor(70, 120, 190);
constexpr QColor pageColor(240, 243, 247);
constexpr QColor lineColor(205, 211, 219);
constexpr QColor numberColor(45, 50, 58);
constexpr QColor borderColor(45, 50, 58);
constexpr QColor restColor(200, 90, 60);

constexpr double shadowOffset = 2;
constexpr double pageMargin = 0.12;     // of the page's width, around its lines
constexpr double lineDistance = 0.085;  // of the page's height
constexpr double lineThickness = 0.4;   // of the distance between lines
constexpr double numberHeight = 0.2;    // of the page's height
constexpr double plateHeight = 1.4;     // of the number's height, kept free of lines
constexpr double shortLine = 0.55;
constexpr int paragraph = 4;          // lines; its last one is short
constexpr double largestShift = 0.3;  // of a page's width: farther it would not be a page's place

QRectF fitted(const QRectF &place, QSizeF sheet) {
  QRectF fitted(QPointF(), sheet.scaled(place.size(), Qt::KeepAspectRatio));
  fitted.moveTopLeft(place.topLeft() + QPointF((place.width() - fitted.width()) / 2, 0));
  return fitted;
}

QRectF numberPlate(const QRectF &page) {
  const double height = page.height() * numberHeight * plateHeight;
  QRectF plate(0, 0, page.width(), height);
  plate.moveCenter(page.center());
  return plate;
}

void paintLines(QPainter *painter, const QRectF &page) {
  const double margin = page.width() * pageMargin;
  const QRectF text = page.adjusted(margin, margin, -margin, -margin);
  const double distance = page.height() * lineDistance;
  const double thickness = distance * lineThickness;
  const QRectF plate = numberPlate(page);
  painter->setPen(Qt::NoPen);
  painter->setBrush(lineColor);
  int line = 0;
  for (double y = text.top(); y + thickness <= text.bottom(); y += distance) {
    const double share = ++line % paragraph == 0 ? shortLine : 1;
    const QRectF stroke(text.left(), y, text.width() * share, thickness);
    if (!stroke.intersects(plate)) painter->drawRect(stroke);
  }
}

void paintNumber(QPainter *painter, const QRectF &page, int number) {
  QFont font = painter->font();
  font.setPixelSize(std::max(1, static_cast<int>(page.height() * numberHeight)));
  font.setBold(true);
  painter->setFont(font);
  painter->setPen(numberColor);
  painter->drawText(page, Qt::AlignCenter, QString::number(number));
}

void paintPage(QPainter *painter, const QRectF &page, int number, bool hasBorder) {
  if (number == 0 || page.isEmpty()) return;
  painter->setPen(Qt::NoPen);
  painter->setBrush(pageColor);
  painter->drawRect(page);
  paintLines(painter, page);
  paintNumber(painter, page, number);
  if (!hasBorder) return;
  painter->setPen(QPen(borderColor, 1.5));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(page);
}

void paintRest(QPainter *painter, const QRectF &page, int number) {
  if (number == 0 || page.isEmpty()) return;
  painter->setPen(QPen(restColor, 1, Qt::DotLine));
  painter->setBrush(Qt::NoBrush);
  painter->drawRect(page);
}

void paintSheet(QPainter *painter, const QRectF &sheet, bool isInverted) {
  painter->setPen(Qt::NoPen);
  painter->setBrush(shadowColor);
  painter->drawRect(sheet.translated(shadowOffset, shadowOffset));
  painter->setPen(QPen(isInverted ? outlineOnDark : outlineColor, 1));
  painter->setBrush(paperColor);
  painter->drawRect(sheet);
}

void paintFold(QPainter *painter, const QRectF &sheet) {
  painter->setPen(QPen(foldColor, 1, Qt::DashLine));
  const double middle = sheet.center().x();
  painter->drawLine(QPointF(middle, sheet.top()), QPointF(middle, sheet.bottom()));
}

SideLayout scaled(SideLayout layout, const QRectF &sheet) {
  const double scale = sheet.width() / layout.sheet.width();
  for (QRectF *page : {&layout.left, &layout.right}) {
    *page = QRectF(page->topLeft() * scale + sheet.topLeft(), page->size() * scale);
  }
  return layout;
}

}  // namespace

double sideHeight(double width, QSizeF paper) {
  const double longEdge = std::max(paper.width(), paper.height());
  return longEdge <= 0 ? 0 : width * std::min(paper.width(), paper.height()) / longEdge;
}

void paintSide(QPainter *painter, const SidePlace &place, const ImposedSide &side, double creep,
               const PreviewState &state) {
  const SideLayout still = layOutSide(state.page, state.paper, state.booklet.gutter, 0);
  const double most = still.left.width() * largestShift;
  const double shift = std::clamp(creep * creepExaggeration, -most, most);
  const SideLayout moved = layOutSide(state.page, state.paper, state.booklet.gutter, shift);
  const QRectF sheet = fitted(place.rectangle, still.sheet);
  const SideLayout drawn = scaled(moved, sheet);
  const SideLayout rest = scaled(still, sheet);
  const QRectF leftHalf(sheet.topLeft(), QSizeF(sheet.width() / 2, sheet.height()));
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  paintSheet(painter, sheet, place.isInverted);
  painter->setClipRect(leftHalf);
  paintPage(painter, drawn.left, side.left, state.booklet.pageBorders);
  painter->setClipRect(leftHalf.translated(leftHalf.width(), 0));
  paintPage(painter, drawn.right, side.right, state.booklet.pageBorders);
  painter->setClipping(false);
  if (shift != 0) {
    paintRest(painter, rest.left, side.left);
    paintRest(painter, rest.right, side.right);
  }
  paintFold(painter, sheet);
  painter->restore();
}

}  // namespace orvek
