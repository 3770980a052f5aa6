// SPDX-License-Identifier: Apache-2.0
// The booklet as a job describes it: the one reading of its keys. Reads values only.
#pragma once

#include <optional>
#include <string>

#include "imposition/StandardOptions.h"
#include "platform/plugin/BookletKeys.h"

namespace orvek::imposition {

/// Lengths are points.
struct BookletKeys {
  /// A booklet is asked for, and not several pages per sheet.
  bool enabled = false;
  /// Its pages are read from right to left.
  bool rightToLeft = false;
  /// A thin frame around each page.
  bool pageBorders = false;
  /// Between the two pages of a side, within gutterRange.
  int gutter = gutterRange.absent;
  /// How far the innermost sheet's pages move towards the fold (negative: away from it), within
  /// creepRange.
  int creep = creepRange.absent;
  /// The sheet: k for the k-th choice of the PPD's PageSize, else the job's own paper.
  int targetPaper = jobsOwnPaper;

  bool operator==(const BookletKeys &) const = default;
};

/// Whether a flag that is there is on: unless it is "false", "off", "no" or "0" in letters of
/// either case. CUPS hands on what a panel wrote as "False" as "false".
bool readsAsOn(const std::string &flag);

/// Reads a job's keys, its flags as above. A number is read
/// as far as it is one, 0 where it begins as none, and one beyond its range becomes the nearest
/// within. What is absent has the default above.
BookletKeys readBookletKeys(const ValueOf &valueOf);

/// The integer that a text begins with: white space skipped, an optional sign, digits; 0 without
/// digits, the nearest 32-bit value beyond its range.
int leadingInteger(const std::string &text);

/// The index of the PageSize choice, from 0, that a target paper means where a PPD has so many
/// choices. Nothing for the job's own paper: 0, a number below it, and one that stands for no
/// choice. The last choice is custom paper, which has no size of its own to scale to: none, either.
std::optional<int> targetPaperChoice(int targetPaper, int pageSizeChoices);

}  // namespace orvek::imposition
