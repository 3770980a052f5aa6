// SPDX-License-Identifier: Apache-2.0
// Where the print system's standard filters put a document's pages: which pages share a side, how
// they are turned, scaled and placed. A model of those filters' own rules, so that a preview need
// not run them; tests compare it with them.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "imposition/Booklet.h"
#include "imposition/Geometry.h"

namespace orvek::imposition {

/// How pages meet paper of another size ("print-scaling").
enum class Scaling {
  /// As large as they are; all fitted where one of them is larger than the paper.
  Automatic,
  /// As large as they are, cut off at the paper's edges.
  None,
  /// As large as the printable area lets them be.
  Fit,
  /// The printable area is filled, and what sticks out cut off.
  Fill,
};

/// How pages are turned ("orientation-requested", RFC 8011).
enum class Turning { Portrait, Landscape, ReverseLandscape, ReversePortrait };

enum class Parity { All, Odd, Even };

/// Where a page lies in a place of other proportions ("position"), as the page itself is turned:
/// the left of a page that lies on its side is its own left.
struct Position {
  enum class Across { Middle, Left, Right };
  enum class Down { Middle, Top, Bottom };

  Across across = Across::Middle;
  Down down = Down::Middle;

  bool operator==(const Position &) const = default;
};

/// Reads "left", "top-right", "bottom" ...; the middle for any other text.
Position readPosition(const std::string &text);

/// The filters' own page order for booklets ("booklet"), without gutter, creep and frames.
enum class OwnBooklet {
  Off,
  /// Two pages on each side.
  Sides,
  /// The pages' order alone ("shuffle-only").
  Order,
};

struct PageRange {
  int first = 1;
  /// 0: open.
  int last = 0;

  bool operator==(const PageRange &) const = default;
};

/// Which of the sides that the filters make are printed, and in which order. Sides are counted, not
/// the document's pages: with four pages on each, the range 2-2 stands for pages 5 to 8.
struct SideSelection {
  /// None: all.
  std::vector<PageRange> ranges;
  Parity parity = Parity::All;
  bool reverse = false;
  /// A reversed job begins with a blank side where their number is odd.
  bool twoSided = false;

  bool operator==(const SideSelection &) const = default;
};

/// What of a job the standard filters carry out.
struct FilterJob {
  /// As the printer feeds it.
  Size paper;
  /// On that paper; empty: all of it.
  Frame printable;
  Turning turning = Turning::Portrait;
  /// The PPD's LandscapeOrientation is Minus90.
  bool landscapeTurnsRight = false;
  /// One that the filters don't know counts as 1.
  int pagesPerSide = 1;
  /// "number-up-layout"; empty: "lrtb".
  std::string order;
  Scaling scaling = Scaling::Automatic;
  SideSelection sides;
  Position position;
  /// Every side comes out as its own mirror image.
  bool isMirrored = false;
  OwnBooklet booklet = OwnBooklet::Off;
  /// "booklet-signature": pages in each booklet, a multiple of 4; not positive: all in one. With
  /// another number the filters give up, and nothing is printed.
  int signature = 0;
  /// Degrees clockwise that each page is turned by its own document, which matters to `position`
  /// alone. Those that are missing count as 0.
  std::vector<int> ownTurns;
  /// Asked for in the words that the filter of PostScript knows ("fit-to-page",
  /// "ipp-attribute-fidelity").
  bool fitsScripts = false;

  bool operator==(const FilterJob &) const = default;
};

/// One side of the paper as the printer feeds it. Pages may reach beyond it; their clip does not.
struct FilteredSide {
  std::vector<PlacedPage> pages;
};

/// The sides in the order in which they are printed. `pages` are sizes as displayed; a page without
/// a size is placed as an empty frame. (The filters put square pages that have a quarter turn of
/// their own off the middle; here they stand in it.) Nothing for no pages, or for paper without a
/// size.
std::vector<FilteredSide> layOutAsFiltered(std::span<const Size> pages, const FilterJob &job);

/// Whether the filters print this side, counted from 1.
bool isSelected(int side, const SideSelection &sides);

/// How many sides the filters make of so many pages before they choose among them.
int madeSides(int pages, const FilterJob &job);

/// How many sides are printed of so many pages, blank ones counted.
int filteredSides(int pages, const FilterJob &job);

}  // namespace orvek::imposition
