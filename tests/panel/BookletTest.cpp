// SPDX-License-Identifier: Apache-2.0
// The booklet section under a user's hands.

#include <QTest>

#include "platform/plugin/BookletKeys.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Booklet : public PanelFixture {
 protected:
  QStringList paperSizes() const {
    QStringList titles;
    for (int i = 0; i < numberOfItems(popUp("paperSizePopup")); ++i) {
      titles << itemTitle(popUp("paperSizePopup"), i);
    }
    return titles;
  }
  QString fitCurrentJob() const {
    return bundle->localizedString(QStringLiteral("_PDE_Finishing_Fit_Current_Job"));
  }
};

TEST_F(Booklet, FiveSizesGiveTheCurrentJobAndTheFirstFour) {
  open(fullPrinter());
  EXPECT_EQ(paperSizes(), (QStringList{fitCurrentJob(), QStringLiteral("A3"), QStringLiteral("A4"),
                                       QStringLiteral("A5"), QStringLiteral("Letter")}));
}

TEST_F(Booklet, OneSizeGivesOnlyTheCurrentJob) {
  OptionText one = pageSizeOption();
  one.choices = {one.choices[1]};
  open(fullPrinter().option(one));
  EXPECT_EQ(paperSizes(), QStringList{fitCurrentJob()});
}

TEST_F(Booklet, PaperItemsCarryNoRecordButTheirKeyword) {
  OptionText sizes = pageSizeOption();
  sizes.choices[3].text = QStringLiteral("US Letter");
  open(fullPrinter().option(sizes));
  EXPECT_EQ(representedObject(popUp("paperSizePopup"), 1), nullptr);
  EXPECT_TRUE(itemIdentifier(popUp("paperSizePopup"), 0).isNull());
  EXPECT_EQ(itemIdentifier(popUp("paperSizePopup"), 1), QStringLiteral("A3"));
  EXPECT_EQ(itemIdentifier(popUp("paperSizePopup"), 4), QStringLiteral("Letter"));
  EXPECT_EQ(itemTitle(popUp("paperSizePopup"), 4), QStringLiteral("US Letter"));
}

TEST_F(Booklet, WithoutPageSizeMenuAndLabelAreHidden) {
  open(fullPrinter().without(QStringLiteral("PageSize")));
  EXPECT_TRUE(isHidden(popUp("paperSizePopup")));
  EXPECT_TRUE(isHidden(label("paperSizeLbl")));
}

TEST_F(Booklet, TheThirdSizeIsWrittenAsItsIndex) {
  open(fullPrinter());
  show();
  pick("paperSizePopup", 2);
  EXPECT_EQ(ticketText("OVKTargetPaperSize"), QStringLiteral("2"));
  pick("paperSizePopup", noItem);
  EXPECT_EQ(ticketText("OVKTargetPaperSize"), QStringLiteral("-1"));
}

TEST_F(Booklet, ToggledOnTheSectionOpensAndTheHostIsTold) {
  open(fullPrinter());
  show();
  const int before = std::static_pointer_cast<ResizingHost>(host)->resized;
  click("bookletChckBox", stateOn);
  EXPECT_FALSE(isHidden(view("bookletView")));
  EXPECT_EQ(frameSize(view("pdeView")), OrvekFinishingAccess::advancedSize(*panel));
  EXPECT_EQ(std::static_pointer_cast<ResizingHost>(host)->resized, before + 1);
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("True"));
}

TEST_F(Booklet, ToggledOffTheViewKeeps120PointsMoreThanTheBasicHeight) {
  open(fullPrinter());
  show();
  click("bookletChckBox", stateOn);
  click("bookletChckBox", stateOff);
  const QSizeF basic = OrvekFinishingAccess::basicSize(*panel);
  EXPECT_EQ(frameSize(view("pdeView")), QSizeF(basic.width(), basic.height() + 120));
  EXPECT_TRUE(isHidden(view("bookletView")));
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("False"));
  // The basic view stays at the top of the larger view.
  EXPECT_EQ(frame(view("basicView")).y(), 120);
}

TEST_F(Booklet, AMixedBoxChangesNoSizeButTellsTheHostAndWritesTrue) {
  open(fullPrinter());
  show();
  const QSizeF size = frameSize(view("pdeView"));
  const int before = std::static_pointer_cast<ResizingHost>(host)->resized;
  click("bookletChckBox", stateMixed);
  EXPECT_EQ(frameSize(view("pdeView")), size);
  EXPECT_EQ(std::static_pointer_cast<ResizingHost>(host)->resized, before + 1);
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("True"));
}

