// SPDX-License-Identifier: Apache-2.0
// Paper stays white whatever the desktop's colours are.

#include "host/preview/SidePainter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

namespace orvek {
namespace {

using namespace imposition;

constexpr QColor paperColor(255, 255, 255);
constexpr QColor outlineColor(168, 172, 178);
constexpr QColor outlineOnDark(70, 72, 76);
constexpr QColor shadowColor(0, 0, 0, 38);
constexpr QColor waitingColor(241, 243, 246);
constexpr QColor numberColor(120, 127, 137);
constexpr QColor borderColor(45, 50, 58);
constexpr QColor foldColor(43, 108, 200);
constexpr QColor stapleColor(52, 58, 66);
constexpr QColor stapleShine(255, 255, 255, 200);
constexpr QColor holeColor(205, 209, 215);
constexpr QColor holeEdge(120, 126, 134);

constexpr double shadowOffset = 2;
constexpr double numberShare = 0.28;  // of the page's shorter edge
constexpr double leastStaple = 7;     // so that it can be seen on a small sheet
constexpr double leastHole = 4;
constexpr double stapleWidth = 0.12;  // of its length
constexpr double bentEnds = 0.36;     // of a staple's length, each

/// From a side's points to the painter's units.
struct Scale {
  QPointF origin;
  double factor = 1;

