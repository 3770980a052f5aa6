// SPDX-License-Identifier: Apache-2.0
// The page order of a saddle-stitched booklet: all its sheets lie in each other and are folded
// once.
#pragma once

#include <vector>

namespace orvek::imposition {

inline constexpr int pagesPerBookletSheet = 4;

/// One side of a sheet that is folded in the middle: numbers of pages from 1, 0 for an empty half.
struct Spread {
  int left = 0;
  int right = 0;

  bool operator==(const Spread &) const = default;
};

/// One sheet, turned over at its short edge.
struct FoldedSheet {
  Spread front;
  Spread back;

  bool operator==(const FoldedSheet &) const = default;
};

/// How many sheets a booklet of so many pages takes. None for no pages, or for fewer.
int bookletSheets(int pages);

/// The sheets of a booklet of so many pages, the outermost first, each with its outer side as its
/// front. The places after the last page stay empty. Read from right to left each side is the
/// mirror image. Nothing for no pages.
std::vector<FoldedSheet> bookletOrder(int pages, bool rightToLeft);

/// The pages of such booklets in the order in which they stand on the sides, left before right: 0
/// for an empty place. One booklet for each `signature` pages, a multiple of 4; one for all where
/// it is not positive. Nothing for no pages, or for a signature that is no such multiple.
std::vector<int> pagesInBookletOrder(int pages, int signature);

}  // namespace orvek::imposition
