// SPDX-License-Identifier: Apache-2.0
// Menus filled, rows hidden, gaps closed: on every mixture of options and equipment.

#include "panel/OptionTitle.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

const QStringList falseTrue{QStringLiteral("False"), QStringLiteral("True")};

OptionText finisher(const char *marked, const QStringList &choices = falseTrue) {
  return installed(QStringLiteral("OVKOptionFinisher"), QLatin1String(marked), choices);
}

OptionText offsetBin(const char *marked, const QStringList &choices = falseTrue) {
  return installed(QStringLiteral("OVKOptionOffsetBin"), QLatin1String(marked), choices);
}

class Construction : public PanelFixture {
 protected:
  // A control's distance from the upper edge of the basic view, which is pinned there.
  qreal fromTop(const char *name) {
    const QRectF own = frame(view(name));
    return frame(view("basicView")).height() - own.y() - own.height();
  }
  // The same on the printer that hides no row.
  qreal fromTopWithAllRows(const char *name) {
    PanelFixtureOpener full;
    return full.fromTop(name);
  }

  struct PanelFixtureOpener : PanelFixture {
    PanelFixtureOpener() { open(fullPrinter()); }
    void TestBody() override {}
    qreal fromTop(const char *name) {
      const QRectF own = frame(view(name));
      return frame(view("basicView")).height() - own.y() - own.height();
    }
    qreal height() { return frame(view("basicView")).height(); }
  };
};

TEST_F(Construction, WithoutFinisherAndOffsetBinFourRowsGoAndTheRestMovesUp120Points) {
  open(fullPrinter().option(finisher("False")).without(QStringLiteral("OVKOptionOffsetBin")));
  for (const char *name :
       {"staplingLbl", "staplingPopup", "imageWindow", "foldingLbl", "foldingPopup", "punchLbl",
        "punchPopup", "paperDestLbl", "paperDestPopup"}) {
    EXPECT_TRUE(isHidden(view(name))) << name;
  }
  EXPECT_FALSE(isHidden(box("offsetChckBox")));
  EXPECT_EQ(fromTop("offsetChckBox"), fromTopWithAllRows("offsetChckBox") - 120);
  EXPECT_EQ(fromTop("bookletChckBox"), fromTopWithAllRows("bookletChckBox") - 120);
  EXPECT_EQ(frame(view("basicView")).height(), PanelFixtureOpener().height() - 120);
}

TEST_F(Construction, AThirdFinisherKeywordShowsRowsWithEmptyMenus) {
  open(fullPrinter()
           .option(finisher("Maybe", {QStringLiteral("False"), QStringLiteral("Maybe")}))
           .without(QStringLiteral("OVKOptionOffsetBin")));
  EXPECT_FALSE(isHidden(popUp("staplingPopup")));
  EXPECT_EQ(numberOfItems(popUp("staplingPopup")), 0);
  EXPECT_EQ(numberOfItems(popUp("paperDestPopup")), 0);
  EXPECT_FALSE(isHidden(popUp("paperDestPopup")));
}

TEST_F(Construction, TheOffsetBinAloneShowsTheOutputRowMovedUp90Points) {
  for (const char *keyword : {"True", "TRUE", "true"}) {
    open(fullPrinter()
             .without(QStringLiteral("OVKOptionFinisher"))
             .option(offsetBin(keyword, {QStringLiteral("False"), QLatin1String(keyword)})));
    EXPECT_TRUE(isHidden(popUp("staplingPopup")));
    EXPECT_TRUE(isHidden(popUp("foldingPopup")));
    EXPECT_TRUE(isHidden(popUp("punchPopup")));
    EXPECT_FALSE(isHidden(popUp("paperDestPopup")));
    EXPECT_EQ(numberOfItems(popUp("paperDestPopup")), 3);
    EXPECT_EQ(fromTop("paperDestPopup"), fromTopWithAllRows("paperDestPopup") - 90);
    EXPECT_EQ(fromTop("paperDestLbl"), fromTopWithAllRows("paperDestLbl") - 90);
  }
}

TEST_F(Construction, EquipmentIsMissingHoweverFalseIsSpelled) {
  for (const char *keyword : {"FALSE", "False", "false"}) {
    const QStringList choices{QLatin1String(keyword), QStringLiteral("True")};
    open(fullPrinter().option(finisher(keyword, choices)).option(offsetBin(keyword, choices)));
    EXPECT_TRUE(isHidden(popUp("staplingPopup"))) << keyword;
    EXPECT_TRUE(isHidden(popUp("paperDestPopup"))) << keyword;
  }
}

TEST_F(Construction, EquipmentIsThereHoweverTrueIsSpelled) {
  for (const char *keyword : {"TRUE", "True", "true"}) {
    open(fullPrinter()
             .option(finisher(keyword, {QStringLiteral("False"), QLatin1String(keyword)}))
             .without(QStringLiteral("OVKOptionOffsetBin")));
    EXPECT_EQ(numberOfItems(popUp("staplingPopup")), 7) << keyword;
    EXPECT_EQ(numberOfItems(popUp("paperDestPopup")), 3) << keyword;
  }
}

