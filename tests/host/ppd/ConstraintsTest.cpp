// SPDX-License-Identifier: Apache-2.0
// What a pick brings with it, for both forms of constraints.

#include "host/ppd/Constraints.h"

#include <gmock/gmock.h>

#include "host/ppd/Wording.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

/// Each test runs on the same printer with its constraints in either form.
class Constraints : public testing::TestWithParam<const char *> {
 protected:
  Constraints() { marks.markDefaults(); }

  Resolution pick(const QString &option, const QString &choice) {
    return markAndResolve(marks, {option, choice});
  }

  QStringList words(const Resolution &resolution) { return wordsFor(*printer, resolution); }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QString::fromLatin1(GetParam()));
  Marks marks{*printer};
};

TEST_P(Constraints, LeaveAPickWithoutConflictsAlone) {
  const Resolution resolution = pick("OVKFolding", "Saddle");
  EXPECT_TRUE(resolution.marked);
  EXPECT_TRUE(resolution.changes.isEmpty());
  EXPECT_EQ(marks.marked("OVKFolding"), "Saddle");
  EXPECT_TRUE(words(resolution).isEmpty());
}

TEST_P(Constraints, MakeTheEarlierChoiceGiveWayToThePick) {
  marks.mark("OVKStapling", "Front");
  const Resolution resolution = pick("OVKFolding", "Saddle");
  EXPECT_TRUE(resolution.marked);
  EXPECT_EQ(marks.marked("OVKFolding"), "Saddle");
  EXPECT_EQ(marks.marked("OVKStapling"), "None");
  EXPECT_EQ(resolution.changes,
            (QList<ChoiceChange>{{"OVKStapling", "Front", "None", {"OVKFolding", "Saddle"}}}));
}

TEST_P(Constraints, SayInPlainWordsWhatGaveWayAndToWhat) {
  marks.mark("OVKStapling", "Front");
  EXPECT_EQ(words(pick("OVKFolding", "Saddle")),
            QStringList{"Stapling was set to Off: it can't be combined with Saddle fold"});
}

TEST_P(Constraints, MakeTheFoldGiveWayWhenTheStapleIsPicked) {
  marks.mark("OVKFolding", "Saddle");
  EXPECT_TRUE(pick("OVKStapling", "Dual").marked);
  EXPECT_EQ(marks.marked("OVKStapling"), "Dual");
  EXPECT_EQ(marks.marked("OVKFolding"), "None");
}

TEST_P(Constraints, ResolveSeveralConflictsOfOnePick) {
  marks.mark("OVKStapling", "Front");
  marks.mark("OutputBin", "Upper");
  const Resolution resolution = pick("OVKFolding", "Saddle");
  EXPECT_EQ(resolution.changes.size(), 2);
  EXPECT_EQ(marks.marked("OVKStapling"), "None");
  EXPECT_NE(marks.marked("OutputBin"), "Upper");
  EXPECT_TRUE(marks.conflicts().isEmpty());
}

TEST_P(Constraints, UndoAPickThatTheEquipmentForbids) {
  marks.mark("OVKOptionFinisher", "False");
  const MarksSnapshot before = marks.snapshot();
  const Resolution resolution = pick("OVKStapling", "Front");
  EXPECT_FALSE(resolution.marked);
  EXPECT_TRUE(resolution.changes.isEmpty());
  EXPECT_EQ(marks.snapshot(), before);
  EXPECT_EQ(resolution.incompatible, (QList<OptionChoice>{{"OVKOptionFinisher", "False"}}));
}

TEST_P(Constraints, SayWhyAPickWasUndone) {
  marks.mark("OVKOptionFinisher", "False");
  EXPECT_EQ(
      words(pick("OVKStapling", "Front")),
      QStringList{
          "Stapling was not set to 1 Staple: it can't be combined with Finisher: Not Installed"});
}

TEST_P(Constraints, NameTheRealPartnerOfWhatGaveWay) {
  marks.mark("OVKOptionFinisher", "False");
  marks.mark("OVKStapling", "Front");
  const Resolution resolution = pick("OVKPunching", "2");
  EXPECT_TRUE(resolution.marked);
  EXPECT_EQ(
      words(resolution),
      QStringList{"Stapling was set to Off: it can't be combined with Finisher: Not Installed"});
}

TEST_P(Constraints, NeverChangeTheInstalledEquipment) {
  marks.mark("OVKOptionFinisher", "False");
  for (const char *choice : {"Front", "Dual"}) pick("OVKStapling", QString::fromLatin1(choice));
  EXPECT_EQ(marks.marked("OVKOptionFinisher"), "False");
}

TEST_P(Constraints, ComeToTheSameWhenAPickIsOnlyTried) {
  marks.mark("OVKStapling", "Front");
  const MarksSnapshot before = marks.snapshot();
  const Resolution tried = tryPick(marks, {"OVKFolding", "Saddle"});
  EXPECT_EQ(marks.snapshot(), before);
  const Resolution picked = pick("OVKFolding", "Saddle");
  EXPECT_EQ(tried.marked, picked.marked);
  EXPECT_EQ(tried.changes, picked.changes);
}

INSTANTIATE_TEST_SUITE_P(BothForms, Constraints,
                         testing::Values("finisher.ppd", "finisher-uiconstraints.ppd"),
                         [](const auto &form) {
                           return std::string(form.param) == "finisher.ppd" ? "WithResolvers"
                                                                            : "WithoutResolvers";
                         });

TEST(ConstraintsThatCannotBeResolved, HinderNoPickThatHasNoPartInThem) {
  auto printer = openTestPpd(QStringLiteral("stuck.ppd"));
  Marks marks(*printer);
  marks.markDefaults();
  marks.mark("OVKOptionFinisher", "False");
  marks.mark("OVKOptionTray", "True");
  ASSERT_EQ(marks.conflicts().size(), 2);
  const Resolution resolution = markAndResolve(marks, {"OVKFolding", "Saddle"});
  EXPECT_TRUE(resolution.marked);
  EXPECT_EQ(marks.marked("OVKFolding"), "Saddle");
}

TEST(ConstraintsThatCannotBeResolved, UndoAPickWhoseResolutionNamesAChoiceThatThePpdLacks) {
  auto printer = openTestPpd(QStringLiteral("no-default.ppd"));
  Marks marks(*printer);
  marks.markDefaults();
  marks.mark("OVKFolding", "Saddle");
  EXPECT_FALSE(markAndResolve(marks, {"OVKStapling", "Front"}).marked);
  EXPECT_EQ(marks.marked("OVKFolding"), "Saddle");
  EXPECT_EQ(marks.marked("OVKStapling"), "None");
}

}  // namespace
}  // namespace orvek::test
