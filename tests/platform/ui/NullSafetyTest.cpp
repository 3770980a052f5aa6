// SPDX-License-Identifier: Apache-2.0
// Absent objects are inert: each request to one does nothing and yields zero, false or nothing.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QSlider>

#include "platform/system/PDEObject.h"
#include "platform/ui/Actions.h"
#include "platform/ui/Bundle.h"
#include "platform/ui/Controls.h"
#include "platform/ui/Frames.h"
#include "platform/ui/InterfaceResource.h"
#include "platform/ui/PopUps.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

const QString text = QStringLiteral("text");

TEST(AnAbsentView, HasNoFrameAndTakesNone) {
  EXPECT_FALSE(onlyHoldsViews(nullptr));
  setFrame(nullptr, QRectF(1, 2, 3, 4));
  setFrameSize(nullptr, QSizeF(3, 4));
  EXPECT_EQ(frame(nullptr), QRectF());
  EXPECT_EQ(frameSize(nullptr), QSizeF(0, 0));
  EXPECT_EQ(pinnedEdge(nullptr), PinnedEdge::Top);
}

TEST(AnAbsentView, IsNeitherHiddenNorEnabled) {
  setHidden(nullptr, true);
  setEnabled(nullptr, true);
  EXPECT_FALSE(isHidden(nullptr));
  EXPECT_FALSE(isEnabled(nullptr));
}

TEST(AnAbsentControl, HasNoTitleAndTakesNone) {
  setTitle(nullptr, text);
  setTitleWithMnemonic(nullptr, text);
  EXPECT_TRUE(displayedTitle(nullptr).isNull());
}

TEST(AnAbsentCheckBox, IsOff) {
  setState(nullptr, stateOn);
  EXPECT_EQ(state(nullptr), stateOff);
}

TEST(AnAbsentSlider, StandsAtZeroWithoutText) {
  QSlider *const slider = nullptr;
  setIntValue(slider, 12);
  EXPECT_EQ(intValue(slider), 0);
  EXPECT_TRUE(stringValue(slider).isNull());
}

TEST(AnAbsentTextField, HasNoText) {
  QLineEdit *const field = nullptr;
  setStringValue(field, text);
  setIntValue(field, 12);
  notifyTextDidChange(field);
  EXPECT_TRUE(stringValue(field).isNull());
}

TEST(AnAbsentImageView, ShowsNothing) {
  setImage(nullptr, text);
  EXPECT_TRUE(imageName(nullptr).isNull());
}

TEST(AnAbsentPopUp, HasNoItems) {
  removeAllItems(nullptr);
  addItem(nullptr, {.title = text});
  selectItemAtIndex(nullptr, 0);
  selectItemAtIndex(nullptr, noItem);
  selectItemWithTitle(nullptr, text);
  setItemEnabled(nullptr, 0, true);
  setAutoenablesItems(nullptr, true);
  EXPECT_EQ(numberOfItems(nullptr), 0);
  EXPECT_EQ(indexOfSelectedItem(nullptr), 0);
  EXPECT_TRUE(itemTitle(nullptr, 0).isNull());
  EXPECT_TRUE(itemIdentifier(nullptr, 0).isNull());
  EXPECT_EQ(representedObject(nullptr, 0), nullptr);
  EXPECT_FALSE(isItemEnabled(nullptr, 0));
  EXPECT_FALSE(autoenablesItems(nullptr));
}

TEST(AnAbsentControl, SendsNoAction) {
  sendAction(nullptr);
}

TEST(AnAbsentBundle, HasNothing) {
  EXPECT_TRUE(localizedString(nullptr, text).isNull());
  EXPECT_TRUE(pathForResource(nullptr, text, text).isNull());
  EXPECT_FALSE(infoDictionary(nullptr).has_value());
  QObject owner;
  EXPECT_FALSE(loadInterface(nullptr, text, &owner));
}

}  // namespace
}  // namespace orvek::test