TEST_F(Booklet, TheTicketFollowsTheBoxWhoeverSendsItsAction) {
  open(fullPrinter());
  show();
  setState(box("bookletChckBox"), stateOn);
  setState(box("rToLChckBox"), stateOff);
  panel->enableBookletChange(box("rToLChckBox"));
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("True"));
  // The size follows the sender all the same.
  EXPECT_TRUE(isHidden(view("bookletView")));
}

TEST_F(Booklet, OnAFixedHostTheBoxChangesOnlyTheTicket) {
  open(fullPrinter(), HostKind::Fixed);
  const QSizeF size = frameSize(view("pdeView"));
  click("bookletChckBox", stateOff);
  EXPECT_EQ(frameSize(view("pdeView")), size);
  EXPECT_FALSE(isHidden(view("bookletView")));
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("False"));
}

TEST_F(Booklet, TheBoxesWriteTheirKeysAtOnce) {
  open(fullPrinter());
  show();
  click("rToLChckBox", stateOn);
  click("pageBroderChckBox", stateOn);
  EXPECT_EQ(ticketText("OVKRightToLeft"), QStringLiteral("True"));
  EXPECT_EQ(ticketText("OVKPrintPageBorders"), QStringLiteral("True"));
}

TEST_F(Booklet, TheSlidersWriteFieldAndTicket) {
  open(fullPrinter());
  show();
  slider("gutterSlider")->setValue(36);  // as a drag does it
  slider("creepSlider")->setValue(-3);
  EXPECT_EQ(stringValue(field("gutterTxtBox")), QStringLiteral("36"));
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("36"));
  EXPECT_EQ(stringValue(field("creepTxtBox")), QStringLiteral("-3"));
  EXPECT_EQ(ticketText("OVKCreep"), QStringLiteral("-3"));
}

TEST_F(Booklet, TypedDigitsMoveTheSliderAndRubbishIsReplaced) {
  open(fullPrinter());
  show();
  setStringValue(field("gutterTxtBox"), QStringLiteral("12abc"));
  notifyTextDidChange(field("gutterTxtBox"));
  EXPECT_EQ(intValue(slider("gutterSlider")), 12);
  EXPECT_EQ(stringValue(field("gutterTxtBox")), QStringLiteral("12"));
  setStringValue(field("gutterTxtBox"), QStringLiteral("abc"));
  notifyTextDidChange(field("gutterTxtBox"));
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("0"));
  EXPECT_EQ(stringValue(field("gutterTxtBox")), QStringLiteral("0"));
}

TEST_F(Booklet, ALoneMinusAndAClearedFieldAreLetThrough) {
  open(fullPrinter());
  show();
  type("creepTxtBox", QStringLiteral("-"));
  EXPECT_EQ(stringValue(field("creepTxtBox")), QStringLiteral("-"));
  EXPECT_EQ(ticketText("OVKCreep"), QStringLiteral("0"));
  type("creepTxtBox", QString());
  EXPECT_EQ(stringValue(field("creepTxtBox")), QString());
  EXPECT_EQ(ticketText("OVKCreep"), QStringLiteral("0"));
}

TEST_F(Booklet, AClearedGutterIsLetThroughToo) {
  open(fullPrinter());
  show();
  type("gutterTxtBox", QString());
  EXPECT_EQ(stringValue(field("gutterTxtBox")), QString());
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("24"));
}

TEST_F(Booklet, TypingInOneFieldLeavesTheOtherAlone) {
  open(fullPrinter());
  show();
  setStringValue(field("gutterTxtBox"), QStringLiteral("77"));
  type("creepTxtBox", QStringLiteral("5"));
  EXPECT_EQ(intValue(slider("gutterSlider")), 24);
  setStringValue(field("creepTxtBox"), QStringLiteral("9"));
  type("gutterTxtBox", QStringLiteral("30"));
  EXPECT_EQ(intValue(slider("creepSlider")), 5);
}

TEST_F(Booklet, ANegativeNumberCanBeTypedKeyByKey) {
  open(fullPrinter());
  show();
  type("creepTxtBox", QStringLiteral("-12"));
  EXPECT_EQ(ticketText("OVKCreep"), QStringLiteral("-12"));
  EXPECT_EQ(stringValue(field("creepTxtBox")), QStringLiteral("-12"));
}

