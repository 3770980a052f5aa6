// SPDX-License-Identifier: Apache-2.0
// The booklet's keys in a job's ticket: the one place where the panel that writes them and the host
// that makes the booklet agree on names, values, defaults and ranges.
#pragma once

#include <QLatin1String>
#include <array>

namespace orvek {

/// How a flag is written. Read by a panel, a flag that is there is on unless it is exactly
/// `falseValue`, so that other writers' "1" or "yes" mean what they say; one that is absent is off.
/// Jobs reach a driver with their booleans in CUPS' own short forms: imposition/BookletOptions.h
/// reads those.
inline constexpr QLatin1String trueValue{"True"};
inline constexpr QLatin1String falseValue{"False"};

/// Flags: whether the job becomes a booklet, whether it is bound on the right, and whether a line
/// is drawn around every page.
inline constexpr QLatin1String enableBookletKey{"OVKEnableBooklet"};
inline constexpr QLatin1String rightToLeftKey{"OVKRightToLeft"};
inline constexpr QLatin1String pageBordersKey{"OVKPrintPageBorders"};

/// A whole number in a ticket, written in decimal digits. Whoever reads it takes `absent` where the
/// ticket lacks it, and the nearest end of the range for a number beyond it.
struct BookletNumber {
  int absent;
  int least;
  int most;
};

/// The gap between the two pages at the fold, in points.
inline constexpr QLatin1String gutterKey{"OVKGutter"};
inline constexpr BookletNumber gutterRange{24, 0, 144};

/// How far the pages of the innermost sheet move towards the fold, in points; below zero, away from
/// it. The sheets further out move in proportion.
inline constexpr QLatin1String creepKey{"OVKCreep"};
inline constexpr BookletNumber creepRange{0, -36, 36};

/// Which paper the booklet is made for: 0 is the job's own, k the k-th choice of the PPD's
/// PageSize, counted from 1; below zero, none was picked. Absent is the job's own.
inline constexpr QLatin1String targetPaperSizeKey{"OVKTargetPaperSize"};
inline constexpr int jobsOwnPaper = 0;

/// All of a booklet's keys, by what their values are.
inline constexpr std::array bookletFlags{enableBookletKey, rightToLeftKey, pageBordersKey};
inline constexpr std::array bookletNumbers{gutterKey, creepKey, targetPaperSizeKey};

/// Pages per sheet, 0 for one: the host's own layout control writes it, as a number. Any other
/// number excludes a booklet.
inline constexpr QLatin1String layoutNUpKey{"com.apple.print.PrintSettings.PMLayoutNUp"};

}  // namespace orvek
