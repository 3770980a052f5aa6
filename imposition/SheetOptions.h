// SPDX-License-Identifier: Apache-2.0
// The options of a booklet's job once its sheets are made: what of them is done, what must not
// befall sheets, and how sheets are printed. Names as CUPS compares them, without regard to case.
#pragma once

#include <array>
#include <utility>

#include "imposition/StandardOptions.h"
#include "platform/plugin/BookletKeys.h"

namespace orvek::imposition {

/// Carried out on the pages. A second time, it would befall sheets.
inline constexpr std::array doneWithSheets{"page-ranges",
                                           "page-set",
                                           orderOptions[0],
                                           orderOptions[1],
                                           orderOptions[2],
                                           "orientation-requested",
                                           "landscape",
                                           "mirror",
                                           "fit-to-page",
                                           "fitplot",
                                           "ipp-attribute-fidelity",
                                           "fill",
                                           "print-scaling",
                                           "scaling",
                                           "natural-scaling",
                                           "position",
                                           numberUpOption,
                                           "number-up-layout",
                                           "page-border",
                                           "booklet",
                                           "booklet-signature",
                                           "cupsEvenDuplex",
                                           enableBookletKey.data(),
                                           rightToLeftKey.data(),
                                           pageBordersKey.data(),
                                           gutterKey.data(),
                                           creepKey.data(),
                                           targetPaperSizeKey.data()};

/// Would turn the sheets over otherwise, or part the copies.
inline constexpr std::array againstSheets{sidesOption,
                                          duplexOptions[0],
                                          duplexOptions[1],
                                          duplexOptions[2],
                                          duplexOptions[3],
                                          duplexOptions[4],
                                          "multiple-document-handling",
                                          "Collate"};

/// How they are printed: turned over at the short edge, each copy a booklet.
inline constexpr std::array<std::pair<const char *, const char *>, 3> sheetOptions{{
    {"Duplex", "DuplexTumble"},
    {"sides", "two-sided-short-edge"},
    {"Collate", "True"},
}};

/// Say which paper a job is printed on; of sheets on another paper than the job's, one of them
/// does.
inline constexpr const char *sheetPaperOption = "PageSize";
inline constexpr std::array paperOptions{"media", "media-col", "media-size", sheetPaperOption,
                                         "PageRegion"};

}  // namespace orvek::imposition
