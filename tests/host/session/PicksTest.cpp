// SPDX-License-Identifier: Apache-2.0
// Picks: what is recorded in the ticket.

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

}  // namespace
}  // namespace orvek::test
