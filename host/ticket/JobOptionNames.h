// SPDX-License-Identifier: Apache-2.0
// What CUPS calls the settings of a job, and how it writes their values.
#pragma once

#include <QLatin1String>
#include <array>

#include "host/ticket/JobSettings.h"
#include "imposition/StandardOptions.h"

namespace orvek {

inline constexpr QLatin1String copiesOption{"copies"};
inline constexpr QLatin1String pageRangesOption{"page-ranges"};
inline constexpr QLatin1String orientationOption{"orientation-requested"};
inline constexpr QLatin1String outputOrderOption{"outputorder"};
inline constexpr QLatin1String pagesPerSheetOption{imposition::numberUpOption};

/// The PPD's own option for collation, and CUPS' (which compares without regard to case).
inline constexpr QLatin1String collateOption{"Collate"};

/// Names that lp's users know for the same.
inline constexpr QLatin1String landscapeOption{"landscape"};
inline constexpr QLatin1String handlingOption{"multiple-document-handling"};

inline constexpr QLatin1String collatedCopies{"separate-documents-collated-copies"};
inline constexpr QLatin1String uncollatedCopies{"separate-documents-uncollated-copies"};
inline constexpr QLatin1String lastPageFirst{"reverse"};
inline constexpr QLatin1String firstPageFirst{"normal"};

/// One value of orientationOption (RFC 8011). Plain data.
struct OrientationNumber {
  Orientation orientation;
  int number;
};
inline constexpr std::array<OrientationNumber, 4> orientationNumbers{{
    {Orientation::Portrait, 3},
    {Orientation::Landscape, 4},
    {Orientation::ReverseLandscape, 5},
    {Orientation::ReversePortrait, 6},
}};

}  // namespace orvek
