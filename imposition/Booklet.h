// SPDX-License-Identifier: Apache-2.0
// A whole booklet: every sheet with its two sides, and on each side the pages with their places.
// What the driver draws and what a preview shows.
#pragma once

#include <span>
#include <vector>

#include "imposition/BookletOptions.h"
#include "imposition/Geometry.h"

namespace orvek::imposition {

/// A page on the side of a sheet.
struct PlacedPage {
  /// Its number among the pages given, from 1.
  int page = 0;
  /// Where it stands on the held side; empty for a page without a size.
  Frame frame;
  /// The half of the side that is its own: nothing of it is drawn beyond, even where creep moves it
  /// over the fold.
  Frame clip;
  /// Degrees clockwise that it stands turned on the held side.
  int turn = 0;
  /// It is its own mirror image, left and right exchanged before it is turned.
  bool isMirrored = false;
  /// A thin frame is drawn along the inside of `frame`.
  bool border = false;

  bool operator==(const PlacedPage &) const = default;
};

/// A side as one holds it to read its pages: long edge at the top. From left to right; a half
/// without a page has none.
struct Side {
  std::vector<PlacedPage> pages;

  bool operator==(const Side &) const = default;
};

struct Sheet {
  /// Printed first.
  Side front;
  Side back;

  bool operator==(const Sheet &) const = default;
};

/// All sheets have one size. What lies between a held side and the paper says HeldSheet.h.
struct ImposedJob {
  /// Of every held side.
  Size side;
  /// In the order in which they are printed, the outermost first.
  std::vector<Sheet> sheets;

  bool operator==(const ImposedJob &) const = default;
};

/// Imposes the pages, in this order, on sheets of `paper` (either way round), whether or not
/// `keys.enabled`. Each page is as large as its proportions let it be in its half beside the
/// gutter, in the middle of the height, against the gutter.
///
/// The gutter lies half on each side of the fold. Creep moves the innermost sheet's pages by all of
/// `keys.creep`, the outermost's not at all, those between in equal steps; a single sheet has none.
/// So that pages that creep away from the fold stay on the paper, all pages of such a booklet leave
/// the room for it. On paper too small for gutter and creep, both give way until a page has a
/// quarter of the half's width. No frame reaches beyond the side.
///
/// Nothing for no pages, or for paper without a size. `keys.targetPaper` has no part in it: what it
/// means is `paper`.
ImposedJob imposeBooklet(std::span<const Size> pages, Size paper, const BookletKeys &keys);

}  // namespace orvek::imposition
