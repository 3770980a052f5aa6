// SPDX-License-Identifier: Apache-2.0
// Marks: spelling, marking, remembering and going back.

#include "host/ppd/Marks.h"

#include <gmock/gmock.h>

#include <QRandomGenerator>

#include "platform/printing/PPD.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

class MarksTest : public testing::Test {
 protected:
  MarksTest() { marks.markDefaults(); }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("finisher.ppd"));
  Marks marks{*printer};
};

TEST_F(MarksTest, StandAtThePpdsDefaultsAtFirst) {
  EXPECT_EQ(marks.marked("OVKStapling"), "None");
  EXPECT_EQ(marks.marked("OVKOptionFinisher"), "True");
  EXPECT_TRUE(marks.differingFromDefaults().isEmpty());
}

TEST_F(MarksTest, SpellAnOptionAndChoiceAsThePpdDoes) {
  EXPECT_EQ(marks.spelled("ovkstapling", "FRONT"), (OptionChoice{"OVKStapling", "Front"}));
  EXPECT_EQ(marks.spelled("outputbin", "upper"), (OptionChoice{"OutputBin", "Upper"}));
}

TEST_F(MarksTest, KnowNoOptionOrChoiceThatThePpdLacks) {
  EXPECT_FALSE(marks.spelled("OVKFlying", "True"));
  EXPECT_FALSE(marks.spelled("OVKStapling", "Triple"));
  EXPECT_FALSE(marks.spelled("OVKStapling", ""));
  EXPECT_FALSE(marks.spelled("OVKStapling", QString()));
  EXPECT_FALSE(marks.spelled("", "Front"));
}

TEST_F(MarksTest, MarkWithoutRegardToCase) {
  EXPECT_TRUE(marks.mark("ovkSTAPLING", "dual"));
  EXPECT_EQ(marks.marked("OVKStapling"), "Dual");
  EXPECT_EQ(marks.differingFromDefaults(), (QList<OptionChoice>{{"OVKStapling", "Dual"}}));
}

TEST_F(MarksTest, StayWhenAChoiceIsUnknown) {
  const MarksSnapshot before = marks.snapshot();
  EXPECT_FALSE(marks.mark("OVKStapling", "Triple"));
  EXPECT_FALSE(marks.mark("OVKFlying", "True"));
  EXPECT_EQ(marks.snapshot(), before);
}

TEST_F(MarksTest, ListOnlyOptionsThatHaveAMark) {
  const QList<OptionChoice> all = marks.all();
  EXPECT_THAT(all, testing::Contains(OptionChoice{"PageSize", "A4"}));
  EXPECT_THAT(all,
              testing::Not(testing::Contains(testing::Field(&OptionChoice::option, "PageRegion"))));
}

TEST_F(MarksTest, ReturnToASnapshotWithItsMissingMarks) {
  const MarksSnapshot before = marks.snapshot();
  marks.mark("OVKStapling", "Front");
  marks.mark("PageRegion", "Letter");
  ASSERT_NE(marks.snapshot(), before);
  marks.restore(before);
  EXPECT_EQ(marks.snapshot(), before);
  EXPECT_TRUE(marks.marked("PageRegion").isNull());
}

TEST_F(MarksTest, NameBothSidesOfAConflictInThePpdsOrder) {
  marks.mark("OVKStapling", "Front");
  marks.mark("OVKFolding", "Saddle");
  EXPECT_EQ(marks.conflicts(),
            (QList<OptionChoice>{{"OVKFolding", "Saddle"}, {"OVKStapling", "Front"}}));
}

TEST_F(MarksTest, NameInstalledEquipmentAmongConflicts) {
  marks.mark("OVKOptionFinisher", "False");
  marks.mark("OVKStapling", "Front");
  EXPECT_THAT(marks.conflicts(), testing::Contains(OptionChoice{"OVKOptionFinisher", "False"}));
}

TEST_F(MarksTest, KeepACustomValueAsItWasGiven) {
  auto custom = openTestPpd(QStringLiteral("custom.ppd"));
  Marks customMarks(*custom);
  customMarks.markDefaults();
  ASSERT_TRUE(customMarks.mark("PageSize", "Custom.200x300"));
  EXPECT_EQ(customMarks.marked("PageSize"), "Custom.200x300");
  const MarksSnapshot before = customMarks.snapshot();
  customMarks.mark("PageSize", "A4");
  customMarks.restore(before);
  EXPECT_EQ(customMarks.marked("PageSize"), "Custom.200x300");
}

TEST(MarksWithoutPpd, KnowNothing) {
  Marks marks(PrinterDescription::none());
  marks.markDefaults();
  EXPECT_FALSE(marks.mark("OVKStapling", "Front"));
  EXPECT_TRUE(marks.all().isEmpty());
  EXPECT_TRUE(marks.conflicts().isEmpty());
}

/// Marks a choice by libcups' own call.
QList<OptionChoice> markedByLibcups(const Marks &marks, const OptionChoice &choice) {
  ppdMarkOption(marks.printer().lend(), choice.option.toUtf8().constData(),
                choice.choice.toUtf8().constData());
  return marks.all();
}

TEST(MarksOfEveryPrinter, MoveAsLibcupsMovesThem) {
  QRandomGenerator random(20261122);
  for (const char *name : {"finisher.ppd", "sources.ppd", "../../../../printers/Orvek-6180.ppd"}) {
    const auto ours = openTestPpd(QLatin1String(name));
    const auto theirs = openTestPpd(QLatin1String(name));
    ASSERT_TRUE(ours && theirs) << name;
    Marks marks(*ours);
    const Marks expected(*theirs);
    QList<OptionChoice> picks;
    for (const PrinterOptionGroup &group : ours->options()) {
      for (const PrinterOption &option : group.options) {
        if (option.kind() == OptionKind::PickMany) continue;
        for (const PrinterChoice &choice : option.choices()) {
          if (choice.keyword != u"Custom") picks.append({option.keyword(), choice.keyword});
        }
      }
    }
    for (int i = 0; i < 1000; ++i) {
      const OptionChoice &pick = picks.at(random.bounded(int(picks.size())));
      EXPECT_TRUE(marks.mark(pick.option, pick.choice));
      ASSERT_EQ(marks.all(), markedByLibcups(expected, pick)) << pick.option.toStdString();
    }
  }
}

}  // namespace
}  // namespace orvek::test
