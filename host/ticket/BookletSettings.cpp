// SPDX-License-Identifier: Apache-2.0
// Hands a ticket's values to the one reading of the booklet's keys.

#include "host/ticket/BookletSettings.h"

#include "platform/printing/PrintSettings.h"
#include "platform/system/OptionMap.h"

namespace orvek {

imposition::BookletKeys bookletSettings(const TicketValues &ticket) {
  return imposition::readBookletKeys([&](const char *key) -> std::optional<std::string> {
    const auto value = valueNamed(ticket, QLatin1String(key));
    return value ? std::optional(textReading(*value).toStdString()) : std::nullopt;
  });
}

}  // namespace orvek
