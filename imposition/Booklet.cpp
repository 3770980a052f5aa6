// SPDX-License-Identifier: Apache-2.0
// Places the pages of each side in its two halves.

#include "imposition/Booklet.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

#include "imposition/HeldSheet.h"
#include "imposition/PageOrder.h"

namespace orvek::imposition {
namespace {

/// What all sides of a booklet share.
struct Layout {
  Size side;
  /// Beside the fold.
  double margin = 0;
  /// For a page, from the margin outwards.
  Size room;
  bool borders = false;

  double fold() const { return side.width / 2; }
};

Layout layOut(Size paper, const BookletKeys &keys, std::size_t sheets) {
  Layout layout;
  layout.side = heldSheet(paper);
  layout.borders = keys.pageBorders;
  const double half = layout.fold();
  const double outwards = sheets > 1 ? std::max(0, -keys.creep) : 0;
  layout.margin = std::min(keys.gutter / 2.0, half / 2);
  const double left = half - layout.margin;
  layout.room = {left - std::min(outwards, left / 2), layout.side.height};
  return layout;
}

// Inner sheets stick out farther at the open edge the more sheets lie around them.
double creepOf(std::size_t sheet, std::size_t sheets, int creep) {
  if (sheets < 2) return 0;
  return creep * static_cast<double>(sheet) / static_cast<double>(sheets - 1);
}

enum class Half { Left, Right };

PlacedPage place(int page, Size size, Half half, double creep, const Layout &layout) {
  const bool isLeft = half == Half::Left;
  const Size scaled = scaledInto(size, layout.room);
  const double still =
      isLeft ? layout.fold() - layout.margin - scaled.width : layout.fold() + layout.margin;
  const double moved = still + (isLeft ? creep : -creep);
  PlacedPage placed;
  placed.page = page;
  placed.frame = {std::clamp(moved, 0.0, layout.side.width - scaled.width),
                  (layout.side.height - scaled.height) / 2, scaled.width, scaled.height};
  placed.clip = {isLeft ? 0 : layout.fold(), 0, layout.fold(), layout.side.height};
  placed.border = layout.borders;
  return placed;
}

Side placeSpread(const Spread &spread, std::span<const Size> pages, double creep,
                 const Layout &layout) {
  Side side;
  const auto add = [&](int page, Half half) {
    if (page == 0) return;
    const Size size = pages[static_cast<std::size_t>(page) - 1];
    side.pages.push_back(place(page, size, half, creep, layout));
  };
  add(spread.left, Half::Left);
  add(spread.right, Half::Right);
  return side;
}

}  // namespace

ImposedJob imposeBooklet(std::span<const Size> pages, Size paper, const BookletKeys &keys) {
  ImposedJob job;
  if (pages.empty() || !isDrawable(paper)) return job;
  const auto order = bookletOrder(static_cast<int>(pages.size()), keys.rightToLeft);
  const Layout layout = layOut(paper, keys, order.size());
  job.side = layout.side;
  job.sheets.reserve(order.size());
  for (std::size_t sheet = 0; sheet < order.size(); ++sheet) {
    const double creep = creepOf(sheet, order.size(), keys.creep);
    job.sheets.push_back({placeSpread(order[sheet].front, pages, creep, layout),
                          placeSpread(order[sheet].back, pages, creep, layout)});
  }
  return job;
}

}  // namespace orvek::imposition
