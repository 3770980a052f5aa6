// SPDX-License-Identifier: Apache-2.0
// The booklet between ticket and controls, in both directions.

#include "platform/system/Log.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

constexpr const char *nUpKey = "com.apple.print.PrintSettings.PMLayoutNUp";

class TicketExchange : public PanelFixture {
 protected:
  void TearDown() override { setLogListener({}); }
  void put(const char *key, const QVariant &value) { ticket->setValue(QLatin1String(key), value); }
  QStringList bookletKeysInTicket() const {
    QStringList found;
    for (const char *key : {"OVKEnableBooklet", "OVKRightToLeft", "OVKPrintPageBorders",
                            "OVKGutter", "OVKCreep", "OVKTargetPaperSize"}) {
      if (ticket->value(QLatin1String(key)).isValid()) found << QLatin1String(key);
    }
    return found;
  }
};

PPDText printerWithoutBooklet() {
  PPDText text;
  text.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("False")).option(staplingOption());
  return text;
}

PPDText plainPrinterWithJog(const QString &marked) {
  PPDText text;
  text.option(jogOption(marked));
  return text;
}

TEST_F(TicketExchange, WithoutBookletMakerTouchesNoTicketYetSetsTheOffsetBox) {
  open(plainPrinterWithJog(QStringLiteral("False")));
  ppdMarkOption(ppd.get(), "OVKJog", "True");
  panel->syncToTicket();
  panel->reloadControlsWithPresets();
  EXPECT_TRUE(ticket->values().isEmpty());
  EXPECT_TRUE(isHidden(box("bookletChckBox")));
  EXPECT_EQ(state(box("offsetChckBox")), stateOn);
}

TEST_F(TicketExchange, ThePanelHidesTheBookletBoxAgainWhereThereIsNoBookletMaker) {
  open(printerWithoutBooklet());
  setHidden(box("bookletChckBox"), false);
  panel->willShow();
  EXPECT_TRUE(isHidden(box("bookletChckBox")));
}

TEST_F(TicketExchange, TheSixKeysAreWrittenInTheirOrder) {
  open(fullPrinter());
  QStringList written;
  ticket->setChangeListener([&](const QString &key) { written << key; });
  panel->syncToTicket();
  EXPECT_EQ(written.join(QLatin1Char(' ')),
            QStringLiteral("OVKTargetPaperSize OVKEnableBooklet OVKRightToLeft OVKPrintPageBorders "
                           "OVKGutter OVKCreep"));
}

TEST_F(TicketExchange, AnEmptyTicketGivesTheDefaultsAndReceivesThem) {
  open(fullPrinter());
  selectItemAtIndex(popUp("paperSizePopup"), 2);
  for (const char *name : {"bookletChckBox", "rToLChckBox", "pageBroderChckBox"}) {
    setState(box(name), stateOn);
  }
  for (const QString &key : ticket->values().keys()) ticket->setValue(key, {});
  panel->reloadControlsWithPresets();
  for (const char *name : {"bookletChckBox", "rToLChckBox", "pageBroderChckBox"}) {
    EXPECT_EQ(state(box(name)), stateOff) << name;
  }
  EXPECT_EQ(intValue(slider("gutterSlider")), 24);
  EXPECT_EQ(intValue(slider("creepSlider")), 0);
  EXPECT_EQ(indexOfSelectedItem(popUp("paperSizePopup")), 2);
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("False"));
  EXPECT_EQ(ticketText("OVKRightToLeft"), QStringLiteral("False"));
  EXPECT_EQ(ticketText("OVKPrintPageBorders"), QStringLiteral("False"));
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("24"));
  EXPECT_EQ(ticketText("OVKCreep"), QStringLiteral("0"));
  EXPECT_EQ(ticketText("OVKTargetPaperSize"), QStringLiteral("2"));
}

