// SPDX-License-Identifier: Apache-2.0
// Hands a ticket's values to the one reading of the booklet's keys.

#include "host/ticket/BookletSettings.h"

#include "platform/printing/PrintSettings.h"

namespace orvek {

imposition::BookletKeys bookletSettings(const TicketValues &ticket) {
  return imposition::readBookletKeys([&](const char *key) -> std::optional<std::string> {
    const auto value = ticket.constFind(QLatin1String(key));
    if (value == ticket.constEnd()) return std::nullopt;
    return textReading(*value).toStdString();
  });
}

}  // namespace orvek
