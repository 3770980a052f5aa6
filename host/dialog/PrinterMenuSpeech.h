// SPDX-License-Identifier: Apache-2.0
// The menu of printers for those who listen to the window: its open list is part of it.
#pragma once

namespace orvek {

/// Has the toolkit speak for every PrinterMenu from now on. The toolkit's own words for a combo box
/// know no list but the toolkit's. Safe to call again; on the interface's thread; nothing fails.
void teachSpeechOfPrinterMenus();

}  // namespace orvek
