// SPDX-License-Identifier: Apache-2.0
// Interface resources: outlets, wiring, damaged files, and who deletes what.

#include "platform/ui/InterfaceResource.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPointer>
#include <QStringEncoder>
#include <QTest>
#include <memory>

#include "platform/ui/Bundle.h"
#include "platform/ui/PopUps.h"
#include "platform/ui/ResourceBounds.h"
#include "tests/platform/ui/RecordingOwner.h"
#include "tests/support/BundleOnDisk.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

QByteArray property(const char *name, const char *value) {
  return QByteArray("<property name=\"") + name + "\" stdset=\"0\"><string>" + value +
         "</string></property>";
}

QByteArray widget(const char *type, const char *name, const QByteArray &content = {}) {
  return QByteArray("<widget class=\"") + type + "\" name=\"" + name + "\">" + content +
         "</widget>";
}

class InterfaceResourceTest : public testing::Test {
 protected:
  void writeInterface(const QByteArray &content) const {
    disk.write(
        QStringLiteral("en.lproj/Finishing.ui"),
        "<ui version=\"4.0\"><class>F</class>" + widget("QWidget", "pdeView", content) + "</ui>");
  }
  bool load() const {
    const auto bundle = Bundle::atPath(disk.path(), {"en"});
    return loadInterface(bundle.get(), QStringLiteral("Finishing"), owner.get());
  }

  test::BundleOnDisk disk;
  std::unique_ptr<RecordingOwner> owner = std::make_unique<RecordingOwner>();
};

TEST_F(InterfaceResourceTest, FillsTheOwnersOutletsByName) {
  writeInterface(widget("QComboBox", "foldingPopup") + widget("QLineEdit", "gutterTxtBox"));
  ASSERT_TRUE(load());
  ASSERT_NE(owner->pdeView, nullptr);
  EXPECT_EQ(owner->foldingPopup, owner->pdeView->findChild<QComboBox *>("foldingPopup"));
  EXPECT_EQ(owner->gutterTxtBox, owner->pdeView->findChild<QLineEdit *>("gutterTxtBox"));
}

QByteArray sized(const char *property, const char *width) {
  return QByteArray("<property name=\"") + property + "\"><size><width>" + width +
         "</width><height>20</height></size></property>";
}

TEST_F(InterfaceResourceTest, IsRefusedWhereItAsksForALengthThatNoWindowHas) {
  for (const QByteArray &content :
       {sized("minimumSize", "16777000"), sized("minimumSize", "2147483647"),
        sized("minimumSize", "99999999999"), sized("maximumSize", "16777216"),
        QByteArray("<property name=\"geometry\"><rect><x>-2147483000</x><y>0</y><width>9</width>"
                   "<height>9</height></rect></property>"),
        QByteArray("<property name=\"minimumWidth\"><number>2000000000</number></property>"),
        QByteArray("<layout class=\"QGridLayout\" columnminimumwidth=\"0,2000000000\"/>"),
        QByteArray(
            "<property name=\"font\"><font><pointsize>90000</pointsize></font></property>")}) {
    const LogCapture log;
    writeInterface(content);
    EXPECT_FALSE(load()) << content.constData();
    ASSERT_EQ(log.lines().size(), 1);
    EXPECT_TRUE(log.lines().first().endsWith("line 1: a length beyond 16384 pixels"))
        << log.lines().first().toStdString();
  }
}

// However a number is written: in another encoding, by the numbers of its characters, in a list.
TEST(LengthsOfAResource, AreReadInWhateverWayTheyAreWritten) {
  const QString text = QStringLiteral("<ui version=\"4.0\"><rect><width>%1</width></rect></ui>");
  for (const char *number :
       {"90000", " 90000 ", "-90000", "90000.5", "&#57;0000", "&#x39;0000", "<![CDATA[90000]]>",
        "<!-- 1 -->90000", "12 pixels", "12,5", "12&amp;"}) {
    EXPECT_FALSE(lengthProblem(text.arg(QLatin1String(number)).toUtf8()).isNull()) << number;
  }
  const QString wide = text.arg(90000);
  EXPECT_FALSE(lengthProblem(QStringEncoder(QStringEncoder::Utf16)(wide)).isNull());
  EXPECT_FALSE(lengthProblem("<!DOCTYPE ui [<!ENTITY n \"9000\">]><ui><x>&n;0</x></ui>").isNull());
  EXPECT_FALSE(lengthProblem("<ui><layout columnminimumwidth='7, 90000'/></ui>").isNull());
  EXPECT_FALSE(lengthProblem("<ui><layout columnminimumwidth=\"7, 9x\"/></ui>").isNull());
  for (const char *number : {"9000", " -9000 ", "9000.5", "016384", "", "pixels 12", "A4 x"}) {
    EXPECT_TRUE(lengthProblem(text.arg(QLatin1String(number)).toUtf8()).isNull()) << number;
  }
}

