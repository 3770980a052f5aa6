// SPDX-License-Identifier: Apache-2.0
// The interface resource: the controls that a panel counts on, their wiring, and a layout in which
// nothing overlaps.

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QSlider>
#include <map>

#include "tests/resources/InterfaceFixture.h"

namespace orvek::test {
namespace {

constexpr int rowPitch = 30;

const std::map<QString, QString> classes = {
    {"pdeView", "QWidget"},
    {"basicView", "QWidget"},
    {"bookletView", "QWidget"},
    {"bookletBox", "QGroupBox"},
    {"staplingLbl", "QLabel"},
    {"foldingLbl", "QLabel"},
    {"punchLbl", "QLabel"},
    {"paperDestLbl", "QLabel"},
    {"gutterLbl", "QLabel"},
    {"creepLbl", "QLabel"},
    {"paperSizeLbl", "QLabel"},
    {"imageWindow", "QLabel"},
    {"staplingPopup", "QComboBox"},
    {"foldingPopup", "QComboBox"},
    {"punchPopup", "QComboBox"},
    {"paperDestPopup", "QComboBox"},
    {"paperSizePopup", "QComboBox"},
    {"offsetChckBox", "QCheckBox"},
    {"bookletChckBox", "QCheckBox"},
    {"rToLChckBox", "QCheckBox"},
    {"pageBroderChckBox", "QCheckBox"},
    {"gutterTxtBox", "QLineEdit"},
    {"creepTxtBox", "QLineEdit"},
    {"gutterSlider", "QSlider"},
    {"creepSlider", "QSlider"},
};

const std::map<QString, QString> actions = {
    {"staplingPopup", "changeStaplingOption:"},
    {"foldingPopup", "changeFoldingOption:"},
    {"punchPopup", "changePunchOption:"},
    {"paperDestPopup", "changePaperDestOption:"},
    {"offsetChckBox", "offSetChange:"},
    {"bookletChckBox", "enableBookletChange:"},
    {"rToLChckBox", "rToLChange:"},
    {"pageBroderChckBox", "paperBorderClick:"},
    {"gutterSlider", "gutterSliderTracking:"},
    {"creepSlider", "creepSliderTracking:"},
    {"paperSizePopup", "changePaperSizeOption:"},
};

TEST_F(Interface, HoldsEveryFieldOfThePanelWithItsClass) {
  EXPECT_EQ(root->objectName(), "pdeView");
  for (const auto &[name, className] : classes) {
    const auto *widget = get(name);
    ASSERT_NE(widget, nullptr) << name.toStdString();
    EXPECT_EQ(widget->metaObject()->className(), className) << name.toStdString();
  }
}

TEST_F(Interface, HoldsNothingElseWithANameOfItsOwn) {
  for (const QWidget *widget : root->findChildren<QWidget *>()) {
    const QString name = widget->objectName();
    if (name.isEmpty() || name.startsWith(QStringLiteral("qt_"))) continue;
    EXPECT_TRUE(classes.contains(name)) << name.toStdString();
  }
}

TEST_F(Interface, LeavesThePlacingToThePanel) {
  EXPECT_TRUE(root->findChildren<QLayout *>().isEmpty());
}

TEST_F(Interface, WiresEveryControlToItsOperationAndNothingElse) {
  for (const auto &[name, className] : classes) {
    const auto expected = actions.find(name);
    const QString action = get(name)->property("action").toString();
    EXPECT_EQ(action, expected == actions.end() ? QString() : expected->second)
        << name.toStdString();
  }
  for (const char *field : {"gutterTxtBox", "creepTxtBox"}) {
    EXPECT_EQ(get(field)->property("delegate").toString(), "owner") << field;
  }
}

TEST_F(Interface, PinsTheBookletSectionToTheBottomAndAllElseToTheTop) {
  for (const auto &[name, className] : classes) {
    if (name == "pdeView") continue;
    EXPECT_EQ(get(name)->property("pinned").toString(), name == "bookletView" ? "bottom" : "top")
        << name.toStdString();
  }
}

TEST_F(Interface, StacksTheTwoSectionsToTheViewsFullHeight) {
  const QRect basic = place("basicView");
  const QRect booklet = place("bookletView");
  EXPECT_EQ(basic.topLeft(), QPoint(0, 0));
  EXPECT_EQ(booklet.topLeft(), QPoint(0, basic.height()));
  EXPECT_EQ(basic.width(), booklet.width());
  EXPECT_EQ(root->size(), QSize(basic.width(), basic.height() + booklet.height()));
  EXPECT_EQ(get("bookletBox")->parentWidget(), get("bookletView"));
}

TEST_F(Interface, NestsTheControlsInTheirSections) {
  for (const char *name :
       {"rToLChckBox", "pageBroderChckBox", "gutterLbl", "gutterSlider", "gutterTxtBox", "creepLbl",
        "creepSlider", "creepTxtBox", "paperSizeLbl", "paperSizePopup"}) {
    EXPECT_EQ(get(name)->parentWidget(), get("bookletBox")) << name;
  }
  for (const char *name : {"staplingPopup", "imageWindow", "offsetChckBox", "bookletChckBox"}) {
    EXPECT_EQ(get(name)->parentWidget(), get("basicView")) << name;
  }
}

TEST_F(Interface, PlacesTheSixBasicRowsAtTheRowPitch) {
  const char *const rows[] = {"staplingPopup",  "foldingPopup",  "punchPopup",
                              "paperDestPopup", "offsetChckBox", "bookletChckBox"};
  for (int i = 0; i < 6; ++i) {
    EXPECT_EQ(place(rows[i]).top(), place(rows[0]).top() + i * rowPitch) << rows[i];
    EXPECT_LT(place(rows[i]).height(), rowPitch) << rows[i];
    EXPECT_EQ(place(rows[i]).left(), place(rows[0]).left()) << rows[i];
  }
}

TEST_F(Interface, PutsEveryLabelInTheRowOfItsControlAsItsBuddy) {
  const std::map<QString, QString> buddies = {
      {"staplingLbl", "staplingPopup"},   {"foldingLbl", "foldingPopup"},
      {"punchLbl", "punchPopup"},         {"paperDestLbl", "paperDestPopup"},
      {"paperSizeLbl", "paperSizePopup"}, {"gutterLbl", "gutterTxtBox"},
      {"creepLbl", "creepTxtBox"}};
  for (const auto &[label, control] : buddies) {
    EXPECT_EQ(get<QLabel>(label)->buddy(), get(control)) << label.toStdString();
    EXPECT_EQ(place(label).top(), place(control).top()) << label.toStdString();
    EXPECT_EQ(place(label).height(), place(control).height()) << label.toStdString();
    EXPECT_LT(place(label).right(), place(control).left()) << label.toStdString();
  }
}

TEST_F(Interface, GivesTheSlidersTheirRangesAndLetsThemSendContinuously) {
  const auto *gutter = get<QSlider>("gutterSlider");
  const auto *creep = get<QSlider>("creepSlider");
  EXPECT_EQ(gutter->minimum(), 0);
  EXPECT_EQ(gutter->maximum(), 144);
  EXPECT_EQ(creep->minimum(), -36);
  EXPECT_EQ(creep->maximum(), 36);
  for (const QSlider *slider : {gutter, creep}) {
    EXPECT_EQ(slider->singleStep(), 1);
    EXPECT_GT(slider->pageStep(), 1);
    EXPECT_TRUE(slider->hasTracking());
    EXPECT_EQ(slider->orientation(), Qt::Horizontal);
  }
}

TEST_F(Interface, KeepsItsControlsApartAndInsideTheirViews) {
  const auto all = root->findChildren<QWidget *>();
  for (const QWidget *one : all) {
    if (!classes.contains(one->objectName())) continue;
    EXPECT_TRUE(one->parentWidget()->rect().contains(one->geometry()))
        << one->objectName().toStdString();
    for (const QWidget *other : all) {
      if (other == one || other->parentWidget() != one->parentWidget()) continue;
      if (!classes.contains(other->objectName())) continue;
      EXPECT_FALSE(one->geometry().intersects(other->geometry()))
          << one->objectName().toStdString() << " and " << other->objectName().toStdString();
    }
  }
}

// Hidden rows move the others up beside the picture.
TEST_F(Interface, KeepsThePictureClearOfEveryRowThatMayMoveUp) {
  for (const auto &[name, className] : classes) {
    if (name == "imageWindow" || get(name)->parentWidget() != get("basicView")) continue;
    EXPECT_LT(place(name).right(), place("imageWindow").left()) << name.toStdString();
  }
}

TEST_F(Interface, ShowsThePictureWholeWithStaplingAsTheOnlyPopUp) {
  const int hiddenRows = 3;
  EXPECT_LE(place("imageWindow").bottom(), get("basicView")->height() - hiddenRows * rowPitch);
  EXPECT_GE(get("imageWindow")->height(), 96);
  EXPECT_GE(get("imageWindow")->width(), 104);
}

TEST_F(Interface, WalksThroughItsControlsFromTopToBottom) {
  const QStringList order = {
      "staplingPopup",  "foldingPopup",   "punchPopup",       "paperDestPopup", "offsetChckBox",
      "bookletChckBox", "paperSizePopup", "gutterSlider",     "gutterTxtBox",   "creepSlider",
      "creepTxtBox",    "rToLChckBox",    "pageBroderChckBox"};
  QStringList walked;
  const QWidget *widget = get("staplingPopup");
  for (int i = 0; i < root->findChildren<QWidget *>().size(); ++i) {
    if (order.contains(widget->objectName())) walked << widget->objectName();
    widget = widget->nextInFocusChain();
    if (widget == get("staplingPopup")) break;
  }
  EXPECT_EQ(walked, order);
}

TEST_F(Interface, SaysWhatEveryControlIsFor) {
  for (const auto &[name, action] : actions) {
    EXPECT_FALSE(get(name)->toolTip().isEmpty()) << name.toStdString();
  }
  for (const char *name : {"imageWindow", "gutterSlider", "creepSlider"}) {
    EXPECT_FALSE(get(name)->accessibleName().isEmpty()) << name;
  }
}

}  // namespace
}  // namespace orvek::test
