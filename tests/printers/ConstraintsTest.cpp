// SPDX-License-Identifier: Apache-2.0
// What can't be combined on our printers, as libcups understands it from the PPD files.

#include <gmock/gmock.h>

#include <map>

#include "tests/printers/PrinterFamily.h"

namespace orvek::test {
namespace {

using ::testing::Contains;
using ::testing::IsEmpty;
using ::testing::Key;
using ::testing::Not;
using ::testing::Pair;
using ::testing::UnorderedElementsAre;

using Settings = std::map<std::string, std::string>;

Settings take(int count, cups_option_t *options) {
  Settings settings;
  for (int i = 0; i < count; ++i) settings[options[i].name] = options[i].value;
  cupsFreeOptions(count, options);
  return settings;
}

class Printer {
 public:
  explicit Printer(const std::string &model) : ppd(openPrinter(model)) {}

  Printer &mark(const char *option, const char *choice) {
    ppdMarkOption(ppd.get(), option, choice);
    return *this;
  }

  /// What the pick can't be combined with, of what is marked now.
  Settings conflictsWith(const char *option, const char *choice) {
    cups_option_t *options = nullptr;
    const int count = cupsGetConflicts(ppd.get(), option, choice, &options);
    return take(count, options);
  }

  /// The settings that make the pick possible, the pick included; empty: there are none.
  Settings wayOutOf(const char *option, const char *choice) {
    cups_option_t *options = nullptr;
    int count = 0;
    const int resolved = cupsResolveConflicts(ppd.get(), option, choice, &count, &options);
    const Settings settings = take(count, options);
    return resolved != 0 ? settings : Settings();
  }

