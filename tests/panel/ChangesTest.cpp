// SPDX-License-Identifier: Apache-2.0
// What follows a pick.

#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Changes : public PanelFixture {
 protected:
  QList<bool> punchItems() const {
    QList<bool> enabled;
    for (int i = 0; i < numberOfItems(popUp("punchPopup")); ++i) {
      enabled << isItemEnabled(popUp("punchPopup"), i);
    }
    return enabled;
  }
  void openWithPunchUnit(const char *unit) {
    open(fullPrinter().option(
        installed(QStringLiteral("OVKOptionPunch"), QLatin1String(unit), {QLatin1String(unit)})));
  }
};

TEST_F(Changes, ARealStapleSetsFoldingToItsFirstAndAnnouncesBoth) {
  open(fullPrinter());
  show();
  selectItemAtIndex(popUp("foldingPopup"), 1);
  pick("staplingPopup", 2);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKStapling=Rear OVKFolding=None"));
  EXPECT_EQ(indexOfSelectedItem(popUp("foldingPopup")), 0);
  EXPECT_EQ(selection("folding"), QStringLiteral("None"));
  EXPECT_EQ(selection("stapling"), QStringLiteral("Rear"));
  EXPECT_FALSE(imageName(label("imageWindow")).isNull());
}

TEST_F(Changes, ARealFoldSetsStaplingToItsFirst) {
  open(fullPrinter());
  show();
  pick("staplingPopup", 2);
  host->announced.clear();
  pick("foldingPopup", 2);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKFolding=Saddle OVKStapling=None"));
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 0);
}

TEST_F(Changes, TheFirstStapleLeavesFoldingAlone) {
  open(fullPrinter());
  show();
  pick("foldingPopup", 1);
  host->announced.clear();
  pick("staplingPopup", 0);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKStapling=None"));
  EXPECT_EQ(indexOfSelectedItem(popUp("foldingPopup")), 1);
}

TEST_F(Changes, WithoutFoldingAStapleIsAnnouncedAlone) {
  open(fullPrinter().without(QStringLiteral("OVKFolding")));
  show();
  const QString before = imageName(label("imageWindow"));
  pick("staplingPopup", 2);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKStapling=Rear"));
  EXPECT_NE(imageName(label("imageWindow")), before);
}

TEST_F(Changes, WithoutStaplingAFoldIsAnnouncedAlone) {
  open(fullPrinter().without(QStringLiteral("OVKStapling")));
  show();
  pick("foldingPopup", 2);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKFolding=Saddle"));
  EXPECT_EQ(selection("folding"), QStringLiteral("Saddle"));
  EXPECT_TRUE(selection("stapling").isNull());
}

TEST_F(Changes, AStaplingMenuWithoutSelectionDoesNotResetFolding) {
  open(fullPrinter());
  show();
  pick("foldingPopup", 1);
  host->announced.clear();
  pick("staplingPopup", noItem);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKStapling=-"));
  EXPECT_EQ(indexOfSelectedItem(popUp("foldingPopup")), 1);
}

TEST_F(Changes, PunchAndOutputAnnounceThemselvesOnly) {
  open(fullPrinter());
  show();
  pick("punchPopup", 2);
  pick("paperDestPopup", 1);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKPunching=3Hole OutputBin=Offset"));
  EXPECT_EQ(selection("punch"), QStringLiteral("3Hole"));
  EXPECT_EQ(selection("paperDest"), QStringLiteral("Offset"));
}

TEST_F(Changes, TheOffsetBoxAnnouncesTheSecondChoiceForOnAndTheFirstForOff) {
  open(fullPrinter());
  show();
  click("offsetChckBox", stateOn);
  EXPECT_EQ(selection("offsetCollatedSet"), QStringLiteral("True"));
  click("offsetChckBox", stateOff);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKJog=True OVKJog=False"));
}

TEST_F(Changes, AMixedOffsetBoxCountsAsOff) {
  open(fullPrinter());
  show();
  click("offsetChckBox", stateMixed);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKJog=False"));
}

TEST_F(Changes, TheOffsetBoxIsAnnouncedEvenWithoutConstraintHandling) {
  open(fullPrinter());
  show();
  OrvekFinishingAccess::useConstraintHandling(*panel) = false;
  click("offsetChckBox", stateOn);
  EXPECT_EQ(asText(host->announced), QStringLiteral("OVKJog=True"));
}