TEST_F(TicketExchange, OnlyFalseSpelledExactlyTurnsABoxOff) {
  for (const char *on : {"false", "no", "0", "True", "FALSE", "", " False"}) {
    put("OVKEnableBooklet", QString::fromLatin1(on));
    put("OVKRightToLeft", QString::fromLatin1(on));
    put("OVKPrintPageBorders", QString::fromLatin1(on));
    open(fullPrinter());
    EXPECT_EQ(state(box("bookletChckBox")), stateOn) << on;
    show();
    EXPECT_EQ(state(box("bookletChckBox")), stateOn) << on;
    EXPECT_EQ(state(box("rToLChckBox")), stateOn) << on;
    EXPECT_EQ(state(box("pageBroderChckBox")), stateOn) << on;
  }
  put("OVKEnableBooklet", QStringLiteral("False"));
  open(fullPrinter());
  show();
  EXPECT_EQ(state(box("bookletChckBox")), stateOff);
}

TEST_F(TicketExchange, AnIntegerUnderAFlagKeyReadsAsItsText) {
  put("OVKRightToLeft", 0);
  open(fullPrinter());
  show();
  EXPECT_EQ(state(box("rToLChckBox")), stateOn);
}

TEST_F(TicketExchange, AGutterBeyondTheSliderShowsAndIsWrittenBackClamped) {
  put("OVKGutter", QStringLiteral("99999999999"));
  put("OVKCreep", QStringLiteral("-99999999999"));
  open(fullPrinter());
  show();
  const QString most = QString::number(slider("gutterSlider")->maximum());
  const QString least = QString::number(slider("creepSlider")->minimum());
  EXPECT_EQ(stringValue(field("gutterTxtBox")), most);
  EXPECT_EQ(ticketText("OVKGutter"), most);
  EXPECT_EQ(stringValue(field("creepTxtBox")), least);
  EXPECT_EQ(ticketText("OVKCreep"), least);
}

TEST_F(TicketExchange, ANumberReadsByItsLeadingInteger) {
  put("OVKGutter", QStringLiteral("  +17points"));
  put("OVKCreep", QStringLiteral("wide"));
  open(fullPrinter());
  show();
  EXPECT_EQ(intValue(slider("gutterSlider")), 17);
  EXPECT_EQ(intValue(slider("creepSlider")), 0);
}

TEST_F(TicketExchange, SeveralPagesPerSheetSwitchBookletOffAndLockIt) {
  put("OVKEnableBooklet", QStringLiteral("True"));
  put(nUpKey, 4);
  open(fullPrinter());
  show();
  EXPECT_EQ(state(box("bookletChckBox")), stateOff);
  EXPECT_FALSE(isEnabled(box("bookletChckBox")));
  EXPECT_EQ(ticketText("OVKEnableBooklet"), QStringLiteral("False"));
  EXPECT_TRUE(isHidden(view("bookletView")));
}

TEST_F(TicketExchange, OnePagePerSheetUnlocksBookletAgain) {
  put(nUpKey, QStringLiteral("2"));
  open(fullPrinter());
  show();
  EXPECT_FALSE(isEnabled(box("bookletChckBox")));
  put(nUpKey, 0);
  panel->willShow();
  EXPECT_TRUE(isEnabled(box("bookletChckBox")));
}

TEST_F(TicketExchange, OnAFixedHostTheBoxStaysLockedWithoutNUp) {
  open(fullPrinter(), HostKind::Fixed);
  panel->willShow();
  EXPECT_FALSE(isEnabled(box("bookletChckBox")));
  setEnabled(box("bookletChckBox"), true);
  panel->willShow();
  EXPECT_TRUE(isEnabled(box("bookletChckBox")));
}

