// SPDX-License-Identifier: Apache-2.0
// The booklet's keys as they are read from a ticket.

#include "host/ticket/BookletSettings.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

TEST(BookletSettings, HaveDefaultsWhereTheTicketIsEmpty) {
  EXPECT_EQ(bookletSettings({}), imposition::BookletKeys());
}

TEST(BookletSettings, ReadWhatAPanelWrites) {
  const TicketValues ticket{
      {"OVKEnableBooklet", "True"}, {"OVKRightToLeft", "True"}, {"OVKPrintPageBorders", "True"},
      {"OVKGutter", "36"},          {"OVKCreep", "-4"},         {"OVKTargetPaperSize", "2"}};
  EXPECT_EQ(bookletSettings(ticket), (imposition::BookletKeys{true, true, true, 36, -4, 2}));
}

// The driver reads the same words from the job; two rules would make two booklets of one ticket.
TEST(BookletSettings, ReadFlagsAsTheDriverDoes) {
  for (const char *off : {"False", "false", "no", "off", "0"}) {
    EXPECT_FALSE(bookletSettings({{"OVKEnableBooklet", QString(off)}}).enabled) << off;
  }
  EXPECT_FALSE(bookletSettings({{"OVKEnableBooklet", 0}}).enabled);
  EXPECT_TRUE(bookletSettings({{"OVKEnableBooklet", 1}}).enabled);
  EXPECT_TRUE(bookletSettings({{"OVKEnableBooklet", QString("yes")}}).enabled);
}

TEST(BookletSettings, KeepNumbersWithinTheirRanges) {
  EXPECT_EQ(bookletSettings({{"OVKGutter", "999"}}).gutter, 144);
  EXPECT_EQ(bookletSettings({{"OVKGutter", -1}}).gutter, 0);
  EXPECT_EQ(bookletSettings({{"OVKCreep", "-99"}}).creep, -36);
  EXPECT_EQ(bookletSettings({{"OVKCreep", "words"}}).creep, 0);
}

TEST(BookletSettings, GiveWayToSeveralPagesPerSheet) {
  const TicketValues ticket{{"OVKEnableBooklet", "True"}, {layoutNUpKey, 2}};
  EXPECT_FALSE(bookletSettings(ticket).enabled);
}

}  // namespace
}  // namespace orvek::test
