// SPDX-License-Identifier: Apache-2.0
// A whole job as it will come out of the printer: every printed side in the order of printing, with
// its pages and with what the finisher leaves on it.
#pragma once

#include <span>
#include <vector>

#include "imposition/BookletOptions.h"
#include "imposition/FilterLayout.h"
#include "imposition/Finishing.h"
#include "imposition/HeldSheet.h"

namespace orvek::imposition {

struct SheetJob {
  FilterJob filters;
  /// The document is PostScript, which a filter of its own lays out. Not for booklets.
  bool isScript = false;
  /// The filter of PostScript knows one word for the order alone ("outputorder").
  bool isScriptReversed = false;
  bool twoSided = false;
  /// Two-sided, the back's top where the front's foot is.
  bool turnsOverShortEdge = false;
  /// Enabled: it is two-sided, whatever the job says.
  BookletKeys booklet;
  /// The booklet's sheets; empty: the job's paper.
  Size bookletPaper;
  /// The tray piles sheets face up: once all is done, the filters turn the order of sides round
  /// once more.
  bool isTurnedForTray = false;
  Finishing finishing;
  /// Nothing is printed in color.
  bool inGray = false;

  bool operator==(const SheetJob &) const = default;
};

/// A side held such that its first page stands upright; a blank one as the sheet's other side is,
/// or else as it is fed.
struct PrintedSide {
  int sheet = 1;
  Face face = Face::Front;
  Size size;
  /// With their turn against the first of them; none: blank.
  std::vector<PlacedPage> pages;
  std::vector<Mark> marks;
  std::vector<Line> folds;
};

/// The job's sides for a document whose pages, as displayed, have these sizes. One set: copies are
/// not repeated. The last sheet of a job with an odd number of sides has no back side; a booklet's
/// sheets all have one, blank or not.
std::vector<PrintedSide> printedSides(std::span<const Size> pages, const SheetJob &job);

/// How many sheets of paper the job takes for so many pages.
int sheetsFor(int pages, const SheetJob &job);

/// How many sheets of paper so many sides take, the last one counted whole.
int sheetCount(const std::vector<PrintedSide> &sides);

}  // namespace orvek::imposition
