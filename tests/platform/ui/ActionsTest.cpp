// SPDX-License-Identifier: Apache-2.0
// Actions: what users do is sent to the owner, what code does is not.

#include "platform/ui/Actions.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QSlider>
#include <QTest>
#include <memory>

#include "platform/ui/Controls.h"
#include "platform/ui/PopUps.h"
#include "tests/platform/ui/RecordingOwner.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class ActionsTest : public testing::Test {
 protected:
  ActionsTest() {
    for (const char *title : {"None", "Fold", "Saddle"}) {
      addItem(&popUp, {.title = QString::fromLatin1(title)});
    }
    slider.setOrientation(Qt::Horizontal);
    slider.setRange(0, 144);
    for (QWidget *control : {static_cast<QWidget *>(&popUp), static_cast<QWidget *>(&box),
                             static_cast<QWidget *>(&slider)}) {
      control->setProperty(actionProperty, QStringLiteral("change:"));
      connectToOwner(control, owner.get());
    }
    field.setProperty(delegateProperty, QStringLiteral("owner"));
    connectToOwner(&field, owner.get());
  }

  void expectOneCall(const char *operation, QWidget *sender) const {
    ASSERT_EQ(owner->calls.size(), 1);
    EXPECT_EQ(owner->calls[0].first, QLatin1String(operation));
    EXPECT_EQ(owner->calls[0].second, sender);
  }

  std::unique_ptr<RecordingOwner> owner = std::make_unique<RecordingOwner>();
  QComboBox popUp;
  QCheckBox box;
  QSlider slider;
  QLineEdit field;
};

TEST_F(ActionsTest, SendAPickFromAMenu) {
  QTest::keyClick(&popUp, Qt::Key_Down);
  expectOneCall("change", &popUp);
  EXPECT_EQ(indexOfSelectedItem(&popUp), 1);
}

TEST_F(ActionsTest, SendAClickOnACheckBoxAfterItsStateChanged) {
  int seen = -2;
  QObject::connect(&box, &QCheckBox::clicked, [&] { seen = state(&box); });
  QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(5, box.height() / 2));
  expectOneCall("change", &box);
  EXPECT_EQ(seen, stateOn);
}

TEST_F(ActionsTest, SendEachStepOfASlider) {
  QTest::keyClick(&slider, Qt::Key_Right);
  QTest::keyClick(&slider, Qt::Key_Right);
  ASSERT_EQ(owner->calls.size(), 2);
  EXPECT_EQ(owner->calls[1].second, &slider);
  EXPECT_EQ(intValue(&slider), 2);
}

TEST_F(ActionsTest, SendEachTypedCharacterToTheDelegate) {
  QTest::keyClicks(&field, QStringLiteral("36"));
  ASSERT_EQ(owner->calls.size(), 2);
  EXPECT_EQ(owner->calls[0].first, QStringLiteral("controlTextDidChange"));
  EXPECT_EQ(owner->calls[0].second, &field);
}

TEST_F(ActionsTest, SendNothingWhenCodeSetsAValue) {
  selectItemAtIndex(&popUp, 2);
  selectItemWithTitle(&popUp, QStringLiteral("Fold"));
  removeAllItems(&popUp);
  addItem(&popUp, {.title = QStringLiteral("new")});
  setState(&box, stateOn);
  setIntValue(&slider, 36);
  setStringValue(&field, QStringLiteral("36"));
  setIntValue(&field, 37);
  EXPECT_TRUE(owner->calls.isEmpty());
}

TEST_F(ActionsTest, CanBeSentByCodeAsAUserWould) {
  sendAction(&popUp);
  expectOneCall("change", &popUp);
  owner->calls.clear();
  notifyTextDidChange(&field);
  expectOneCall("controlTextDidChange", &field);
}

TEST_F(ActionsTest, OfUnwiredControlsAreNotSent) {
  QCheckBox unwired;
  QLineEdit deaf;
  connectToOwner(&unwired, owner.get());
  connectToOwner(&deaf, owner.get());
  unwired.click();
  QTest::keyClicks(&deaf, QStringLiteral("1"));
  sendAction(&unwired);
  notifyTextDidChange(&deaf);
  EXPECT_TRUE(owner->calls.isEmpty());
}

TEST_F(ActionsTest, OfAFieldAreKeptApartFromItsDelegate) {
  QLineEdit both;
  both.setProperty(actionProperty, QStringLiteral("change:"));
  both.setProperty(delegateProperty, QStringLiteral("owner"));
  connectToOwner(&both, owner.get());
  sendAction(&both);
  expectOneCall("change", &both);
  owner->calls.clear();
  notifyTextDidChange(&both);
  expectOneCall("controlTextDidChange", &both);
  owner->calls.clear();
  sendAction(&field);
  EXPECT_TRUE(owner->calls.isEmpty()) << "a field that only has a delegate has no action";
}

TEST_F(ActionsTest, OfAFieldAreSentOnReturn) {
  QLineEdit entry;
  entry.setProperty(actionProperty, QStringLiteral("change:"));
  connectToOwner(&entry, owner.get());
  QTest::keyClicks(&entry, QStringLiteral("1"));
  EXPECT_TRUE(owner->calls.isEmpty());
  QTest::keyClick(&entry, Qt::Key_Return);
  expectOneCall("change", &entry);
}

TEST_F(ActionsTest, AreNotSentToAnOwnerThatIsGone) {
  owner.reset();
  box.click();
  QTest::keyClicks(&field, QStringLiteral("1"));
  sendAction(&popUp);
  EXPECT_EQ(state(&box), stateOn);
}

TEST_F(ActionsTest, ThatTheOwnerLacksAreLoggedByNameAndNeverSent) {
  const LogCapture log;
  QCheckBox lost;
  lost.setObjectName(QStringLiteral("lostChckBox"));
  lost.setProperty(actionProperty, QStringLiteral("unknown:"));
  connectToOwner(&lost, owner.get());
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines()[0].contains(QLatin1String("lostChckBox")));
  EXPECT_TRUE(log.lines()[0].contains(QLatin1String("unknown:")));
  lost.click();
  sendAction(&lost);
  EXPECT_TRUE(owner->calls.isEmpty());
}

TEST_F(ActionsTest, WhoseMethodTakesNoSenderAreUnknown) {
  const LogCapture log;
  QCheckBox wrong;
  wrong.setProperty(actionProperty, QStringLiteral("withoutSender"));
  connectToOwner(&wrong, owner.get());
  EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(ActionsTest, OfDisabledControlsAreNotSentByUsers) {
  setEnabled(&box, false);
  box.click();
  EXPECT_TRUE(owner->calls.isEmpty());
}

TEST(MethodName, DropsTheLastColonAndWritesTheOthersAsUnderscores) {
  EXPECT_EQ(methodName(QStringLiteral("changeFoldingOption:")),
            QStringLiteral("changeFoldingOption"));
  EXPECT_EQ(methodName(QStringLiteral("selectionForPopUp:withKey:")),
            QStringLiteral("selectionForPopUp_withKey"));
  EXPECT_EQ(methodName(QStringLiteral("willShow")), QStringLiteral("willShow"));
  EXPECT_EQ(methodName(QString()), QString());
}

}  // namespace
}  // namespace orvek::test
