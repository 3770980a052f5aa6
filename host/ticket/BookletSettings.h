// SPDX-License-Identifier: Apache-2.0
// The booklet as a ticket describes it. Pure functions, over values only.
#pragma once

#include "host/ticket/TicketFile.h"
#include "platform/plugin/BookletKeys.h"

namespace orvek {

/// Plain data; keys and ranges are the contract's (BookletKeys.h). Lengths are points.
struct BookletSettings {
  /// Asked for, and not several pages per sheet.
  bool enabled = false;
  bool rightToLeft = false;
  bool pageBorders = false;
  /// Between the two pages at the fold.
  int gutter = gutterRange.absent;
  /// How far the innermost sheet's pages move towards the fold; below zero, away from it.
  int creep = creepRange.absent;
  /// 0 fits the current job, k is the k-th choice of the PPD's PageSize; below zero: none.
  int targetPaper = jobsOwnPaper;

  bool operator==(const BookletSettings &) const = default;
};

/// A flag that is there is on unless it is "False"; a number beyond its range becomes the nearest
/// within. What the ticket lacks has the default above.
BookletSettings bookletSettings(const TicketValues &ticket);

/// How many sheets a booklet of so many pages takes: four pages on each.
int bookletSheets(int pages);

}  // namespace orvek
