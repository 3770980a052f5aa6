// SPDX-License-Identifier: Apache-2.0
// The lines the panel gives to the dialog's summary.

#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Summary : public PanelFixture {
 protected:
  QString line(const char *title) { return panel->summaryInfo().value(QString::fromUtf8(title)); }
  QString text(const char *key) { return bundle->localizedString(QLatin1String(key)); }
};

PPDText bookletOnly() {
  PPDText text;
  text.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("True"));
  return text;
}

TEST_F(Summary, IsEmptyWithoutFinishingAndBooklet) {
  open(PPDText());
  show();
  EXPECT_TRUE(panel->summaryInfo().isEmpty());
}

TEST_F(Summary, SaysTheOffsetEvenWhereItIsAlone) {
  PPDText text;
  text.option(jogOption());
  open(text);
  show();
  EXPECT_EQ(panel->summaryInfo(),
            (QMap<QString, QString>{{QStringLiteral("Offset sets"), QStringLiteral("False")}}));
  click("offsetChckBox", stateOn);
  EXPECT_EQ(line("Offset sets"), QStringLiteral("True"));
}

TEST_F(Summary, AMixedOffsetBoxReadsFalse) {
  open(fullPrinter());
  show();
  click("offsetChckBox", stateMixed);
  EXPECT_EQ(line("Offset sets"), QStringLiteral("False"));
}

TEST_F(Summary, WithPageSizeHasFiveBookletLinesAndNoTargetPaper) {
  open(bookletOnly().option(pageSizeOption()));
  show();
  pick("paperSizePopup", 2);
  EXPECT_EQ(panel->summaryInfo().size(), 5);
  EXPECT_FALSE(panel->summaryInfo().contains(text("_PDE_Finishing_Target_Paper_Size")));
}

TEST_F(Summary, WithoutPageSizeTheSixthLineIsTheCurrentJobsPaper) {
  open(bookletOnly());
  show();
  EXPECT_EQ(panel->summaryInfo().size(), 6);
  EXPECT_EQ(panel->summaryInfo().value(text("_PDE_Finishing_Target_Paper_Size")),
            text("_PDE_Finishing_Fit_Current_Job"));
}

TEST_F(Summary, OfEqualTitlesTheLaterLineStays) {
  OptionText folding = foldingOption(QStringLiteral("Fold"));
  folding.text = QStringLiteral("Stapling");
  open(fullPrinter().option(folding));
  show();
  EXPECT_EQ(line("Stapling"), QStringLiteral("Half fold"));
}

TEST_F(Summary, AMissingTextShowsAsItsKey) {
  const BundleCopy copy;
  copy.write(QStringLiteral("en.lproj/Localizable.json"),
             "{\"_PDE_Finishing_Gutter\": \"Gutter\"}");
  bundle = copy.open();
  open(bookletOnly());
  show();
  EXPECT_EQ(line("_PDE_Finishing_Enable_Booklet"), QStringLiteral("_PDE_Off"));
  EXPECT_EQ(line("Gutter"), QStringLiteral("24"));
}

TEST_F(Summary, SaysTheSlidersGutterNotTheFields) {
  open(bookletOnly());
  show();
  type("gutterTxtBox", QStringLiteral("9999"));
  EXPECT_EQ(panel->summaryInfo().value(text("_PDE_Finishing_Gutter")),
            QString::number(slider("gutterSlider")->maximum()));
  setStringValue(field("gutterTxtBox"), QStringLiteral("7"));
  EXPECT_EQ(panel->summaryInfo().value(text("_PDE_Finishing_Gutter")),
            QString::number(slider("gutterSlider")->maximum()));
}

TEST_F(Summary, AMixedBoxReadsOffThoughTheTicketSaysTrue) {
  open(bookletOnly());
  show();
  click("rToLChckBox", stateMixed);
  EXPECT_EQ(panel->summaryInfo().value(text("_PDE_Finishing_Right_To_Left")), text("_PDE_Off"));
  EXPECT_EQ(ticketText("OVKRightToLeft"), QStringLiteral("True"));
}

TEST_F(Summary, ReportsRowsThatAreHiddenForWantOfAFinisher) {
  open(fullPrinter().option(installed(QStringLiteral("OVKOptionFinisher"), QStringLiteral("False"),
                                      {QStringLiteral("False"), QStringLiteral("True")})));
  show();
  ASSERT_TRUE(isHidden(popUp("staplingPopup")));
  EXPECT_EQ(line("Stapling"), QStringLiteral("Off"));
}

TEST_F(Summary, LeavesOutALineWithoutValue) {
  OptionText stapling = staplingOption();
  open(fullPrinter().option(stapling));
  show();
  OrvekFinishingAccess::staplingSelection(*panel) = nullptr;
  EXPECT_FALSE(panel->summaryInfo().contains(QStringLiteral("Stapling")));
}

TEST_F(Summary, LeavesOutALineWithoutReadableTitle) {
  open(fullPrinter());
  show();
  std::strcpy(ppdFindOption(ppd.get(), "OVKStapling")->text, "Reli\xE9");
  EXPECT_EQ(panel->summaryInfo().size(), 9);
}

}  // namespace
