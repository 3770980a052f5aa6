// SPDX-License-Identifier: Apache-2.0
// The panel in its host, from its making to its end.

#include <QJsonObject>
#include <QPointer>

#include "platform/system/Log.h"
#include "platform/system/MainBundle.h"
#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Lifecycle : public PanelFixture {
 protected:
  void TearDown() override {
    setMainBundleInfo(std::nullopt);
    setLogListener({});
  }
};

PPDText bareBookletPrinter() {
  PPDText text;
  text.attribute(QStringLiteral("OVKHasBooklet"), QStringLiteral("True"));
  return text;
}

TEST_F(Lifecycle, CreationLogsItsOneLine) {
  QStringList lines;
  setLogListener([&](const QString &line) { lines << line; });
  create(openPPD(fullPrinter()));
  EXPECT_EQ(lines, QStringList{QStringLiteral("initWithCallback: finishing\n")});
}

TEST_F(Lifecycle, WithoutTheFiveOptionsClaimsNothingYetAnnouncesAllFive) {
  open(PPDText());
  EXPECT_TRUE(panel->supportedPPDOptionKeys().isEmpty());
  EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
  EXPECT_EQ(asText(host->announced),
            QStringLiteral("OVKStapling=- OVKFolding=- OVKPunching=- OutputBin=- OVKJog=-"));
}

TEST_F(Lifecycle, ClaimsItsOptionsInOrderAndNeverThePageSize) {
  open(fullPrinter());
  EXPECT_EQ(panel->supportedPPDOptionKeys().join(QLatin1Char(' ')),
            QStringLiteral("OVKStapling OVKFolding OVKPunching OutputBin OVKJog"));
  open(fullPrinter().without(QStringLiteral("OVKFolding")));
  EXPECT_EQ(panel->supportedPPDOptionKeys().join(QLatin1Char(' ')),
            QStringLiteral("OVKStapling OVKPunching OutputBin OVKJog"));
}

TEST_F(Lifecycle, AHostWithoutPPDGivesAPanelWithoutOptions) {
  openHandle(nullptr);
  show();
  EXPECT_TRUE(panel->supportedPPDOptionKeys().isEmpty());
  EXPECT_EQ(OrvekFinishingAccess::staplingOption(*panel), nullptr);
  EXPECT_EQ(OrvekFinishingAccess::staplingChoices(*panel), nullptr);
  EXPECT_EQ(OrvekFinishingAccess::paperSizeOption(*panel), nullptr);
  EXPECT_EQ(OrvekFinishingAccess::paperSizeChoices(*panel), nullptr);
  EXPECT_TRUE(panel->summaryInfo().isEmpty());
}

TEST_F(Lifecycle, ExistsWithoutAHost) {
  panel = OrvekFinishing::initWithCallback_andBundle(nullptr, bundle);
  EXPECT_NE(panel->panelView(), nullptr);
  EXPECT_TRUE(panel->restoreValuesAndReturnError(nullptr));
  panel->willShow();
  EXPECT_TRUE(panel->summaryInfo().isEmpty());
}

TEST_F(Lifecycle, OnAFixedHostShowsTheTallFormWithTheBookletBoxLockedOn) {
  open(fullPrinter(), HostKind::Fixed);
  EXPECT_FALSE(isHidden(view("bookletView")));
  EXPECT_EQ(frameSize(view("pdeView")), OrvekFinishingAccess::advancedSize(*panel));
  EXPECT_EQ(state(box("bookletChckBox")), stateOn);
  EXPECT_FALSE(isEnabled(box("bookletChckBox")));
}

TEST_F(Lifecycle, OnAResizingHostStartsInTheShortForm) {
  open(fullPrinter());
  EXPECT_TRUE(isHidden(view("bookletView")));
  EXPECT_EQ(frameSize(view("pdeView")), OrvekFinishingAccess::basicSize(*panel));
  EXPECT_EQ(state(box("bookletChckBox")), stateOff);
  EXPECT_TRUE(isEnabled(box("bookletChckBox")));
}