TEST_F(TicketExchange, TheOffsetBoxFollowsItsMarkInAnyCase) {
  for (const char *keyword : {"FALSE", "False", "fAlSe"}) {
    OptionText jog = jogOption(QLatin1String(keyword));
    jog.choices[0].keyword = QLatin1String(keyword);
    open(fullPrinter().option(jog));
    setState(box("offsetChckBox"), stateOn);
    panel->willShow();
    EXPECT_EQ(state(box("offsetChckBox")), stateOff) << keyword;
  }
  OptionText jog = jogOption(QStringLiteral("Sideways"));
  jog.choices[1].keyword = QStringLiteral("Sideways");
  open(fullPrinter().option(jog));
  panel->willShow();
  EXPECT_EQ(state(box("offsetChckBox")), stateOn);
}

TEST_F(TicketExchange, WithoutMarkTheOffsetBoxStays) {
  open(fullPrinter());
  setState(box("offsetChckBox"), stateOn);
  cupsArrayClear(ppd->marked);
  panel->willShow();
  EXPECT_EQ(state(box("offsetChckBox")), stateOn);
}

TEST_F(TicketExchange, AMixedBoxIsWrittenAsTrue) {
  open(fullPrinter());
  show();
  setState(box("pageBroderChckBox"), stateMixed);
  panel->syncToTicket();
  EXPECT_EQ(ticketText("OVKPrintPageBorders"), QStringLiteral("True"));
}

TEST_F(TicketExchange, WithoutTicketNothingIsWrittenAndTheSectionStillFollowsItsBox) {
  ticket = nullptr;
  open(fullPrinter());
  setState(box("bookletChckBox"), stateOn);
  ppdMarkOption(ppd.get(), "OVKJog", "True");
  panel->reloadControlsWithPresets();
  EXPECT_EQ(state(box("offsetChckBox")), stateOn);
  EXPECT_FALSE(isHidden(view("bookletView")));
}

TEST_F(TicketExchange, AnUnreadablePaperSizeIsLoggedAndNothingElseIs) {
  for (const char *key : {"OVKEnableBooklet", "OVKGutter", "OVKCreep"}) {
    put(key, QVariantList{1, 2});
  }
  open(fullPrinter());
  QStringList lines;
  setLogListener([&](const QString &line) { lines << line; });
  panel->reloadControlsWithPresets();
  EXPECT_TRUE(lines.isEmpty());
  put("OVKTargetPaperSize", QVariantList{1, 2});
  panel->reloadControlsWithPresets();
  EXPECT_EQ(lines,
            QStringList{
                QStringLiteral("\nFinishing PDE got an error %1 setting the value for getting "
                               "default values for enabled booklet controls in embed controls !\n")
                    .arg(kPMValueFormatError)});
}

TEST_F(TicketExchange, ATargetPaperSizeThatTheMenuLacksLeavesTheSelection) {
  open(fullPrinter());
  selectItemAtIndex(popUp("paperSizePopup"), 1);
  put("OVKTargetPaperSize", QStringLiteral("77"));
  panel->reloadControlsWithPresets();
  EXPECT_EQ(ticketText("OVKTargetPaperSize"), QStringLiteral("1"));
  put("OVKTargetPaperSize", QStringLiteral("-1"));
  panel->reloadControlsWithPresets();
  EXPECT_EQ(indexOfSelectedItem(popUp("paperSizePopup")), noItem);
  EXPECT_EQ(ticketText("OVKTargetPaperSize"), QStringLiteral("-1"));
}

TEST_F(TicketExchange, ALockedKeyRefusesThePanelQuietly) {
  PrintSettings other(ticket);
  ASSERT_EQ(other.set(QStringLiteral("OVKGutter"), QStringLiteral("40"), true), noErr);
  open(fullPrinter());
  show();
  setIntValue(slider("gutterSlider"), 10);
  panel->syncToTicket();
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("40"));
}

TEST_F(TicketExchange, AllSixKeysAreInTheTicketOnceTheViewIsLoaded) {
  open(fullPrinter());
  EXPECT_EQ(bookletKeysInTicket().size(), 6);
  ticket = std::make_shared<Ticket>();
  open(printerWithoutBooklet());
  EXPECT_EQ(bookletKeysInTicket(), QStringList());
}

}  // namespace
