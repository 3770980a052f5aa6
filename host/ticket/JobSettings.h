// SPDX-License-Identifier: Apache-2.0
// What a job is told beside the printer's own options: copies, pages, orientation. Plain data;
// JobOptions.h says it by CUPS' names, AskedOptions.h reads it from them.
#pragma once

#include <QString>

namespace orvek {

/// How pages are turned onto the sheet. Automatic leaves it to the document.
enum class Orientation { Automatic, Portrait, Landscape, ReversePortrait, ReverseLandscape };

inline constexpr int maximumCopies = 9999;

/// Plain data.
struct JobSettings {
  /// 1 to maximumCopies.
  int copies = 1;
  /// Whole sets, not page by page. Where the PPD has an option for it, its mark is what counts, and
  /// a session keeps both the same.
  bool collate = true;
  /// "1-3,7", as normalizedPageRanges() (PageRanges.h) gives them; null: all pages.
  QString pageRanges;
  Orientation orientation = Orientation::Automatic;
  /// Last page first.
  bool reverse = false;
  /// What is wrong with ranges that were typed, in words; null: nothing.
  QString pageRangesProblem;

  bool operator==(const JobSettings &) const = default;
};

/// `next` with what was changed between `began` and `now`.
inline JobSettings carriedOver(const JobSettings &now, const JobSettings &began, JobSettings next) {
  if (now.copies != began.copies) next.copies = now.copies;
  if (now.collate != began.collate) next.collate = now.collate;
  if (now.pageRanges != began.pageRanges) next.pageRanges = now.pageRanges;
  if (now.orientation != began.orientation) next.orientation = now.orientation;
  if (now.reverse != began.reverse) next.reverse = now.reverse;
  next.pageRangesProblem = now.pageRangesProblem;
  return next;
}

}  // namespace orvek
