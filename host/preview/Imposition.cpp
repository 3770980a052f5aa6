// SPDX-License-Identifier: Apache-2.0
// The page order of a saddle-stitched booklet, and the geometry of its sheets.

#include "host/preview/Imposition.h"

#include <algorithm>
#include <utility>

namespace orvek {
namespace {

constexpr int pagesPerSheet = 4;

ImposedSide side(int left, int right, bool rightToLeft) {
  return rightToLeft ? ImposedSide{right, left} : ImposedSide{left, right};
}

// Inner sheets stick out farther at the open edge the more sheets lie around them.
double creepOf(qsizetype sheet, qsizetype sheets, int creep) {
  if (sheets < 2) return 0;
  return creep * static_cast<double>(sheet) / static_cast<double>(sheets - 1);
}

QRectF centred(QSizeF page, const QRectF &place) {
  QRectF result(QPointF(), page.scaled(place.size(), Qt::KeepAspectRatio));
  result.moveCenter(place.center());
  return result;
}

}  // namespace

QList<ImposedSheet> imposeBooklet(const QList<int> &pages, const BookletSettings &booklet) {
  const qsizetype sheets = bookletSheets(static_cast<int>(pages.size()));
  const qsizetype places = sheets * pagesPerSheet;
  const auto pageAt = [&](qsizetype place) { return place < pages.size() ? pages[place] : 0; };
  QList<ImposedSheet> imposed;
  for (qsizetype sheet = 0; sheet < sheets; ++sheet) {
    const qsizetype first = 2 * sheet;
    const qsizetype last = places - 1 - 2 * sheet;
    imposed.append({side(pageAt(last), pageAt(first), booklet.rightToLeft),
                    side(pageAt(first + 1), pageAt(last - 1), booklet.rightToLeft),
                    creepOf(sheet, sheets, booklet.creep)});
  }
  return imposed;
}

SideLayout layOutSide(QSizeF page, QSizeF paper, int gutter, double creep) {
  if (paper.width() < paper.height()) paper.transpose();
  const double half = paper.width() / 2;
  const double margin = std::min<double>(gutter, paper.width()) / 2;
  const QSizeF place(half - margin, paper.height());
  SideLayout layout;
  layout.sheet = paper;
  layout.left = centred(page, QRectF(QPointF(0, 0), place)).translated(creep, 0);
  layout.right = centred(page, QRectF(QPointF(half + margin, 0), place)).translated(-creep, 0);
  return layout;
}

}  // namespace orvek