TEST_F(Construction, AThirdOffsetBinKeywordShowsTheOutputRowWithAnEmptyMenu) {
  open(fullPrinter()
           .without(QStringLiteral("OVKOptionFinisher"))
           .option(offsetBin("Maybe", {QStringLiteral("False"), QStringLiteral("Maybe")})));
  EXPECT_TRUE(isHidden(popUp("staplingPopup")));
  EXPECT_FALSE(isHidden(popUp("paperDestPopup")));
  EXPECT_EQ(numberOfItems(popUp("paperDestPopup")), 0);
}

TEST_F(Construction, WithoutBookletAttributeItsRowStaysAsEmptyRoom) {
  PPDText text;
  text.option(staplingOption()).option(foldingOption()).option(punchOption());
  text.option(outputBinOption()).option(jogOption()).option(finisher("True"));
  open(text);
  EXPECT_TRUE(isHidden(box("bookletChckBox")));
  EXPECT_EQ(frame(view("basicView")).height(), PanelFixtureOpener().height());
  EXPECT_TRUE(ticket->values().isEmpty());
}

TEST_F(Construction, TheBookletAttributeCountsOnlyInItsExactSpelling) {
  PPDText text;
  text.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("true"));
  open(text);
  EXPECT_FALSE(OrvekFinishingAccess::hasBooklet(*panel));
  EXPECT_TRUE(isHidden(box("bookletChckBox")));
}

TEST_F(Construction, AnEmptyTicketGivesTheBookletDefaults) {
  open(fullPrinter());
  EXPECT_EQ(state(box("bookletChckBox")), stateOff);
  EXPECT_EQ(state(box("rToLChckBox")), stateOff);
  EXPECT_EQ(state(box("pageBroderChckBox")), stateOff);
  EXPECT_EQ(intValue(slider("gutterSlider")), 24);
  EXPECT_EQ(stringValue(field("gutterTxtBox")), QStringLiteral("24"));
  EXPECT_EQ(intValue(slider("creepSlider")), 0);
  EXPECT_EQ(stringValue(field("creepTxtBox")), QStringLiteral("0"));
  EXPECT_EQ(indexOfSelectedItem(popUp("paperSizePopup")), 0);
}

TEST_F(Construction, ATicketThatSaysNoTurnsTheBookletOn) {
  ticket->setValue(QStringLiteral("OVKEnableBooklet"), QStringLiteral("no"));
  open(fullPrinter());
  EXPECT_EQ(state(box("bookletChckBox")), stateOn);
}

TEST_F(Construction, EveryMenuHasOneItemPerChoiceInThePPDsOrder) {
  open(fullPrinter());
  const auto *list = OrvekFinishingAccess::staplingChoices(*panel).get();
  QComboBox *menu = popUp("staplingPopup");
  ASSERT_EQ(numberOfItems(menu), int(list->size()));
  for (int i = 0; i < numberOfItems(menu); ++i) {
    EXPECT_EQ(representedObject(menu, i), list->at(std::size_t(i)).get());
    EXPECT_EQ(itemTitle(menu, i), list->at(std::size_t(i))->userTitle());
  }
  EXPECT_FALSE(autoenablesItems(menu));
  EXPECT_TRUE(autoenablesItems(popUp("paperSizePopup")));
}

TEST_F(Construction, FilledAgainTheMenusHoldTheSame) {
  open(fullPrinter());
  EXPECT_TRUE(OrvekFinishingAccess::initialized(*panel));
  panel->initializeUI();
  EXPECT_EQ(numberOfItems(popUp("staplingPopup")), 7);
  EXPECT_EQ(numberOfItems(popUp("paperSizePopup")), 5);
}

TEST_F(Construction, AnAbsentOptionGivesNoTitleAndLeavesALabel) {
  open(fullPrinter());
  EXPECT_TRUE(CreateOptionTitle(nullptr).isNull());
  OrvekFinishing::setLocalizedStringForLabel_fromPPDOption(label("punchLbl"), nullptr);
  EXPECT_EQ(displayedTitle(label("punchLbl")), QStringLiteral("Hole punch:"));
}

TEST_F(Construction, LabelsCarryTheOptionsTextAndAColon) {
  open(fullPrinter());
  EXPECT_EQ(displayedTitle(label("staplingLbl")), QStringLiteral("Stapling:"));
  EXPECT_EQ(displayedTitle(label("paperDestLbl")), QStringLiteral("Output bin:"));
  EXPECT_EQ(displayedTitle(box("offsetChckBox")), QStringLiteral("Offset sets"));
}

