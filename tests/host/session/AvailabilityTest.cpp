// SPDX-License-Identifier: Apache-2.0
// Which choices can be picked, and what is said of the others.

#include "host/session/Availability.h"

#include <gtest/gtest.h>

#include <QTest>

#include "tests/host/session/SessionKit.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

using Kind = ChoiceAvailability::Kind;

class AvailabilityTest : public testing::Test {
 protected:
  void begin(const QString &path, const QList<OptionChoice> &marks = {}) {
    SessionSetup setup;
    setup.printer = PrinterDescription::open(path).take();
    setup.marks = marks;
    session = PrintSession::begin(setup).take();
    availability = std::make_unique<Availability>(*session);
  }

  void begin6180(const QList<OptionChoice> &marks = {}) {
    begin(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"), marks);
  }

  std::unique_ptr<PrintSession> session;
  std::unique_ptr<Availability> availability;
};

TEST_F(AvailabilityTest, LetsEverythingBePickedWhereNothingConflicts) {
  begin6180();
  EXPECT_TRUE(availability->of("OVKStapling", "Dual").isUsable());
  EXPECT_TRUE(availability->of("Resolution", "1200dpi").isUsable());
  EXPECT_TRUE(availability->of("OVKStapling", "Dual").words().isNull());
}

TEST_F(AvailabilityTest, NamesWhatAChoiceCanNotStandBesideAndWhatWouldGiveWay) {
  begin6180();
  session->pick("OVKFolding", "Saddle");
  const ChoiceAvailability dual = availability->of("OVKStapling", "Dual");
  EXPECT_EQ(dual.kind, Kind::Displaces);
  EXPECT_EQ(dual.reason, "not with Saddle fold");
  EXPECT_EQ(dual.effect, "Folding would be set to Off");
  EXPECT_EQ(dual.words(), "not with Saddle fold (Folding would be set to Off)");
}

TEST_F(AvailabilityTest, NamesTheEquipmentThatIsMissing) {
  begin6180({{"OVKOptionFinisher", "False"}});
  const ChoiceAvailability dual = availability->of("OVKStapling", "Dual");
  EXPECT_EQ(dual.kind, Kind::Unusable);
  EXPECT_EQ(dual.reason, "needs the Finisher, which this printer doesn't have");
  EXPECT_TRUE(dual.effect.isNull());
  EXPECT_TRUE(availability->of("OVKStapling", "None").isUsable());
}

TEST_F(AvailabilityTest, NamesEquipmentOfAnotherKind) {
  begin6180({{"OVKOptionPunch", "US_Punch"}});
  const ChoiceAvailability four = availability->of("OVKPunching", "4Hole");
  EXPECT_EQ(four.kind, Kind::Unusable);
  EXPECT_TRUE(four.reason.startsWith("not with Punch unit: ")) << four.reason.toStdString();
}

TEST_F(AvailabilityTest, ReadsConstraintsOfBothForms) {
  for (const char *ppd : {"finisher.ppd", "finisher-uiconstraints.ppd"}) {
    begin(testPpd(QString::fromLatin1(ppd)));
    session->pick("OVKFolding", "Saddle");
    EXPECT_EQ(availability->of("OVKStapling", "Front").kind, Kind::Displaces);
    EXPECT_EQ(availability->of("OVKStapling", "Front").reason, "not with Saddle fold");
  }
}

TEST_F(AvailabilityTest, LeavesMarksAndTicketAsTheyWere) {
  begin6180();
  session->pick("OVKFolding", "Saddle");
  const MarksSnapshot marks = session->marks().snapshot();
  const TicketValues ticket = session->ticket().values();
  for (const char *choice : {"None", "Front", "Rear", "Dual"}) {
    availability->of("OVKStapling", QString::fromLatin1(choice));
  }
  EXPECT_EQ(session->marks().snapshot(), marks);
  EXPECT_EQ(session->ticket().values(), ticket);
}

TEST_F(AvailabilityTest, KeepsACustomPaperSizeWhileItLooks) {
  begin6180();
  ASSERT_TRUE(session->pick("PageSize", "Custom.400x500"));
  EXPECT_FALSE(availability->of("OVKStapling", "Dual").isUsable());
  EXPECT_EQ(session->marks().marked("PageSize"), "Custom.400x500");
}

TEST_F(AvailabilityTest, FollowsTheSession) {
  begin6180();
  EXPECT_TRUE(availability->of("OVKStapling", "Dual").isUsable());
  session->pick("OVKFolding", "Saddle");
  EXPECT_FALSE(availability->of("OVKStapling", "Dual").isUsable());
  session->undo();
  EXPECT_TRUE(availability->of("OVKStapling", "Dual").isUsable());
}

TEST_F(AvailabilityTest, AgreesWithWhatAPickDoes) {
  begin6180({{"OVKOptionFinisher", "False"}});
  for (const char *option : {"OVKStapling", "OVKFolding", "OVKPunching", "OutputBin", "Duplex"}) {
    const QList<PrinterChoice> choices = session->marks().printer().choices(option);
    ASSERT_FALSE(choices.isEmpty());
    for (const auto &[choice, text, textInPpd] : choices) {
      const ChoiceAvailability said = availability->of(option, choice);
      const QStringList before = session->record().notices();
      EXPECT_EQ(session->pick(option, choice), said.kind != Kind::Unusable) << choice.toStdString();
      EXPECT_EQ(session->record().notices() == before, said.isUsable()) << choice.toStdString();
    }
  }
}

TEST_F(AvailabilityTest, KnowsNothingAgainstWhatThePpdLacks) {
  begin6180();
  EXPECT_TRUE(availability->of("OVKStapling", "Triple").isUsable());
  EXPECT_TRUE(availability->of("Missing", "Choice").isUsable());
}

TEST(AvailabilityWithoutPpd, HasNothingAgainstAnything) {
  const auto session = PrintSession::begin({}).take();
  Availability availability(*session);
  EXPECT_TRUE(availability.of("PageSize", "A4").isUsable());
}

TEST_F(AvailabilityTest, LeavesABookletNoChoiceOfSides) {
  begin6180();
  EXPECT_TRUE(availability->of("Duplex", "None").isUsable());
  session->setTicketValue("OVKEnableBooklet", "True");
  ASSERT_TRUE(QTest::qWaitFor([&] { return !availability->of("Duplex", "None").isUsable(); }));
  for (const char *sides : {"None", "DuplexNoTumble"}) {
    EXPECT_EQ(availability->of("Duplex", sides).kind, Kind::Unusable);
    EXPECT_EQ(availability->of("duplex", sides).reason, "a booklet is printed on both sides");
  }
  EXPECT_TRUE(availability->of("Duplex", "DuplexTumble").isUsable());
  EXPECT_TRUE(availability->of("Collate", "False").isUsable());
}

}  // namespace
}  // namespace orvek::test
