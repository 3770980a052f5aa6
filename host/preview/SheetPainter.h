// SPDX-License-Identifier: Apache-2.0
// Draws one side of a booklet's sheet. Knows a painter and numbers only.
#pragma once

#include <QRectF>

#include "host/preview/PreviewState.h"

class QPainter;

namespace orvek {

/// How a side is drawn, in the painter's own units.
struct SidePlace {
  QRectF rectangle;         ///< where the sheet goes; its proportions are kept
  bool isInverted = false;  ///< the sheet's outline must stand out from a dark ground
};

/// The sheet with its fold, and on it the two pages: a number, lines in place of text, the border
/// where one is printed, and the place they would have without creep.
void paintSide(QPainter *painter, const SidePlace &place, const ImposedSide &side, double creep,
               const PreviewState &state);

/// Height of a sheet drawn this wide.
double sideHeight(double width, QSizeF paper);

}  // namespace orvek
