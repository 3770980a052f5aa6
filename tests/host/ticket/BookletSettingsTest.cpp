// SPDX-License-Identifier: Apache-2.0
// The booklet's keys as they are read from a ticket.

#include "host/ticket/BookletSettings.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

TEST(BookletSettings, HaveDefaultsWhereTheTicketIsEmpty) {
  EXPECT_EQ(bookletSettings({}), BookletSettings());
}

TEST(BookletSettings, ReadWhatAPanelWrites) {
  const TicketValues ticket{
      {"OVKEnableBooklet", "True"}, {"OVKRightToLeft", "True"}, {"OVKPrintPageBorders", "True"},
      {"OVKGutter", "36"},          {"OVKCreep", "-4"},         {"OVKTargetPaperSize", "2"}};
  EXPECT_EQ(bookletSettings(ticket), (BookletSettings{true, true, true, 36, -4, 2}));
}

TEST(BookletSettings, TakeAFlagForOnUnlessItIsFalse) {
  EXPECT_TRUE(bookletSettings({{"OVKEnableBooklet", "false"}}).enabled);
  EXPECT_TRUE(bookletSettings({{"OVKEnableBooklet", 0}}).enabled);
  EXPECT_FALSE(bookletSettings({{"OVKEnableBooklet", "False"}}).enabled);
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

TEST(BookletSettings, CountSheetsByFourPages) {
  EXPECT_EQ(bookletSheets(0), 0);
  EXPECT_EQ(bookletSheets(1), 1);
  EXPECT_EQ(bookletSheets(4), 1);
  EXPECT_EQ(bookletSheets(5), 2);
}

}  // namespace
}  // namespace orvek::test
