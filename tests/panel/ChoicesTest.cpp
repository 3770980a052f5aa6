// SPDX-License-Identifier: Apache-2.0
// Options as lists, marks as selections, picks on their way to the host.

#include "Common/DefaultSelection.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Choices : public PanelFixture {
 protected:
  ppd_option_t *stapling() { return ppdFindOption(ppd.get(), "OVKStapling"); }
};

TEST_F(Choices, AnAbsentOptionHasNoList) {
  EXPECT_EQ(OrvekFinishing::arrayFromPPDOption(nullptr), nullptr);
}

TEST_F(Choices, AnOptionWithoutChoicesHasAnEmptyList) {
  ppd_option_t option{};
  const auto list = OrvekFinishing::arrayFromPPDOption(&option);
  ASSERT_NE(list, nullptr);
  EXPECT_TRUE(list->empty());
  option.num_choices = -1;
  EXPECT_TRUE(OrvekFinishing::arrayFromPPDOption(&option)->empty());
}

TEST_F(Choices, AListHoldsEveryChoiceInThePPDsOrder) {
  create(openPPD(fullPrinter()));
  const auto list = OrvekFinishing::arrayFromPPDOption(stapling());
  ASSERT_EQ(int(list->size()), stapling()->num_choices);
  for (int i = 0; i < stapling()->num_choices; ++i) {
    EXPECT_EQ(list->at(std::size_t(i))->choice(), stapling()->choices + i);
  }
}

TEST_F(Choices, WithoutMarkTheDefaultIsCurrent) {
  ppd = openPPD(fullPrinter().option(staplingOption(QStringLiteral("Front"))));
  for (int i = 0; i < stapling()->num_choices; ++i) stapling()->choices[i].marked = 0;
  cupsArrayClear(ppd->marked);
  create(std::move(ppd));
  EXPECT_EQ(panel->indexOfMarkedOption_forKey(stapling(), "OVKStapling"), 1U);
}

TEST_F(Choices, AMarkWinsOverTheDefault) {
  create(openPPD(fullPrinter().option(staplingOption(QStringLiteral("Front")))));
  ppdMarkOption(ppd.get(), "OVKStapling", "Rear");
  EXPECT_EQ(panel->indexOfMarkedOption_forKey(stapling(), "OVKStapling"), 2U);
}

TEST_F(Choices, NeitherMarkNorDefaultIsTheAllOnesWordAndEmptiesTheSelection) {
  ppd = openPPD(fullPrinter());
  cupsArrayClear(ppd->marked);
  std::strcpy(stapling()->defchoice, "Nonesuch");
  create(std::move(ppd));
  EXPECT_EQ(panel->indexOfMarkedOption_forKey(stapling(), "OVKStapling"), ~std::size_t{0});
  OrvekFinishingAccess::staplingSelection(*panel) =
      OrvekFinishingAccess::staplingChoices(*panel)->front().get();
  panel->updateMarkedSelections();
  EXPECT_TRUE(selection("stapling").isNull());
}

TEST_F(Choices, AnAbsentOptionsSelectionStaysAsItWas) {
  create(openPPD(fullPrinter()));
  const PDEChoice *before = OrvekFinishingAccess::foldingChoices(*panel)->at(1).get();
  OrvekFinishingAccess::foldingSelection(*panel) = before;
  OrvekFinishingAccess::foldingOption(*panel) = nullptr;
  panel->updateMarkedSelections();
  EXPECT_EQ(OrvekFinishingAccess::foldingSelection(*panel), before);
}

TEST_F(Choices, OffsetAndPaperSizeAreNotTakenFromTheMarks) {
  open(fullPrinter().option(jogOption(QStringLiteral("True"))));
  show();
  EXPECT_TRUE(selection("offsetCollatedSet").isNull());
  EXPECT_TRUE(selection("paperSize").isNull());
}

TEST_F(Choices, APickIsAnnouncedExactlyOncePerCall) {
  open(fullPrinter());
  show();
  selectItemAtIndex(popUp("punchPopup"), 2);
  const PDEChoice *record = panel->selectionForPopUp_withKey(popUp("punchPopup"), "OVKPunching");
  EXPECT_EQ(ppdTitle(record), QStringLiteral("3Hole"));
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKPunching=3Hole"));
  panel->selectionForPopUp_withKey(popUp("punchPopup"), "OVKPunching");
  EXPECT_EQ(host->announced.size(), 2);
}

TEST_F(Choices, WithoutConstraintHandlingAPickIsOnlyRemembered) {
  open(fullPrinter());
  show();
  OrvekFinishingAccess::useConstraintHandling(*panel) = false;
  pick("punchPopup", 2);
  EXPECT_TRUE(host->announced.isEmpty());
  EXPECT_EQ(selection("punch"), QStringLiteral("3Hole"));
}

TEST_F(Choices, APopUpWithoutSelectionAnnouncesAnEmptyChoiceAndKeepsTheOldSelection) {
  open(fullPrinter());
  show();
  pick("punchPopup", 2);
  host->announced.clear();
  pick("punchPopup", noItem);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKPunching=-"));
  EXPECT_EQ(selection("punch"), QStringLiteral("3Hole"));
}

TEST_F(Choices, AmongEqualUserTitlesTheDefaultSelectsTheFirst) {
  OptionText twins = staplingOption(QStringLiteral("Rear"));
  twins.choices[1].text = twins.choices[2].text = QStringLiteral("Corner");
  open(fullPrinter().option(twins));
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 1);
}

TEST_F(Choices, ADefaultThatMatchesNoRecordLeavesThePopUp) {
  open(fullPrinter());
  selectItemAtIndex(popUp("staplingPopup"), 3);
  setDefault(QStringLiteral("front"), *OrvekFinishingAccess::staplingChoices(*panel),
             popUp("staplingPopup"));
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 3);
}

}  // namespace
