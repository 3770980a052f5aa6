// SPDX-License-Identifier: Apache-2.0
// What a session begins with where it is contradictory: what gives way, what is dropped, what is
// said.

#include "host/session/FirstMarks.h"

#include <gtest/gtest.h>

#include "host/ppd/Wording.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

class FirstMarks : public testing::Test {
 protected:
  void mark(const SessionSetup &setup) {
    for (auto entry = setup.ticket.begin(); entry != setup.ticket.end(); ++entry) {
      ticket.setValue(entry.key(), entry.value());
    }
    const Result<QList<Resolution>> settled = markFirst(marks, ticket, setup);
    ASSERT_TRUE(settled.ok());
    for (const Resolution &resolution : settled.value()) {
      said << wordsFor(marks.printer(), resolution);
    }
  }

  QString marked(const char *option) const { return marks.marked(option); }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("finisher.ppd"));
  Marks marks{*printer};
  Ticket ticket;
  QStringList said;
};

TEST_F(FirstMarks, AreJustWhatIsAskedForWhereNothingConflicts) {
  const TicketValues asked{{"ovkstapling", "front"}, {"OVKPunching", 3}, {"OVKFolding", "Origami"}};
  mark({.ticket = asked, .queueOptions = {{"OutputBin", "Upper"}}});
  EXPECT_EQ(marked("OVKStapling"), "Front");
  EXPECT_EQ(marked("OVKPunching"), "3");
  EXPECT_EQ(marked("OutputBin"), "Upper");
  EXPECT_EQ(ticket.values(), asked);
  EXPECT_TRUE(said.isEmpty());
}

TEST_F(FirstMarks, DropFromTheTicketWhatEquipmentRulesOut) {
  mark({.ticket = {{"OVKStapling", "Front"}, {"OVKGutter", "30"}},
        .marks = {{"OVKOptionFinisher", "False"}}});
  EXPECT_EQ(marked("OVKStapling"), "None");
  EXPECT_EQ(ticket.values(), (TicketValues{{"OVKGutter", "30"}}));
  EXPECT_TRUE(marks.conflicts().isEmpty());
  ASSERT_EQ(said.size(), 1);
  EXPECT_TRUE(said[0].startsWith("Stapling was not set to ")) << said[0].toStdString();
}

TEST_F(FirstMarks, DropATicketsChoiceInWhateverLettersItIsWritten) {
  mark({.ticket = {{"ovkstapling", "front"}}, .marks = {{"ovkoptionfinisher", "false"}}});
  EXPECT_EQ(marked("OVKStapling"), "None");
  EXPECT_TRUE(ticket.values().isEmpty());
}

TEST_F(FirstMarks, LetATicketsOwnEquipmentRuleOutItsOtherChoices) {
  mark({.ticket = {{"OVKOptionFinisher", "False"}, {"OVKStapling", "Front"}}});
  EXPECT_EQ(marked("OVKOptionFinisher"), "False");
  EXPECT_EQ(marked("OVKStapling"), "None");
  EXPECT_EQ(ticket.values(), (TicketValues{{"OVKOptionFinisher", "False"}}));
  EXPECT_EQ(said.size(), 1);
}

TEST_F(FirstMarks, LetTheLaterOfTwoTicketChoicesStandAndRecordWhatGaveWay) {
  mark({.ticket = {{"OVKFolding", "Saddle"}, {"OVKStapling", "Front"}}});
  EXPECT_EQ(marked("OVKStapling"), "Front");
  EXPECT_EQ(marked("OVKFolding"), "None");
  EXPECT_EQ(ticket.values(), (TicketValues{{"OVKFolding", "None"}, {"OVKStapling", "Front"}}));
  EXPECT_EQ(said.size(), 1);
}

TEST_F(FirstMarks, LetAGivenMarkThatIsNoEquipmentGiveWayToTheTicket) {
  mark({.ticket = {{"OVKStapling", "Front"}}, .marks = {{"OVKFolding", "Saddle"}}});
  EXPECT_EQ(marked("OVKStapling"), "Front");
  EXPECT_EQ(marked("OVKFolding"), "None");
  EXPECT_EQ(ticket.value("OVKFolding"), QVariant("None"));
  EXPECT_EQ(said.size(), 1);
}

TEST_F(FirstMarks, LetAGivenMarkHoldAgainstWhatIsSavedForTheQueue) {
  mark({.queueOptions = {{"OVKStapling", "Front"}}, .marks = {{"OVKFolding", "Saddle"}}});
  EXPECT_EQ(marked("OVKFolding"), "Saddle");
  EXPECT_EQ(marked("OVKStapling"), "None");
  EXPECT_TRUE(ticket.values().isEmpty());
  ASSERT_EQ(said.size(), 1);
  EXPECT_TRUE(said[0].endsWith("it can't be combined with Saddle fold")) << said[0].toStdString();
}

TEST_F(FirstMarks, LetTheQueuesChoiceGiveWayToTheTickets) {
  mark({.ticket = {{"OVKStapling", "Front"}}, .queueOptions = {{"OVKFolding", "Saddle"}}});
  EXPECT_EQ(marked("OVKStapling"), "Front");
  EXPECT_EQ(marked("OVKFolding"), "None");
  EXPECT_EQ(said.size(), 1);
}

TEST(FirstMarksOfAQueue, AreInForceAgainWhereTheTicketsChoiceIsDropped) {
  const auto printer =
      PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd")).take();
  Marks marks(*printer);
  Ticket ticket;
  ticket.setValue("OVKPunching", "2Hole");
  const SessionSetup setup{.ticket = ticket.values(),
                           .queueOptions = {{"OVKPunching", "3Hole"}},
                           .marks = {{"OVKOptionPunch", "US_Punch"}}};
  EXPECT_EQ(markFirst(marks, ticket, setup).value().size(), 1);
  EXPECT_EQ(marks.marked("OVKPunching"), "3Hole");
  EXPECT_TRUE(ticket.values().isEmpty());
  EXPECT_TRUE(marks.conflicts().isEmpty());
}

TEST_F(FirstMarks, LeaveAConflictOfGivenMarksAlone) {
  mark({.marks = {{"OVKStapling", "Front"}, {"OVKFolding", "Saddle"}}});
  EXPECT_EQ(marked("OVKStapling"), "Front");
  EXPECT_EQ(marked("OVKFolding"), "Saddle");
  EXPECT_TRUE(said.isEmpty());
}

TEST_F(FirstMarks, LeaveATicketsWordInItsPlaceWhereItCannotHold) {
  mark({.ticket = {{"output-bin", "upper"}, {"OVKFolding", "Saddle"}}});
  EXPECT_EQ(marked("OVKFolding"), "Saddle");
  EXPECT_NE(marked("OutputBin"), "Upper");
  EXPECT_EQ(ticket.value("output-bin"), QVariant("upper"));
  EXPECT_EQ(said.size(), 1);
}

}  // namespace
}  // namespace orvek::test