TEST_F(Changes, AnOffsetOptionWithoutThatChoiceAnnouncesNothing) {
  OptionText jog = jogOption();
  jog.choices.removeLast();
  open(fullPrinter().option(jog));
  show();
  click("offsetChckBox", stateOff);
  host->announced.clear();
  click("offsetChckBox", stateOn);
  EXPECT_TRUE(host->announced.isEmpty());
  EXPECT_EQ(selection("offsetCollatedSet"), QStringLiteral("False"));
}

TEST_F(Changes, NoPickWritesTheTicket) {
  open(fullPrinter());
  show();
  const auto before = ticket->values();
  pick("staplingPopup", 2);
  pick("foldingPopup", 1);
  pick("punchPopup", 2);
  pick("paperDestPopup", 1);
  click("offsetChckBox", stateOn);
  EXPECT_EQ(ticket->values(), before);
}

TEST_F(Changes, WithoutPunchUnitOnlyNoPunchingStays) {
  for (const char *none : {"None", "none", "NONE"}) {
    openWithPunchUnit(none);
    EXPECT_EQ(punchItems(), (QList<bool>{true, false, false, false})) << none;
  }
}

TEST_F(Changes, AUSUnitMakesTheThirdItemAndAMetricOneTheOthers) {
  openWithPunchUnit("US_Punch");
  EXPECT_EQ(punchItems(), (QList<bool>{true, false, true, false}));
  openWithPunchUnit("metric_punch");
  EXPECT_EQ(punchItems(), (QList<bool>{true, true, false, true}));
}

TEST_F(Changes, AnUnknownUnitAllowsEverything) {
  openWithPunchUnit("Laser");
  EXPECT_EQ(punchItems(), (QList<bool>{true, true, true, true}));
}

TEST_F(Changes, WithoutMarkedUnitNoItemIsTouched) {
  open(fullPrinter().without(QStringLiteral("OVKOptionPunch")));
  EXPECT_EQ(punchItems(), (QList<bool>{true, true, true, true}));
  EXPECT_FALSE(autoenablesItems(popUp("punchPopup")));
}

TEST_F(Changes, EachCheckOfThePunchMenuStartsAfresh) {
  open(fullPrinter());
  setAutoenablesItems(popUp("punchPopup"), true);
  setItemEnabled(popUp("punchPopup"), 0, false);
  setItemEnabled(popUp("punchPopup"), 2, false);
  panel->validateHolePunchMenuItems();
  EXPECT_EQ(punchItems(), (QList<bool>{true, false, true, false}));
  EXPECT_FALSE(autoenablesItems(popUp("punchPopup")));
}

TEST_F(Changes, PunchPlacesBeyondTheMenuAreSkipped) {
  OptionText punch = punchOption();
  punch.choices.resize(2);
  open(fullPrinter().option(punch));
  EXPECT_EQ(punchItems(), (QList<bool>{true, false}));
}

TEST_F(Changes, ThePanelIsForTheMakersDriverWhetherOrNotItStaples) {
  PPDText bare;
  bare.without(QStringLiteral("OVKImageSmoothing"))
      .option(installed(QStringLiteral("OVKHasOVRaster"), QStringLiteral("True"),
                        {QStringLiteral("True")}));
  open(bare);
  EXPECT_EQ(panel->checkFinishingPDEContext(), noErr);
  EXPECT_EQ(panel->checkPDEContextCUPSForStaplingBooklet(), kPMInvalidPDEContext);
}

TEST_F(Changes, RefusesAPPDWithoutTheDriversOptions) {
  open(fullPrinter().without(QStringLiteral("OVKImageSmoothing")));
  EXPECT_EQ(panel->checkFinishingPDEContext(), kPMInvalidPDEContext);
}

TEST_F(Changes, RefusesAManufacturerInOtherLettersOrNone) {
  open(fullPrinter().manufacturer(QStringLiteral("orvek")));
  EXPECT_EQ(panel->checkFinishingPDEContext(), kPMInvalidPDEContext);
  open(fullPrinter().manufacturer({}));
  EXPECT_EQ(panel->checkFinishingPDEContext(), kPMInvalidPDEContext);
}

TEST_F(Changes, AStaplingAttributeOrABookletMakerSatisfiesTheSecondCheck) {
  PPDText text;
  text.attribute(QStringLiteral("OVKStapling"), QStringLiteral("Yes"));
  open(text);
  EXPECT_EQ(panel->checkPDEContextCUPSForStaplingBooklet(), noErr);
  PPDText booklet;
  booklet.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("True"));
  open(booklet);
  EXPECT_EQ(panel->checkPDEContextCUPSForStaplingBooklet(), noErr);
}

}  // namespace
