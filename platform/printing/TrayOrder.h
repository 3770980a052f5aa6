// SPDX-License-Identifier: Apache-2.0
// The order in which sheets have to be printed to lie as they should in their tray.
#pragma once

#include <string>

#include "platform/printing/PPD.h"

namespace orvek {

/// "Normal", "Reverse" or what else the PPD says of the tray, or else of the printer. `tray` is a
/// choice of OutputBin; null or empty: none. Empty where the PPD says nothing. Looked for in the
/// same places as the standard filters do.
inline std::string trayOrder(ppd_file_t *ppd, const char *tray) {
  const bool isNamed = tray != nullptr && *tray != '\0';
  const ppd_attr_t *order = isNamed ? ppdFindAttr(ppd, "PageStackOrder", tray) : nullptr;
  if (order == nullptr) order = ppdFindAttr(ppd, "DefaultOutputOrder", nullptr);
  return order == nullptr || order->value == nullptr ? std::string() : order->value;
}

}  // namespace orvek