TEST_F(Booklet, ANumberAboveTheRangeSnapsToTheMaximum) {
  open(fullPrinter());
  show();
  type("gutterTxtBox", QStringLiteral("9999"));
  const QString most = QString::number(slider("gutterSlider")->maximum());
  EXPECT_EQ(stringValue(field("gutterTxtBox")), most);
  EXPECT_EQ(ticketText("OVKGutter"), most);
}

TEST_F(Booklet, TheSlidersReachAsFarAsTheContractSays) {
  open(fullPrinter());
  EXPECT_EQ(slider("gutterSlider")->minimum(), gutterRange.least);
  EXPECT_EQ(slider("gutterSlider")->maximum(), gutterRange.most);
  EXPECT_EQ(intValue(slider("gutterSlider")), gutterRange.absent);
  EXPECT_EQ(slider("creepSlider")->minimum(), creepRange.least);
  EXPECT_EQ(slider("creepSlider")->maximum(), creepRange.most);
  EXPECT_EQ(intValue(slider("creepSlider")), creepRange.absent);
  EXPECT_EQ(indexOfSelectedItem(popUp("paperSizePopup")), jobsOwnPaper);
}

TEST_F(Booklet, WithoutTicketTheControlsStillWork) {
  ticket = nullptr;
  open(fullPrinter());
  show();
  type("gutterTxtBox", QStringLiteral("50"));
  EXPECT_EQ(intValue(slider("gutterSlider")), 50);
  click("bookletChckBox", stateOn);
  EXPECT_FALSE(isHidden(view("bookletView")));
}

TEST_F(Booklet, ClicksAndKeysReachTheHandlers) {
  open(fullPrinter());
  show();
  panel->panelView()->show();
  QTest::mouseClick(box("bookletChckBox"), Qt::LeftButton, Qt::NoModifier,
                    QPoint(8, box("bookletChckBox")->height() / 2));
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("True"));
  QTest::keyClick(slider("gutterSlider"), Qt::Key_Right);
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("25"));
  QTest::keyClick(popUp("staplingPopup"), Qt::Key_Down);
  EXPECT_EQ(selection("stapling"), QStringLiteral("Front"));
}

// libcups converts every PPD to UTF-8 and says so, so other declared encodings are set by hand. The
// title under test is what the label gets before the bundle's own text for booklet printers.
class PaperLabel : public PanelFixture {
 protected:
  QString textFor(const char *encoding, const char *bytes) {
    PPDText text;
    text.option(pageSizeOption());
    PPDHandle handle = openPPD(text);
    ppd_option_t *option = ppdFindOption(handle.get(), "PageSize");
    qstrncpy(option->text, bytes, sizeof option->text);
    char *declared = handle->lang_encoding;
    handle->lang_encoding = const_cast<char *>(encoding);
    openHandle(std::move(handle));
    ppd->lang_encoding = declared;
    return displayedTitle(label("paperSizeLbl"));
  }
};

TEST_F(PaperLabel, DeclaredUTF8IsReadAsUTF8) {
  EXPECT_EQ(textFor("UTF-8", "Papiergröße"), QStringLiteral("Papiergröße:"));
}

TEST_F(PaperLabel, DeclaredShiftJISIsReadAsShiftJIS) {
  EXPECT_EQ(textFor("JIS83-RKSJ", "\x97\x70\x8E\x86"), QStringLiteral("用紙:"));
}

TEST_F(PaperLabel, AnythingElseIsReadAsLatin1) {
  EXPECT_EQ(textFor("ISOLatin1",
                    "Gr\xF6\xDF"
                    "e"),
            QStringLiteral("Größe:"));
  EXPECT_EQ(textFor("utf-8", "\xC3\xB6"), QStringLiteral("Ã¶:"));
  EXPECT_EQ(textFor(nullptr, "\xE9"), QStringLiteral("é:"));
}

TEST_F(PaperLabel, BytesThatDoNotDecodeGiveTheKeyword) {
  EXPECT_EQ(textFor("UTF-8", "\xE9"), QStringLiteral("PageSize:"));
  EXPECT_EQ(textFor("JIS83-RKSJ", "\x97"), QStringLiteral("PageSize:"));
}

}  // namespace