TEST_F(InterfaceResourceTest, MayHaveTheLengthsThatWindowsHave) {
  writeInterface(sized("minimumSize", "16384") + sized("maximumSize", "16777215"));
  EXPECT_TRUE(load());
}

TEST_F(InterfaceResourceTest, LeavesAnOutletNullThatTheResourceLacks) {
  writeInterface(widget("QLineEdit", "gutterTxtBox"));
  ASSERT_TRUE(load());
  EXPECT_EQ(owner->foldingPopup, nullptr);
  EXPECT_NE(owner->gutterTxtBox, nullptr);
}

TEST_F(InterfaceResourceTest, LeavesAnOutletNullWhoseControlIsOfAnotherType) {
  writeInterface(widget("QLineEdit", "foldingPopup") + widget("QLabel", "gutterTxtBox"));
  ASSERT_TRUE(load());
  EXPECT_EQ(owner->foldingPopup, nullptr);
  EXPECT_EQ(owner->gutterTxtBox, nullptr);
}

TEST_F(InterfaceResourceTest, PassesOverControlsThatTheOwnerDoesNotKnow) {
  writeInterface(widget("QLabel", "decoration"));
  ASSERT_TRUE(load());
  EXPECT_TRUE(owner->dynamicPropertyNames().isEmpty());
}

TEST_F(InterfaceResourceTest, WiresActionsAndDelegates) {
  writeInterface(widget("QComboBox", "foldingPopup", property("action", "change:with:")) +
                 widget("QLineEdit", "gutterTxtBox", property("delegate", "owner")));
  ASSERT_TRUE(load());
  addItem(owner->foldingPopup, {.title = QStringLiteral("None")});
  addItem(owner->foldingPopup, {.title = QStringLiteral("Fold")});
  QTest::keyClick(owner->foldingPopup, Qt::Key_Down);
  QTest::keyClicks(owner->gutterTxtBox, QStringLiteral("3"));
  ASSERT_EQ(owner->calls.size(), 2);
  EXPECT_EQ(owner->calls[0].first, QStringLiteral("change_with"));
  EXPECT_EQ(owner->calls[1].first, QStringLiteral("controlTextDidChange"));
}

TEST_F(InterfaceResourceTest, LogsAnOperationThatTheOwnerLacksAndLoadsTheRest) {
  writeInterface(widget("QComboBox", "foldingPopup", property("action", "vanish:")));
  const LogCapture log;
  EXPECT_TRUE(load());
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines()[0].contains(QLatin1String("foldingPopup")));
  EXPECT_TRUE(log.lines()[0].contains(QLatin1String("vanish:")));
  EXPECT_NE(owner->foldingPopup, nullptr);
}

TEST_F(InterfaceResourceTest, FailsOnAMissingResourceAndNamesIt) {
  const LogCapture log;
  testing::internal::CaptureStderr();
  EXPECT_FALSE(load());
  const std::string said = testing::internal::GetCapturedStderr();
  EXPECT_EQ(std::count(said.begin(), said.end(), '\n'), 1) << said;
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines()[0].contains(QLatin1String("no interface resource \"Finishing\"")));
  EXPECT_EQ(owner->pdeView, nullptr);
}

TEST_F(InterfaceResourceTest, FailsOnADamagedResourceAndLeavesTheOwnerAlone) {
  for (const char *damaged : {"", "<ui", "<ui version=\"4.0\"></ui>", "no interface"}) {
    disk.write(QStringLiteral("en.lproj/Finishing.ui"), damaged);
    const LogCapture log;
    EXPECT_FALSE(load()) << damaged;
    ASSERT_EQ(log.lines().size(), 1) << damaged;
    EXPECT_TRUE(log.lines()[0].contains(QLatin1String("Finishing.ui"))) << damaged;
    EXPECT_EQ(owner->pdeView, nullptr) << damaged;
  }
}

TEST_F(InterfaceResourceTest, FailsWithoutAnOwner) {
  writeInterface({});
  const auto bundle = Bundle::atPath(disk.path(), {"en"});
  EXPECT_FALSE(loadInterface(bundle.get(), QStringLiteral("Finishing"), nullptr));
}

TEST_F(InterfaceResourceTest, DeletesTheTreeWithItsOwner) {
  writeInterface({});
  ASSERT_TRUE(load());
  const QPointer<QWidget> root = owner->pdeView;
  owner.reset();
  EXPECT_TRUE(root.isNull());
}

