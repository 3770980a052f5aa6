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

// A panel takes whatever isn't exactly "False" for on.
TEST(BookletEntry, HasAFlagAsPanelsWriteIt) {
  for (const QLatin1String key : bookletFlags) {
    for (const char *off : {"false", "FALSE", "off", "No", "0"}) {
      EXPECT_EQ(bookletEntry({key, off}), (OptionChoice{key, "False"})) << off;
    }
    for (const char *on : {"true", "on", "yes", "1", "none", ""}) {
      EXPECT_EQ(bookletEntry({key, on}), (OptionChoice{key, "True"})) << on;
    }
  }
}

TEST(BookletEntry, LeavesANumberAsItIsWritten) {
  EXPECT_EQ(bookletEntry({"OVKGutter", "036pt"}), (OptionChoice{"OVKGutter", "036pt"}));
  EXPECT_EQ(bookletEntry({"OVKCreep", "-4"}), (OptionChoice{"OVKCreep", "-4"}));
  EXPECT_EQ(bookletEntry({"OVKTargetPaperSize", "0"}), (OptionChoice{"OVKTargetPaperSize", "0"}));
}

TEST(BookletEntry, HasTheKeysOwnSpelling) {
  EXPECT_EQ(bookletEntry({"ovkenablebooklet", "true"}), (OptionChoice{"OVKEnableBooklet", "True"}));
  EXPECT_EQ(bookletEntry({"OVKGUTTER", "36"}), (OptionChoice{"OVKGutter", "36"}));
}

TEST(BookletEntry, IsNothingForAnyOtherOption) {
  for (const char *other : {"sides", "OVKFolding", "OVKEnable", "OVKEnableBooklets", ""}) {
    EXPECT_EQ(bookletEntry({other, "true"}), std::nullopt) << other;
  }
}

}  // namespace
}  // namespace orvek::test