  QRectF rect(const Frame &frame) const {
    return {origin.x() + frame.x * factor, origin.y() + frame.y * factor, frame.width * factor,
            frame.height * factor};
  }
  QPointF point(double x, double y) const { return origin + QPointF(x, y) * factor; }
};

void paintPaper(QPainter *painter, const SidePlace &place) {
  painter->setPen(Qt::NoPen);
  painter->setBrush(shadowColor);
  painter->drawRect(place.rectangle.translated(shadowOffset, shadowOffset));
  painter->setPen(QPen(place.isOnDark ? outlineOnDark : outlineColor, 1));
  painter->setBrush(paperColor);
  painter->drawRect(place.rectangle);
}

void paintNumber(QPainter *painter, const QRectF &page, int number) {
  painter->fillRect(page, waitingColor);
  const double height = std::min(page.width(), page.height()) * numberShare;
  QFont font = painter->font();
  font.setPixelSize(std::max(6, static_cast<int>(height)));
  painter->setFont(font);
  painter->setPen(numberColor);
  painter->drawText(page, Qt::AlignCenter, QString::number(number));
}

// Drawn upright in the middle of its frame, then turned.
void paintPage(QPainter *painter, const QRectF &frame, const PlacedPage &page,
               const QImage &picture) {
  QSizeF size = frame.size();
  if (page.turn % 180 != 0) size.transpose();
  const QRectF upright(QPointF(-size.width() / 2, -size.height() / 2), size);
  painter->save();
  painter->translate(frame.center());
  painter->rotate(page.turn);
  if (picture.isNull()) {
    paintNumber(painter, upright, page.page);
  } else {
    if (page.isMirrored) painter->scale(-1, 1);
    painter->drawImage(upright, picture);
  }
  painter->restore();
}

void paintPages(QPainter *painter, const PrintedSide &side, const Scale &scale, const QRectF &paper,
                const PictureOf &pictureOf) {
  for (const PlacedPage &page : side.pages) {
    const QRectF frame = scale.rect(page.frame);
    if (frame.isEmpty()) continue;
    painter->save();
    painter->setClipRect(scale.rect(page.clip).intersected(paper), Qt::IntersectClip);
    paintPage(painter, frame, page, pictureOf ? pictureOf(page.page) : QImage());
    if (page.border) {
      painter->setPen(QPen(borderColor, 1));
      painter->setBrush(Qt::NoBrush);
      painter->drawRect(frame.adjusted(0.5, 0.5, -0.5, -0.5));
    }
    painter->restore();
  }
}

void paintFolds(QPainter *painter, const PrintedSide &side, const Scale &scale) {
  QPen pen(foldColor, 1, Qt::DashLine);
  pen.setDashPattern({4, 3});
  painter->setPen(pen);
  for (const Line &fold : side.folds) {
    painter->drawLine(scale.point(fold.x1, fold.y1), scale.point(fold.x2, fold.y2));
  }
}

/// From one end of a staple to the other.
QLineF stapleLine(const QRectF &frame, const QRectF &paper) {
  const bool isSlanted = std::abs(frame.width() - frame.height()) < 0.3 * frame.width();
  if (!isSlanted) {
    const bool isUpright = frame.height() > frame.width();
    const QPointF reach =
        isUpright ? QPointF(0, frame.height() / 2) : QPointF(frame.width() / 2, 0);
    return {frame.center() - reach, frame.center() + reach};
  }
  // Across the corner that it sits in.
  const bool isLeft = frame.center().x() < paper.center().x();
  const bool isTop = frame.center().y() < paper.center().y();
  return isLeft == isTop ? QLineF(frame.bottomLeft(), frame.topRight())
                         : QLineF(frame.topLeft(), frame.bottomRight());
}

void paintStaple(QPainter *painter, QLineF line, bool isBack) {
  if (line.length() < leastStaple) {
    const QPointF middle = line.center();
    const double factor = leastStaple / std::max(0.01, line.length());
    line = QLineF(middle + (line.p1() - middle) * factor, middle + (line.p2() - middle) * factor);
  }
  const double width = std::max(1.6, line.length() * stapleWidth);
  QList<QLineF> strokes{line};
  if (isBack) {
    strokes = {QLineF(line.p1(), line.pointAt(bentEnds)),
               QLineF(line.pointAt(1 - bentEnds), line.p2())};
  }
  for (const auto &[color, extra] : {std::pair(stapleShine, 2.0), std::pair(stapleColor, 0.0)}) {
    painter->setPen(QPen(color, width + extra, Qt::SolidLine, Qt::RoundCap));
    painter->drawLines(strokes);
  }
}

void paintHole(QPainter *painter, QRectF frame) {
  if (frame.width() < leastHole) {
    const QPointF middle = frame.center();
    frame.setSize(QSizeF(leastHole, leastHole));
    frame.moveCenter(middle);
  }
  painter->setPen(QPen(holeEdge, 1));
  painter->setBrush(holeColor);
  painter->drawEllipse(frame);
}

void paintMarks(QPainter *painter, const PrintedSide &side, const Scale &scale,
                const QRectF &paper) {
  for (const Mark &mark : side.marks) {
    const QRectF frame = scale.rect(mark.frame);
    if (mark.kind == MarkKind::Hole) {
      paintHole(painter, frame);
    } else {
      paintStaple(painter, stapleLine(frame, paper), side.face == Face::Back);
    }
  }
}

}  // namespace

QRectF fittedSide(const PrintedSide &side, const QRectF &place) {
  const QSizeF size(side.size.width, side.size.height);
  QRectF fitted(QPointF(), size.scaled(place.size(), Qt::KeepAspectRatio));
  fitted.moveCenter(place.center());
  return fitted;
}

void paintSide(QPainter *painter, const SidePlace &place, const PrintedSide &side,
               const PictureOf &pictureOf) {
  if (side.size.width <= 0 || place.rectangle.isEmpty()) return;
  const QRectF &paper = place.rectangle;
  const Scale scale{paper.topLeft(), paper.width() / side.size.width};
  painter->save();
  painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
  paintPaper(painter, place);
  paintPages(painter, side, scale, paper, pictureOf);
  painter->setClipRect(paper.adjusted(-1, -1, 1, 1), Qt::IntersectClip);
  paintFolds(painter, side, scale);
  paintMarks(painter, side, scale, paper);
  painter->restore();
}

}  // namespace orvek
