// SPDX-License-Identifier: Apache-2.0
// Draws one side of a sheet as it comes out of the printer. Knows a painter and lengths only.
#pragma once

#include <QImage>
#include <QRectF>
#include <functional>

#include "imposition/JobSheets.h"

class QPainter;

namespace orvek {

/// Gives a page's picture; null while there is none: its number stands in its place.
using PictureOf = std::function<QImage(int page)>;

/// How a side is drawn, in the painter's own units. Plain data.
struct SidePlace {
  /// The sheet fills it; its proportions are the caller's business.
  QRectF rectangle;
  /// The sheet's outline must stand out from a dark ground.
  bool isOnDark = false;
};

/// The paper with its pages, folds, staples and holes. Staples on a back show their bent ends.
void paintSide(QPainter *painter, const SidePlace &place, const imposition::PrintedSide &side,
               const PictureOf &pictureOf);

/// The largest rectangle of a side's proportions within a place, in its middle.
QRectF fittedSide(const imposition::PrintedSide &side, const QRectF &place);

}  // namespace orvek
