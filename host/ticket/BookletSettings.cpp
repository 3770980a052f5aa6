// SPDX-License-Identifier: Apache-2.0
// Reads the booklet's keys the way the panel that writes them does.

#include "host/ticket/BookletSettings.h"

#include <algorithm>

#include "platform/printing/PrintSettings.h"

namespace orvek {
namespace {

constexpr int pagesPerSheet = 4;

bool flag(const TicketValues &ticket, QLatin1String key) {
  const QVariant value = ticket.value(key);
  return value.isValid() && textReading(value) != falseValue;
}

int number(const TicketValues &ticket, QLatin1String key, const BookletNumber &range) {
  const QVariant value = ticket.value(key);
  return value.isValid() ? std::clamp(integerReading(value), range.least, range.most)
                         : range.absent;
}

}  // namespace

BookletSettings bookletSettings(const TicketValues &ticket) {
  BookletSettings booklet;
  const bool severalPagesPerSheet = integerReading(ticket.value(layoutNUpKey)) != 0;
  booklet.enabled = flag(ticket, enableBookletKey) && !severalPagesPerSheet;
  booklet.rightToLeft = flag(ticket, rightToLeftKey);
  booklet.pageBorders = flag(ticket, pageBordersKey);
  booklet.gutter = number(ticket, gutterKey, gutterRange);
  booklet.creep = number(ticket, creepKey, creepRange);
  const QVariant paper = ticket.value(targetPaperSizeKey);
  booklet.targetPaper = paper.isValid() ? integerReading(paper) : jobsOwnPaper;
  return booklet;
}

int bookletSheets(int pages) {
  return pages <= 0 ? 0 : (pages - 1) / pagesPerSheet + 1;
}

}  // namespace orvek
