// SPDX-License-Identifier: Apache-2.0
// The names in a PPD by which a printer staples, folds, punches and makes booklets, where the panel
// that sets them and the host that warns of what they lead to agree.
#pragma once

namespace orvek {

inline constexpr const char *staplingKeyword = "OVKStapling";
inline constexpr const char *foldingKeyword = "OVKFolding";
inline constexpr const char *punchKeyword = "OVKPunching";

/// The choice of foldingKeyword that folds the sheets of a booklet at its spine.
inline constexpr const char *saddleFold = "Saddle";

/// Whether the printer makes booklets: "True".
inline constexpr const char *hasBookletAttribute = "OVKHasBooklet";

/// How many sheets the printer folds at once: a whole number.
inline constexpr const char *maximumBookletSheetsAttribute = "OVKBookletMaximumSheets";

}  // namespace orvek
