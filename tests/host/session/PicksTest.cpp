// SPDX-License-Identifier: Apache-2.0
// Picks: what is recorded in the ticket, and the step back.

#include "host/session/Picks.h"

#include <gtest/gtest.h>

#include "tests/host/session/SessionKit.h"

namespace orvek::test {
namespace {

class PicksTest : public testing::Test {
 protected:
  PicksTest() { picks.marks().markDefaults(); }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("finisher.ppd"));
  std::shared_ptr<Ticket> ticket = std::make_shared<Ticket>();
  Picks picks{*printer, ticket};
};

TEST_F(PicksTest, RecordAChoiceAsThePpdSpellsIt) {
  ASSERT_TRUE(picks.pick("ovkfolding", "SADDLE"));
  EXPECT_EQ(ticket->values(), (TicketValues{{"OVKFolding", "Saddle"}}));
}

TEST_F(PicksTest, RecordNothingForAnEmptyOrUnknownChoice) {
  ticket->setValue("OVKFolding", "kept");
  EXPECT_FALSE(picks.pick("OVKFolding", QString()));
  EXPECT_FALSE(picks.pick("OVKFolding", "Triple"));
  EXPECT_FALSE(picks.pick("Unknown", "Saddle"));
  EXPECT_EQ(ticket->values(), (TicketValues{{"OVKFolding", "kept"}}));
  EXPECT_FALSE(picks.canUndo());
}

TEST_F(PicksTest, RecordANumberUnderAChoiceKeyAsItsText) {
  ticket->setValue("OVKPunching", 3);
  ASSERT_TRUE(picks.pick("OVKPunching", "3"));
  EXPECT_EQ(ticket->value("OVKPunching").metaType().id(), QMetaType::QString);
}

TEST_F(PicksTest, RecordWhatGaveWayUnderItsOwnKey) {
  picks.pick("OVKStapling", "Front");
  picks.pick("OVKFolding", "Saddle");
  EXPECT_EQ(ticket->values(), (TicketValues{{"OVKFolding", "Saddle"}, {"OVKStapling", "None"}}));
}

TEST_F(PicksTest, LeaveTheTicketAsItWasWhenThePickIsUndone) {
  picks.marks().mark("OVKOptionFinisher", "False");
  ticket->setValue("OVKStapling", "None");
  ASSERT_FALSE(picks.pick("OVKStapling", "Front")->marked);
  EXPECT_EQ(ticket->values(), (TicketValues{{"OVKStapling", "None"}}));
}

TEST_F(PicksTest, AreTakenBackInOneStepWithMarksAndTicket) {
  picks.pick("OVKStapling", "Front");
  picks.beginStep();
  const MarksSnapshot before = picks.marks().snapshot();
  const TicketValues ticketBefore = ticket->values();
  picks.pick("OVKFolding", "Saddle");
  picks.pick("OVKPunching", "2");
  ASSERT_TRUE(picks.canUndo());
  EXPECT_TRUE(picks.undo().contains("OVKStapling"));
  EXPECT_EQ(picks.marks().snapshot(), before);
  EXPECT_EQ(ticket->values(), ticketBefore);
  EXPECT_FALSE(picks.canUndo());
}

TEST_F(PicksTest, ThatChangeNothingDoNotCostTheStepBack) {
  picks.pick("OVKFolding", "Saddle");
  picks.beginStep();
  picks.pick("OVKFolding", "Saddle");
  ASSERT_TRUE(picks.canUndo());
  picks.undo();
  EXPECT_EQ(picks.marks().marked("OVKFolding"), "None");
}

TEST_F(PicksTest, LeaveOtherTicketKeysAloneWhenTakenBack) {
  picks.pick("OVKFolding", "Saddle");
  ticket->setValue("OVKGutter", "30");
  picks.undo();
  EXPECT_EQ(ticket->values(), (TicketValues{{"OVKGutter", "30"}}));
}

TEST_F(PicksTest, HaveNothingToTakeBackAtFirst) {
  EXPECT_FALSE(picks.canUndo());
  EXPECT_TRUE(picks.undo().isEmpty());
}

}  // namespace
}  // namespace orvek::test
