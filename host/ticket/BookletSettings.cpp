// SPDX-License-Identifier: Apache-2.0
// Reads the booklet's keys the way the panel that writes them does.

#include "host/ticket/BookletSettings.h"

#include <algorithm>

#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

constexpr int largestGutter = 144;
constexpr int largestCreep = 36;
constexpr int pagesPerSheet = 4;

bool flag(const TicketValues &ticket, const char *key) {
  const QVariant value = ticket.value(QString::fromLatin1(key));
  return value.isValid() && textReading(value) != QStringLiteral("False");
}

int number(const TicketValues &ticket, const char *key, int absent) {
  const QVariant value = ticket.value(QString::fromLatin1(key));
  return value.isValid() ? integerReading(value) : absent;
}

}  // namespace

BookletSettings bookletSettings(const TicketValues &ticket) {
  BookletSettings booklet;
  const bool severalPagesPerSheet = integerReading(ticket.value(layoutKey)) != 0;
  booklet.enabled = flag(ticket, "OVKEnableBooklet") && !severalPagesPerSheet;
  booklet.rightToLeft = flag(ticket, "OVKRightToLeft");
  booklet.pageBorders = flag(ticket, "OVKPrintPageBorders");
  booklet.gutter = std::clamp(number(ticket, "OVKGutter", booklet.gutter), 0, largestGutter);
  booklet.creep =
      std::clamp(number(ticket, "OVKCreep", booklet.creep), -largestCreep, largestCreep);
  booklet.targetPaper = number(ticket, "OVKTargetPaperSize", booklet.targetPaper);
  return booklet;
}

int bookletSheets(int pages) {
  return pages <= 0 ? 0 : (pages - 1) / pagesPerSheet + 1;
}

}  // namespace orvek