TEST_F(Lifecycle, APrinterWithoutBookletKeepsTheShortForm) {
  PPDText text;
  text.option(jogOption());
  open(text);
  const QSizeF basic = OrvekFinishingAccess::basicSize(*panel);
  for (int i = 0; i < 2; ++i) {
    EXPECT_TRUE(isHidden(view("bookletView")));
    EXPECT_EQ(frameSize(view("pdeView")), basic);
    show();
  }
}

TEST_F(Lifecycle, AsksItsHostForPPDSessionAndTicketInOrder) {
  create(openPPD(fullPrinter()));
  EXPECT_EQ(host->calls.join(QLatin1Char(' ')),
            QStringLiteral("ppdFile printSession printSettings"));
}

TEST_F(Lifecycle, TheAdvancedSizeAddsBothHeights) {
  open(fullPrinter());
  const QSizeF booklet = frameSize(view("bookletView"));
  const QSizeF advanced = OrvekFinishingAccess::advancedSize(*panel);
  EXPECT_EQ(advanced.width(), booklet.width());
  EXPECT_EQ(advanced.height(), booklet.height() + OrvekFinishingAccess::basicSize(*panel).height());
}

TEST_F(Lifecycle, InTheTallFormTheTwoViewsStackWithoutGap) {
  open(fullPrinter(), HostKind::Fixed);
  const QRectF basic = frame(view("basicView"));
  const QRectF booklet = frame(view("bookletView"));
  EXPECT_EQ(booklet.y(), 0);
  EXPECT_EQ(booklet.y() + booklet.height(), basic.y());
  EXPECT_EQ(basic.y() + basic.height(), frameSize(view("pdeView")).height());
}

TEST_F(Lifecycle, ASecondPanelViewReloadsAndResizesNothing) {
  open(fullPrinter());
  QWidget *first = panel->panelView();
  setFrameSize(first, {111, 222});
  EXPECT_EQ(panel->panelView(), first);
  EXPECT_EQ(frameSize(first), QSizeF(111, 222));
}

TEST_F(Lifecycle, TheNameIsLookedUpOnce) {
  const BundleCopy copy;
  bundle = copy.open();
  create(openPPD(fullPrinter()));
  EXPECT_EQ(panel->panelName(), QStringLiteral("Finishing"));
  copy.write(QStringLiteral("en.lproj/Localizable.json"),
             "{\"_PDE_Finishing_Options\": \"Renamed\"}");
  EXPECT_EQ(panel->panelName(), QStringLiteral("Finishing"));
}

TEST_F(Lifecycle, TheKindNamesThePanelsClass) {
  create(openPPD(fullPrinter()));
  EXPECT_EQ(panel->panelKind(), QStringLiteral("com.orvek.print.pde.OrvekFinishing"));
}

TEST_F(Lifecycle, NeverVetoesAndNeverReportsErrors) {
  open(fullPrinter());
  PDEError error{QStringLiteral("untouched")};
  EXPECT_TRUE(panel->shouldHide());
  EXPECT_TRUE(panel->shouldPrint());
  EXPECT_TRUE(panel->shouldShowHelp());
  EXPECT_TRUE(panel->restoreValuesAndReturnError(&error));
  EXPECT_TRUE(panel->saveValuesAndReturnError(&error));
  EXPECT_EQ(error.text, QStringLiteral("untouched"));
}

TEST_F(Lifecycle, RestoreHandsTheTicketsKeysToTheHostAndTakesTheMarksBack) {
  ticket->setValue(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  ticket->setValue(QStringLiteral("OutputBin"), QStringLiteral("Finisher"));
  open(fullPrinter());
  panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(
      asText(host->announced),
      QStringLiteral("OVKStapling=- OVKFolding=Saddle OVKPunching=- OutputBin=Finisher OVKJog=-"));
  EXPECT_EQ(selection("folding"), QStringLiteral("Saddle"));
  EXPECT_EQ(indexOfSelectedItem(popUp("foldingPopup")), 2);
  EXPECT_EQ(indexOfSelectedItem(popUp("paperDestPopup")), 2);
}

TEST_F(Lifecycle, RestorePointsEveryMenuAtItsMark) {
  ticket->setValue(QStringLiteral("OVKStapling"), QStringLiteral("Dual"));
  ticket->setValue(QStringLiteral("OVKFolding"), QStringLiteral("Fold"));
  ticket->setValue(QStringLiteral("OVKPunching"), QStringLiteral("3Hole"));
  ticket->setValue(QStringLiteral("OutputBin"), QStringLiteral("Offset"));
  open(fullPrinter());
  panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 3);
  EXPECT_EQ(indexOfSelectedItem(popUp("foldingPopup")), 1);
  EXPECT_EQ(indexOfSelectedItem(popUp("punchPopup")), 2);
  EXPECT_EQ(indexOfSelectedItem(popUp("paperDestPopup")), 1);
}

