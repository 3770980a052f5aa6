// SPDX-License-Identifier: Apache-2.0
// The booklet as a ticket describes it. Reads values only.
#pragma once

#include <QLatin1String>

#include "host/ticket/TicketFile.h"

namespace orvek {

/// Pages on a sheet, 0 for one: where the host's own layout control and the panels meet.
inline constexpr QLatin1String layoutKey("com.apple.print.PrintSettings.PMLayoutNUp");

/// Lengths are points.
struct BookletSettings {
  bool enabled = false;      ///< OVKEnableBooklet, and not several pages per sheet
  bool rightToLeft = false;  ///< OVKRightToLeft
  bool pageBorders = false;  ///< OVKPrintPageBorders
  int gutter = 24;           ///< OVKGutter: between the two pages at the fold, 0 to 144
  int creep = 0;        ///< OVKCreep: how far the innermost sheet's pages move towards the fold
                        ///< (negative: away from it), -36 to 36
  int targetPaper = 0;  ///< OVKTargetPaperSize: 0 fits the current job, k is the k-th choice of
                        ///< the PPD's PageSize; negative: none

  bool operator==(const BookletSettings &) const = default;
};

/// A flag that is there is on unless it is "False"; a number beyond its range becomes the nearest
/// within. What the ticket lacks has the default above.
BookletSettings bookletSettings(const TicketValues &ticket);

/// How many sheets a booklet of so many pages takes: four pages on each.
int bookletSheets(int pages);

}  // namespace orvek
