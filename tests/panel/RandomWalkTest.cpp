// SPDX-License-Identifier: Apache-2.0
// Ten thousand things a user may do, on each printer of the family, with the panel's invariants
// checked after every one. The walk is the same on every run; a failure names its step.

#include <QDir>
#include <QRandomGenerator>

#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

constexpr int steps = 10000;
constexpr std::array popUps{"staplingPopup", "foldingPopup", "punchPopup", "paperDestPopup",
                            "paperSizePopup"};
constexpr std::array boxes{"offsetChckBox", "bookletChckBox", "rToLChckBox", "pageBroderChckBox"};
constexpr std::array sliders{"gutterSlider", "creepSlider"};
constexpr std::array fields{"gutterTxtBox", "creepTxtBox"};
constexpr std::array typed{"", "-", "7", "-7", "144", "99999999999", "abc", " 12 ", "+3", "1e3"};

class RandomWalk : public PanelFixture, public testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override {
    const QByteArray path = QByteArray(ORVEK_SOURCE_DIR "/printers/") + GetParam();
    PPDHandle handle(ppdOpenFile(path.constData()));
    ASSERT_TRUE(handle) << path.constData();
    ppdLocalize(handle.get());
    ppdMarkDefaults(handle.get());
    openHandle(std::move(handle));
    show();
  }

  bool usable(const QWidget *widget) const {
    for (; widget != nullptr; widget = widget->parentWidget()) {
      if (isHidden(widget) || !isEnabled(widget)) return false;
    }
    return true;
  }

  void step(QRandomGenerator &random) {
    switch (random.bounded(7)) {
      case 0:
      case 1:
        return pickSomething(random);
      case 2:
        return clickSomething(random);
      case 3:
        return slideSomething(random);
      case 4:
        return typeSomething(random);
      case 5:
        if (random.bounded(8) == 0) recordMarksAndRestore();
        return;
      default:
        if (random.bounded(8) == 0) changeLayout(random);
    }
  }

  void pickSomething(QRandomGenerator &random) {
    const char *name = popUps.at(random.bounded(quint32(popUps.size())));
    if (!usable(popUp(name)) || numberOfItems(popUp(name)) == 0) return;
    const int index = random.bounded(numberOfItems(popUp(name)));
    if (isItemEnabled(popUp(name), index)) pick(name, index);
  }

  void clickSomething(QRandomGenerator &random) {
    const char *name = boxes.at(random.bounded(quint32(boxes.size())));
    if (usable(box(name))) click(name, random.bounded(2));
  }

  void slideSomething(QRandomGenerator &random) {
    const char *name = sliders.at(random.bounded(quint32(sliders.size())));
    if (!usable(slider(name))) return;
    setIntValue(slider(name), random.bounded(-100, 300));
    sendAction(slider(name));
  }

  void typeSomething(QRandomGenerator &random) {
    const char *name = fields.at(random.bounded(quint32(fields.size())));
    if (!usable(field(name))) return;
    setStringValue(field(name), QLatin1String(typed.at(random.bounded(quint32(typed.size())))));
    notifyTextDidChange(field(name));
  }

  // What a host does: it keeps the marks in the ticket, and restores.
  void recordMarksAndRestore() {
    for (const QString &key : panel->supportedPPDOptionKeys()) {
      if (const auto *marked = ppdFindMarkedChoice(ppd.get(), key.toLatin1().constData())) {
        ticket->setValue(key, QString::fromLatin1(marked->choice));
      }
    }
    panel->restoreValuesAndReturnError(nullptr);
  }

  void changeLayout(QRandomGenerator &random) {
    ticket->setValue(QStringLiteral("com.apple.print.PrintSettings.PMLayoutNUp"),
                     random.bounded(2) * 2);
    panel->willShow();
  }

  void checkGroup(const char *popUpName, const PDEChoiceList *list, const PDEChoice *selection) {
    if (list == nullptr) {
      EXPECT_EQ(selection, nullptr);
      return;
    }
    const bool own = selection == nullptr ||
                     std::any_of(list->begin(), list->end(),
                                 [=](const auto &record) { return record.get() == selection; });
    EXPECT_TRUE(own) << popUpName;
    if (isHidden(popUp(popUpName))) return;
    ASSERT_EQ(numberOfItems(popUp(popUpName)), int(list->size()));
    for (std::size_t i = 0; i < list->size(); ++i) {
      ASSERT_EQ(representedObject(popUp(popUpName), int(i)), list->at(i).get());
    }
  }

  void checkInvariants() {
    using Access = OrvekFinishingAccess;
    checkGroup("staplingPopup", Access::staplingChoices(*panel).get(),
               Access::staplingSelection(*panel));
    checkGroup("foldingPopup", Access::foldingChoices(*panel).get(),
               Access::foldingSelection(*panel));
    checkGroup("punchPopup", Access::punchChoices(*panel).get(), Access::punchSelection(*panel));
    checkGroup("paperDestPopup", Access::paperDestChoices(*panel).get(),
               Access::paperDestSelection(*panel));
    EXPECT_FALSE(indexOfSelectedItem(popUp("staplingPopup")) > 0 &&
                 indexOfSelectedItem(popUp("foldingPopup")) > 0);
    if (Access::hasBooklet(*panel)) checkTicketEqualsControls();
  }

  void checkTicketEqualsControls() {
    const auto flag = [this](const char *name) {
      return state(box(name)) != stateOff ? QStringLiteral("True") : QStringLiteral("False");
    };
    EXPECT_EQ(ticketText("OVKEnableBooklet"), flag("bookletChckBox"));
    EXPECT_EQ(ticketText("OVKRightToLeft"), flag("rToLChckBox"));
    EXPECT_EQ(ticketText("OVKPrintPageBorders"), flag("pageBroderChckBox"));
    EXPECT_EQ(ticketText("OVKGutter"), QString::number(intValue(slider("gutterSlider"))));
    EXPECT_EQ(ticketText("OVKCreep"), QString::number(intValue(slider("creepSlider"))));
    EXPECT_EQ(ticketText("OVKTargetPaperSize"),
              QString::number(indexOfSelectedItem(popUp("paperSizePopup"))));
    EXPECT_EQ(isHidden(view("bookletView")), state(box("bookletChckBox")) != stateOn);
  }
};

TEST_P(RandomWalk, KeepsTheInvariantsAfterEveryAction) {
  QRandomGenerator random(20260519);
  for (int i = 0; i < steps && !HasFailure(); ++i) {
    SCOPED_TRACE(i);
    step(random);
    checkInvariants();
  }
}

INSTANTIATE_TEST_SUITE_P(Family, RandomWalk,
                         testing::Values("Orvek-6180.ppd", "Orvek-4150.ppd", "Orvek-2120.ppd"));

}  // namespace