TEST_F(Construction, AnAmpersandInAnOptionsTextIsAMnemonic) {
  OptionText stapling = staplingOption();
  stapling.text = QStringLiteral("&Staple && bind");
  OptionText jog = jogOption();
  jog.text = QStringLiteral("O&ffset");
  open(fullPrinter().option(stapling).option(jog));
  EXPECT_EQ(displayedTitle(label("staplingLbl")), QStringLiteral("Staple & bind:"));
  EXPECT_EQ(displayedTitle(box("offsetChckBox")), QStringLiteral("Offset"));
}

TEST_F(Construction, ATextThatDoesNotDecodeFallsBackToTheKeyword) {
  PPDHandle handle = openPPD(fullPrinter());
  std::strcpy(ppdFindOption(handle.get(), "OVKStapling")->text, "Reli\xE9");
  std::strcpy(ppdFindOption(handle.get(), "OVKJog")->text, "D\xE9");
  openHandle(std::move(handle));
  EXPECT_EQ(displayedTitle(label("staplingLbl")), QStringLiteral("OVKStapling:"));
  EXPECT_EQ(displayedTitle(box("offsetChckBox")), QStringLiteral("OVKJog"));
}

TEST_F(Construction, ThePPDsDefaultsAreSelected) {
  open(fullPrinter()
           .option(staplingOption(QStringLiteral("Dual")))
           .option(outputBinOption(QStringLiteral("Offset")))
           .option(jogOption(QStringLiteral("True"))));
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 3);
  EXPECT_EQ(indexOfSelectedItem(popUp("paperDestPopup")), 1);
  EXPECT_EQ(state(box("offsetChckBox")), stateOn);
}

TEST_F(Construction, TheOffsetBoxStartsOnOnlyWhereItsDefaultIsTrueToTheLetter) {
  for (const char *keyword : {"TRUE", "true", "Yes"}) {
    OptionText jog = jogOption(QLatin1String(keyword));
    jog.choices[1].keyword = QLatin1String(keyword);
    open(fullPrinter().option(jog));
    EXPECT_EQ(state(box("offsetChckBox")), stateOff) << keyword;
  }
}

TEST_F(Construction, ADefaultKeywordThatDoesNotDecodeLeavesTheMenu) {
  PPDHandle handle = openPPD(fullPrinter());
  std::strcpy(ppdFindOption(handle.get(), "OVKStapling")->defchoice, "Fron\xE9");
  openHandle(std::move(handle));
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 0);
}

TEST_F(Construction, AnotherMakersPPDFillsNothingYetIsArranged) {
  open(fullPrinter().manufacturer(QStringLiteral("orvek")));
  EXPECT_FALSE(OrvekFinishingAccess::initialized(*panel));
  EXPECT_TRUE(OrvekFinishingAccess::uiInitialized(*panel));
  EXPECT_TRUE(OrvekFinishingAccess::modelNumber(*panel).isNull());
  EXPECT_EQ(numberOfItems(popUp("staplingPopup")), 0);
  EXPECT_EQ(OrvekFinishingAccess::paperSizeChoices(*panel), nullptr);
  EXPECT_FALSE(isHidden(popUp("staplingPopup")));
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("24"));
  EXPECT_EQ(panel->initializeUI(), kPMInvalidPDEContext);
}

TEST_F(Construction, BookletTitlesComeFromTheBundle) {
  open(fullPrinter());
  EXPECT_EQ(displayedTitle(box("bookletChckBox")),
            bundle->localizedString(QStringLiteral("_PDE_Finishing_Enable_Booklet")));
  EXPECT_EQ(displayedTitle(view("bookletBox")),
            bundle->localizedString(QStringLiteral("_PDE_Finishing_Booklet_Box_Title")));
}

TEST_F(Construction, EveryVisibleRowEndsUpAtItsPlaceInThePitch) {
  // Each subset of the five options: rows that are there follow each other at 30 points.
  const QStringList keywords{QStringLiteral("OVKStapling"), QStringLiteral("OVKFolding"),
                             QStringLiteral("OVKPunching"), QStringLiteral("OutputBin"),
                             QStringLiteral("OVKJog")};
  const std::array rows{"staplingPopup", "foldingPopup", "punchPopup", "paperDestPopup",
                        "offsetChckBox"};
  PanelFixtureOpener full;
  const qreal firstRow = full.fromTop("bookletChckBox") - 150;
  for (unsigned subset = 0; subset < 32; ++subset) {
    PPDText text = fullPrinter();
    for (int i = 0; i < 5; ++i) {
      if ((subset >> i & 1U) == 0) text.without(keywords[i]);
    }
    open(text);
    int visible = 0;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const bool there = (subset >> i & 1U) != 0;
      EXPECT_EQ(isHidden(view(rows[i])), !there) << subset << rows[i];
      if (!there) continue;
      EXPECT_EQ(fromTop(rows[i]), full.fromTop(rows[i]) - 30 * (int(i) - visible)) << subset;
      ++visible;
    }
    EXPECT_EQ(fromTop("bookletChckBox"), firstRow + 30 * visible) << subset;
    EXPECT_EQ(frame(view("basicView")).height(), full.height() - 30 * (5 - visible)) << subset;
  }
}

}  // namespace