TEST_F(InterfaceResourceTest, DeletesTheTreeWithItsOwnerEvenInsideAnotherWindow) {
  writeInterface({});
  ASSERT_TRUE(load());
  QWidget window;
  const QPointer<QWidget> root = owner->pdeView;
  root->setParent(&window);
  owner.reset();
  EXPECT_TRUE(root.isNull());
  EXPECT_TRUE(window.findChildren<QWidget *>().isEmpty());
}

TEST_F(InterfaceResourceTest, LetsAWindowTakeTheTreeAlongWhenItGoesFirst) {
  writeInterface({});
  ASSERT_TRUE(load());
  auto window = std::make_unique<QWidget>();
  const QPointer<QWidget> root = owner->pdeView;
  root->setParent(window.get());
  window.reset();
  EXPECT_TRUE(root.isNull());
  owner.reset();
}

TEST_F(InterfaceResourceTest, GivesTwoOwnersTreesOfTheirOwn) {
  writeInterface({});
  RecordingOwner other;
  ASSERT_TRUE(load());
  const auto bundle = Bundle::atPath(disk.path(), {"en"});
  ASSERT_TRUE(loadInterface(bundle.get(), QStringLiteral("Finishing"), &other));
  EXPECT_NE(owner->pdeView, other.pdeView);
}

TEST_F(InterfaceResourceTest, GivesTheTreeMadeAheadToTheFirstOwner) {
  writeInterface(widget("QLineEdit", "gutterTxtBox"));
  const auto bundle = Bundle::atPath(disk.path(), {"en"});
  const InterfaceAhead ahead(*bundle);
  disk.write(QStringLiteral("en.lproj/Finishing.ui"), "damaged since");
  ASSERT_TRUE(load());
  ASSERT_NE(owner->pdeView, nullptr);
  EXPECT_EQ(owner->gutterTxtBox, owner->pdeView->findChild<QLineEdit *>("gutterTxtBox"));
  const LogCapture log;
  RecordingOwner second;
  EXPECT_FALSE(loadInterface(bundle.get(), QStringLiteral("Finishing"), &second));
  EXPECT_EQ(second.pdeView, nullptr);
}

TEST_F(InterfaceResourceTest, DropsATreeMadeAheadThatNobodyWanted) {
  writeInterface(widget("QLineEdit", "gutterTxtBox"));
  const auto bundle = Bundle::atPath(disk.path(), {"en"});
  const qsizetype before = QApplication::allWidgets().size();
  {
    const InterfaceAhead ahead(*bundle);
    EXPECT_GT(QApplication::allWidgets().size(), before);
  }
  EXPECT_EQ(QApplication::allWidgets().size(), before);
  disk.write(QStringLiteral("en.lproj/Finishing.ui"), "damaged since");
  const LogCapture log;
  EXPECT_FALSE(load());
}

TEST_F(InterfaceResourceTest, MakesNothingAheadWhereNobodyKnowsWhatIsWanted) {
  writeInterface({});
  disk.write(QStringLiteral("de.lproj/Finishing.ui"), "<ui version=\"4.0\"/>");
  const QStringList languages{QStringLiteral("de")};
  const auto isAlone = [&] {
    return !Bundle::atPath(disk.path(), languages)->pathForOnlyResource("ui").isNull();
  };
  EXPECT_TRUE(isAlone()) << "one resource in two languages";
  disk.write(QStringLiteral("en.lproj/Another.ui"), "<ui version=\"4.0\"/>");
  EXPECT_FALSE(isAlone());
  const qsizetype before = QApplication::allWidgets().size();
  const InterfaceAhead ahead(*Bundle::atPath(disk.path(), languages));
  EXPECT_EQ(QApplication::allWidgets().size(), before);
}

TEST_F(InterfaceResourceTest, IsSaidToBeDamagedOnceAndToWhoeverLoadsIt) {
  writeInterface(sized("minimumSize", "16777000"));
  const auto bundle = Bundle::atPath(disk.path(), {"en"});
  const LogCapture log;
  const InterfaceAhead ahead(*bundle);
  EXPECT_TRUE(log.lines().isEmpty());
  EXPECT_FALSE(load());
  EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(InterfaceResourceTest, PrefersTheResourceOfTheUsersLanguage) {
  writeInterface({});
  disk.write(QStringLiteral("de.lproj/Finishing.ui"),
             "<ui version=\"4.0\"><class>F</class>" +
                 widget("QWidget", "pdeView", widget("QComboBox", "foldingPopup")) + "</ui>");
  const auto bundle = Bundle::atPath(disk.path(), {"de"});
  ASSERT_TRUE(loadInterface(bundle.get(), QStringLiteral("Finishing"), owner.get()));
  EXPECT_NE(owner->foldingPopup, nullptr);
}

}  // namespace
}  // namespace orvek::test
