// SPDX-License-Identifier: Apache-2.0
// Every name the panel shares with PPDs, tickets, strings and bundles, each written once. Those
// that hosts know as well stand in the contract: its keys of the booklet and of finishing come with
// this header.
#pragma once

#include <QLatin1String>

#include "platform/plugin/BookletKeys.h"
#include "platform/plugin/FinishingKeywords.h"

namespace orvek {

/// PPD options the panel takes charge of beside stapling and folding, and the paper size it only
/// reads.
inline constexpr const char *paperDestKeyword = "OutputBin";
inline constexpr const char *offsetKeyword = "OVKJog";
inline constexpr const char *paperSizeKeyword = "PageSize";

/// Installed equipment.
inline constexpr const char *finisherKeyword = "OVKOptionFinisher";
inline constexpr const char *offsetBinKeyword = "OVKOptionOffsetBin";
inline constexpr const char *punchUnitKeyword = "OVKOptionPunch";

/// The calling application's name in the ticket.
inline constexpr QLatin1String appNameKey{"OVKAppName"};

/// Keys of the bundle's string table.
inline constexpr QLatin1String panelNameString{"_PDE_Finishing_Options"};
inline constexpr QLatin1String enableBookletString{"_PDE_Finishing_Enable_Booklet"};
inline constexpr QLatin1String bookletBoxString{"_PDE_Finishing_Booklet_Box_Title"};
inline constexpr QLatin1String rightToLeftString{"_PDE_Finishing_Right_To_Left"};
inline constexpr QLatin1String pageBordersString{"_PDE_Finishing_Print_Page_Borders"};
inline constexpr QLatin1String gutterString{"_PDE_Finishing_Gutter"};
inline constexpr QLatin1String creepString{"_PDE_Finishing_Creep"};
inline constexpr QLatin1String targetPaperSizeString{"_PDE_Finishing_Target_Paper_Size"};
inline constexpr QLatin1String fitCurrentJobString{"_PDE_Finishing_Fit_Current_Job"};
inline constexpr QLatin1String onString{"_PDE_On"};
inline constexpr QLatin1String offString{"_PDE_Off"};

}  // namespace orvek