  PPD ppd;
};

class EveryStaple : public ::testing::TestWithParam<const char *> {};

INSTANTIATE_TEST_SUITE_P(Positions, EveryStaple,
                         ::testing::Values("Front", "Rear", "Dual", "FrontFlip", "RearFlip",
                                           "DualFlip"));

TEST_P(EveryStaple, GivesWayToASaddleFold) {
  Printer printer("6180");
  printer.mark("OVKStapling", GetParam());
  EXPECT_THAT(printer.conflictsWith("OVKFolding", "Saddle"),
              UnorderedElementsAre(Pair("OVKStapling", GetParam())));
  EXPECT_THAT(printer.wayOutOf("OVKFolding", "Saddle"),
              UnorderedElementsAre(Pair("OVKFolding", "Saddle"), Pair("OVKStapling", "None")));
}

TEST_P(EveryStaple, SwitchesASaddleFoldOffWhenItIsPicked) {
  Printer printer("6180");
  printer.mark("OVKFolding", "Saddle");
  EXPECT_THAT(printer.wayOutOf("OVKStapling", GetParam()),
              UnorderedElementsAre(Pair("OVKStapling", GetParam()), Pair("OVKFolding", "None")));
}

TEST_P(EveryStaple, NeedsAFinisher) {
  Printer printer("6180");
  printer.mark("OVKOptionFinisher", "False");
  EXPECT_THAT(printer.conflictsWith("OVKStapling", GetParam()), Contains(Key("OVKOptionFinisher")));
  EXPECT_THAT(printer.wayOutOf("OVKStapling", GetParam()), IsEmpty());
}

TEST_P(EveryStaple, LeavesTheOffsetTrayForTheAutomaticOne) {
  Printer printer("6180");
  printer.mark("OutputBin", "OffsetBin");
  EXPECT_THAT(printer.wayOutOf("OVKStapling", GetParam()),
              UnorderedElementsAre(Pair("OVKStapling", GetParam()), Pair("OutputBin", "Auto")));
}

TEST(Staples, GiveWayToPapersTooSmallForThem) {
  for (const char *paper : {"A5", "A6", "Statement", "Postcard", "Env10", "Custom.300x400"}) {
    Printer printer("6180");
    printer.mark("OVKStapling", "Front");
    EXPECT_THAT(printer.wayOutOf("PageSize", paper), Contains(Pair("OVKStapling", "None")))
        << paper;
  }
}

TEST(Folds, NeedAFinisher) {
  Printer printer("6180");
  printer.mark("OVKOptionFinisher", "False");
  EXPECT_THAT(printer.conflictsWith("OVKFolding", "Fold"), Contains(Key("OVKOptionFinisher")));
  EXPECT_THAT(printer.conflictsWith("OVKFolding", "Saddle"), Contains(Key("OVKOptionFinisher")));
  EXPECT_THAT(printer.conflictsWith("OVKFolding", "None"), IsEmpty());
}

TEST(SaddleFold, IsNotOffsetNorSentToTheFinisherTray) {
  Printer printer("6180");
  printer.mark("OVKJog", "True").mark("OutputBin", "Finisher");
  EXPECT_THAT(printer.wayOutOf("OVKFolding", "Saddle"),
              UnorderedElementsAre(Pair("OVKFolding", "Saddle"), Pair("OVKJog", "False"),
                                   Pair("OutputBin", "Auto")));
}

struct Punch {
  const char *unit;
  const char *holes;
  bool possible;
};

class EveryPunchUnit : public ::testing::TestWithParam<Punch> {};

INSTANTIATE_TEST_SUITE_P(
    Holes, EveryPunchUnit,
    ::testing::Values(Punch{"None", "2Hole", false}, Punch{"None", "3Hole", false},
                      Punch{"None", "4Hole", false}, Punch{"US_Punch", "2Hole", false},
                      Punch{"US_Punch", "3Hole", true}, Punch{"US_Punch", "4Hole", false},
                      Punch{"Metric_Punch", "2Hole", true}, Punch{"Metric_Punch", "3Hole", false},
                      Punch{"Metric_Punch", "4Hole", true}));

TEST_P(EveryPunchUnit, PunchesItsOwnHolesOnly) {
  Printer printer("6180");
  printer.mark("OVKOptionPunch", GetParam().unit);
  const Settings conflicts = printer.conflictsWith("OVKPunching", GetParam().holes);
  EXPECT_EQ(conflicts.empty(), GetParam().possible);
  EXPECT_EQ(printer.wayOutOf("OVKPunching", GetParam().holes).empty(), !GetParam().possible);
}

TEST(Holes, NeedAFinisherEvenWithAPunchUnit) {
  Printer printer("6180");
  printer.mark("OVKOptionFinisher", "False");
  EXPECT_THAT(printer.conflictsWith("OVKPunching", "2Hole"), Contains(Key("OVKOptionFinisher")));
}

TEST(Holes, GiveWayToPapersThatTheyWouldMiss) {
  Printer printer("6180");
  printer.mark("OVKPunching", "4Hole");
  EXPECT_THAT(printer.wayOutOf("PageSize", "Legal"), Contains(Pair("OVKPunching", Not("4Hole"))));
  EXPECT_THAT(printer.wayOutOf("PageSize", "EnvDL"), Contains(Pair("OVKPunching", "None")));
  EXPECT_THAT(printer.conflictsWith("PageSize", "A3"), IsEmpty());
}

TEST(Offsetting, WorksWithEitherOfItsTwoDevices) {
  Printer printer("6180");
  printer.mark("OVKOptionOffsetBin", "False");
  EXPECT_THAT(printer.conflictsWith("OVKJog", "True"), IsEmpty());
  printer.mark("OVKOptionOffsetBin", "True").mark("OVKOptionFinisher", "False");
  EXPECT_THAT(printer.conflictsWith("OVKJog", "True"), IsEmpty());
}

TEST(Offsetting, NeedsOneOfThem) {
  Printer printer("6180");
  printer.mark("OVKOptionOffsetBin", "False").mark("OVKOptionFinisher", "False");
  EXPECT_THAT(printer.conflictsWith("OVKJog", "True"),
              UnorderedElementsAre(Key("OVKOptionFinisher"), Key("OVKOptionOffsetBin")));
  EXPECT_THAT(printer.wayOutOf("OVKJog", "True"), IsEmpty());
}

TEST(Offsetting, IsSwitchedOffWhenTheLastOfThemGoes) {
  Printer printer("6180");
  printer.mark("OVKJog", "True").mark("OVKOptionOffsetBin", "False");
  EXPECT_THAT(printer.wayOutOf("OVKOptionFinisher", "False"),
              UnorderedElementsAre(Pair("OVKOptionFinisher", "False"), Pair("OVKJog", "False")));
}

TEST(Offsetting, LeavesTheStandardTray) {
  Printer printer("6180");
  printer.mark("OutputBin", "Standard");
  EXPECT_THAT(printer.wayOutOf("OVKJog", "True"), Contains(Pair("OutputBin", "Auto")));
}

TEST(Offsetting, NeedsTheTrayOnAPrinterWithoutFinisher) {
  Printer printer("2120");
  EXPECT_THAT(printer.conflictsWith("OVKJog", "True"), IsEmpty());
  printer.mark("OVKOptionOffsetBin", "False");
  EXPECT_THAT(printer.conflictsWith("OVKJog", "True"), Contains(Key("OVKOptionOffsetBin")));
  EXPECT_THAT(printer.conflictsWith("OutputBin", "OffsetBin"), Contains(Key("OVKOptionOffsetBin")));
}

TEST(Trays, AreThereWithTheirEquipmentOnly) {
  Printer printer("6180");
  printer.mark("OVKOptionFinisher", "False").mark("OVKOptionOffsetBin", "False");
  for (const char *tray : {"Finisher", "Booklet", "OffsetBin"}) {
    EXPECT_THAT(printer.conflictsWith("OutputBin", tray), Not(IsEmpty())) << tray;
  }
  EXPECT_THAT(printer.conflictsWith("OutputBin", "Standard"), IsEmpty());
}

// Both directions are written, so a reader that knows only one finds every conflict.
TEST(Constraints, AreWrittenInBothDirections) {
  for (const std::string &model : models) {
    const PPD ppd = openPrinter(model);
    ASSERT_NE(ppd, nullptr);
    std::map<std::string, int> directions;
    for (int i = 0; i < ppd->num_consts; ++i) {
      const ppd_const_t &one = ppd->consts[i];
      const std::string left = std::string(one.option1) + " " + one.choice1;
      const std::string right = std::string(one.option2) + " " + one.choice2;
      ++directions[std::min(left, right) + " / " + std::max(left, right)];
    }
    EXPECT_FALSE(directions.empty());
    for (const auto &[pair, count] : directions) EXPECT_EQ(count, 2) << model << ": " << pair;
  }
}

}  // namespace
}  // namespace orvek::test
