// SPDX-License-Identifier: Apache-2.0
// Which page stands where on the sheets of a booklet. Pure functions.
#pragma once

#include <QList>
#include <QRectF>
#include <QSizeF>

#include "host/ticket/BookletSettings.h"

namespace orvek {

/// One side of a sheet, fold in the middle: page numbers from 1, 0 for an empty half.
struct ImposedSide {
  int left = 0;
  int right = 0;

  bool operator==(const ImposedSide &) const = default;
};

/// One sheet, turned over at its short edge.
struct ImposedSheet {
  ImposedSide front;
  ImposedSide back;
  double creep = 0;  ///< points that its pages move towards the fold; negative: away from it

  bool operator==(const ImposedSheet &) const = default;
};

/// The sheets from the outermost to the innermost. Nothing for no pages.
QList<ImposedSheet> imposeBooklet(const QList<int> &pages, const BookletSettings &booklet);

/// Where the two pages stand on a sheet's side. Points, y downwards, origin at the sheet's upper
/// left corner.
struct SideLayout {
  QSizeF sheet;  ///< landscape
  QRectF left;
  QRectF right;
};

/// Pages of `page` size on `paper`, as large as fits beside the gutter, moved by `creep`.
SideLayout layOutSide(QSizeF page, QSizeF paper, int gutter, double creep);

}  // namespace orvek