TEST_F(Lifecycle, RestoreFromAnEmptyTicketStillRefreshesTheControls) {
  open(bareBookletPrinter());
  setIntValue(slider("gutterSlider"), 99);
  panel->restoreValuesAndReturnError(nullptr);
  EXPECT_EQ(asText(host->announced),
            QStringLiteral("OVKStapling=- OVKFolding=- OVKPunching=- OutputBin=- OVKJog=-"));
  EXPECT_EQ(ticketText("OVKGutter"), QString::number(intValue(slider("gutterSlider"))));
}

TEST_F(Lifecycle, NotesTheCallingApplicationInTheTicket) {
  setMainBundleInfo(
      QJsonObject{{QLatin1String(kCFBundleExecutableKey), QStringLiteral("some-editor")}});
  create(openPPD(fullPrinter()));
  EXPECT_EQ(ticketText("OVKAppName"), QStringLiteral("some-editor"));
}

TEST_F(Lifecycle, ACallerWithoutExecutableNameIsNotedAsThePanel) {
  setMainBundleInfo(QJsonObject{});
  create(openPPD(fullPrinter()));
  EXPECT_EQ(ticketText("OVKAppName"), QStringLiteral("OrvekFinishing"));
}

TEST_F(Lifecycle, ACallerWithoutDictionaryIsNotNoted) {
  create(openPPD(fullPrinter()));
  EXPECT_FALSE(ticket->values().contains(QStringLiteral("OVKAppName")));
}

TEST_F(Lifecycle, ASelectionThatIsNotInItsListLeavesThePopUp) {
  open(fullPrinter());
  show();
  const auto foreign =
      PDEChoice::choiceWithChoice(OrvekFinishingAccess::staplingChoices(*panel)->at(3)->choice());
  selectItemAtIndex(popUp("staplingPopup"), 1);
  OrvekFinishingAccess::staplingSelection(*panel) = foreign.get();
  panel->updateUI();
  EXPECT_EQ(indexOfSelectedItem(popUp("staplingPopup")), 1);
}

TEST_F(Lifecycle, LetsGoOfItsHostButNotOfItsBundle) {
  open(fullPrinter());
  const std::weak_ptr<RecordingHost> heldHost = host;
  const std::weak_ptr<Bundle> heldBundle = bundle;
  host.reset();
  bundle.reset();
  EXPECT_FALSE(heldHost.expired());
  panel.reset();
  EXPECT_TRUE(heldHost.expired());
  EXPECT_FALSE(heldBundle.expired());
}

TEST_F(Lifecycle, HoldsOnToABundleOnceHoweverManyPanelsItMakes) {
  create(openPPD(fullPrinter()));
  const auto once = bundle.use_count();
  create(openPPD(fullPrinter()));
  EXPECT_EQ(bundle.use_count(), once);
}

TEST_F(Lifecycle, DestructionTakesTheViewAlong) {
  open(fullPrinter());
  const QPointer<QWidget> root = panel->panelView();
  panel.reset();
  EXPECT_TRUE(root.isNull());
}

TEST_F(Lifecycle, OperationsBeforeTheViewReachNothing) {
  create(openPPD(fullPrinter()));
  panel->willShow();
  panel->restoreValuesAndReturnError(nullptr);
  panel->controlTextDidChange(nullptr);
  panel->changeStaplingOption(nullptr);
  panel->updateStaplingImage();
  EXPECT_EQ(selection("stapling"), QStringLiteral("None"));
}

}  // namespace
