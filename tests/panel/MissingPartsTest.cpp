// SPDX-License-Identifier: Apache-2.0
// Sessions with one thing missing: each control of the interface resource in turn, each option of
// the PPD, the bundle and each of its files.

#include <QMetaProperty>
#include <QRegularExpression>

#include "tests/panel/PanelFixture.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class MissingParts : public PanelFixture {
 protected:
  // Everything a host and a user can do.
  void doEverything() {
    show();
    for (const char *name :
         {"staplingPopup", "foldingPopup", "punchPopup", "paperDestPopup", "paperSizePopup"}) {
      pick(name, 1);
      pick(name, 2);
      pick(name, 0);
    }
    for (const char *name :
         {"offsetChckBox", "bookletChckBox", "rToLChckBox", "pageBroderChckBox"}) {
      for (const int state : {stateOn, stateMixed, stateOff, stateOn}) click(name, state);
    }
    for (const char *name : {"gutterTxtBox", "creepTxtBox"}) {
      setStringValue(field(name), QStringLiteral("12"));
      notifyTextDidChange(field(name));
    }
    for (const char *name : {"gutterSlider", "creepSlider"}) {
      setIntValue(slider(name), 3);
      sendAction(slider(name));
    }
    panel->summaryInfo();
    panel->saveValuesAndReturnError(nullptr);
  }
};

QStringList fieldNames() {
  QStringList names;
  const QMetaObject &type = OrvekFinishing::staticMetaObject;
  for (int i = type.propertyOffset(); i < type.propertyCount(); ++i) {
    names << QLatin1String(type.property(i).name());
  }
  return names;
}

TEST_F(MissingParts, EachControlMayBeMissingFromTheResource) {
  ASSERT_EQ(fieldNames().size(), 25);
  for (const QString &name : fieldNames()) {
    const BundleCopy copy;
    const QString resource = QStringLiteral("en.lproj/Finishing.ui");
    QByteArray ui = copy.read(resource);
    const QByteArray named = "name=\"" + name.toLatin1() + "\"";
    ASSERT_EQ(ui.count(named), 1) << name.toStdString();
    ui.replace(named, "name=\"somethingElse\"");
    copy.write(resource, ui);
    bundle = copy.open();
    for (const HostKind kind : {HostKind::Resizing, HostKind::Fixed}) {
      ticket = std::make_shared<Ticket>();
      open(fullPrinter(), kind);
      EXPECT_EQ(control<QWidget>(name.toLatin1().constData()), nullptr) << name.toStdString();
      EXPECT_EQ(panel->panelView() == nullptr, name == QLatin1String("pdeView"));
      doEverything();
      EXPECT_EQ(panel->supportedPPDOptionKeys().size(), 5);
    }
  }
}

TEST_F(MissingParts, AControlOfAnotherClassCountsAsMissing) {
  const BundleCopy copy;
  const QString resource = QStringLiteral("en.lproj/Finishing.ui");
  QByteArray ui = copy.read(resource);
  ui.replace("class=\"QSlider\" name=\"gutterSlider\"", "class=\"QWidget\" name=\"gutterSlider\"");
  copy.write(resource, ui);
  bundle = copy.open();
  open(fullPrinter());
  EXPECT_EQ(slider("gutterSlider"), nullptr);
  doEverything();
  EXPECT_EQ(ticketText("OVKGutter"), QStringLiteral("0"));
}

TEST_F(MissingParts, EachOptionMayBeMissingFromThePPD) {
  for (const char *keyword :
       {"OVKStapling", "OVKFolding", "OVKPunching", "OutputBin", "OVKJog", "PageSize",
        "OVKOptionFinisher", "OVKOptionOffsetBin", "OVKOptionPunch", "OVKImageSmoothing"}) {
    for (const HostKind kind : {HostKind::Resizing, HostKind::Fixed}) {
      open(fullPrinter().without(QLatin1String(keyword)), kind);
      doEverything();
      EXPECT_FALSE(panel->supportedPPDOptionKeys().contains(QLatin1String(keyword)));
    }
  }
}

TEST_F(MissingParts, AMissingBundleGivesAPanelWithoutNameAndView) {
  bundle = nullptr;
  open(fullPrinter());
  EXPECT_TRUE(panel->panelName().isNull());
  EXPECT_EQ(panel->panelView(), nullptr);
  EXPECT_EQ(OrvekFinishingAccess::basicSize(*panel), QSizeF(0, 0));
  EXPECT_EQ(OrvekFinishingAccess::advancedSize(*panel), QSizeF(0, 0));
  doEverything();
}

TEST_F(MissingParts, AMissingResourceIsTriedAgainOnTheNextCall) {
  const BundleCopy copy;
  const QString resource = QStringLiteral("en.lproj/Finishing.ui");
  const QByteArray ui = copy.read(resource);
  copy.remove(resource);
  bundle = copy.open();
  open(fullPrinter());
  EXPECT_EQ(panel->panelView(), nullptr);
  copy.write(resource, ui);
  EXPECT_NE(panel->panelView(), nullptr);
}

TEST_F(MissingParts, ADamagedResourceGivesNoView) {
  const BundleCopy copy;
  copy.write(QStringLiteral("en.lproj/Finishing.ui"), "<ui version=\"4.0\"><widget");
  bundle = copy.open();
  open(fullPrinter());
  EXPECT_EQ(panel->panelView(), nullptr);
  doEverything();
}

TEST_F(MissingParts, AMissingStringTableShowsTheKeys) {
  const BundleCopy copy;
  copy.remove(QStringLiteral("en.lproj/Localizable.json"));
  bundle = copy.open();
  open(fullPrinter());
  EXPECT_EQ(panel->panelName(), QStringLiteral("_PDE_Finishing_Options"));
  const QString key = QStringLiteral("_PDE_Finishing_");
  EXPECT_EQ(displayedTitle(box("bookletChckBox")), key + QStringLiteral("Enable_Booklet"));
  EXPECT_EQ(displayedTitle(view("bookletBox")), key + QStringLiteral("Booklet_Box_Title"));
  EXPECT_EQ(displayedTitle(box("rToLChckBox")), key + QStringLiteral("Right_To_Left"));
  EXPECT_EQ(displayedTitle(box("pageBroderChckBox")), key + QStringLiteral("Print_Page_Borders"));
  EXPECT_EQ(displayedTitle(label("gutterLbl")), key + QStringLiteral("Gutter"));
  EXPECT_EQ(displayedTitle(label("creepLbl")), key + QStringLiteral("Creep"));
  EXPECT_EQ(displayedTitle(label("paperSizeLbl")), key + QStringLiteral("Target_Paper_Size"));
  doEverything();
}

}  // namespace
