// SPDX-License-Identifier: Apache-2.0
// Pop-up menus: absent titles, missing indexes, items that carry objects.

#include "platform/ui/PopUps.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QSignalSpy>

#include "platform/system/PDEObject.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class Record : public PDEObject {
 public:
  QString description() const override { return QStringLiteral("a record"); }
};

class PopUpsTest : public testing::Test {
 protected:
  void fill() {
    for (const char *title : {"None", "Fold", "Saddle"}) {
      addItem(&popUp, {.title = QString::fromLatin1(title)});
    }
  }
  QComboBox popUp;
};

TEST_F(PopUpsTest, SelectsTheFirstItemOfAnEmptyMenuByItself) {
  EXPECT_EQ(indexOfSelectedItem(&popUp), noItem);
  fill();
  EXPECT_EQ(indexOfSelectedItem(&popUp), 0);
  EXPECT_EQ(numberOfItems(&popUp), 3);
}

TEST_F(PopUpsTest, SelectsByIndex) {
  fill();
  selectItemAtIndex(&popUp, 2);
  EXPECT_EQ(indexOfSelectedItem(&popUp), 2);
}

TEST_F(PopUpsTest, KeepsItsSelectionWhenAskedForAnIndexItLacks) {
  fill();
  selectItemAtIndex(&popUp, 1);
  for (const int missing : {3, 1000, -2}) {
    selectItemAtIndex(&popUp, missing);
    EXPECT_EQ(indexOfSelectedItem(&popUp), 1) << missing;
  }
}

TEST_F(PopUpsTest, DeselectsOnMinusOne) {
  fill();
  selectItemAtIndex(&popUp, noItem);
  EXPECT_EQ(indexOfSelectedItem(&popUp), -1);
}

TEST_F(PopUpsTest, SelectsNothingInAnEmptyMenu) {
  selectItemAtIndex(&popUp, 0);
  EXPECT_EQ(indexOfSelectedItem(&popUp), noItem);
}

TEST_F(PopUpsTest, SelectsTheFirstItemWithExactlyTheTitle) {
  fill();
  addItem(&popUp, {.title = QStringLiteral("Fold")});
  selectItemWithTitle(&popUp, QStringLiteral("Fold"));
  EXPECT_EQ(indexOfSelectedItem(&popUp), 1);
}

TEST_F(PopUpsTest, KeepsItsSelectionWhenNoTitleMatches) {
  fill();
  selectItemAtIndex(&popUp, 1);
  for (const char *title : {"saddle", "Sadd", "", "Saddle "}) {
    selectItemWithTitle(&popUp, QString::fromLatin1(title));
    EXPECT_EQ(indexOfSelectedItem(&popUp), 1) << title;
  }
}

TEST_F(PopUpsTest, KeepsAnAbsentTitleApartFromAnEmptyOne) {
  addItem(&popUp, {.title = QStringLiteral("")});
  addItem(&popUp, {.title = QString()});
  EXPECT_FALSE(itemTitle(&popUp, 0).isNull());
  EXPECT_TRUE(itemTitle(&popUp, 1).isNull());
  selectItemWithTitle(&popUp, QString());
  EXPECT_EQ(indexOfSelectedItem(&popUp), 1);
  selectItemWithTitle(&popUp, QStringLiteral(""));
  EXPECT_EQ(indexOfSelectedItem(&popUp), 0);
}

TEST_F(PopUpsTest, HasNoTitleForAMissingItem) {
  fill();
  EXPECT_TRUE(itemTitle(&popUp, 3).isNull());
  EXPECT_TRUE(itemTitle(&popUp, -1).isNull());
}

TEST_F(PopUpsTest, ShowsAmpersandsInTitlesAsTheyAre) {
  addItem(&popUp, {.title = QStringLiteral("Fold & Staple")});
  EXPECT_EQ(itemTitle(&popUp, 0), QStringLiteral("Fold & Staple"));
  EXPECT_EQ(popUp.itemText(0), QStringLiteral("Fold & Staple"));
}

TEST_F(PopUpsTest, KnowsItemsThatTheInterfaceResourceBrought) {
  popUp.addItem(QStringLiteral("From the resource"));
  EXPECT_EQ(itemTitle(&popUp, 0), QStringLiteral("From the resource"));
  EXPECT_EQ(representedObject(&popUp, 0), nullptr);
  EXPECT_TRUE(itemIdentifier(&popUp, 0).isNull());
}

TEST_F(PopUpsTest, CarriesObjectsAndIdentifiersWithItems) {
  const Record record;
  addItem(&popUp, {.title = QStringLiteral("Saddle fold"),
                   .representedObject = &record,
                   .identifier = QStringLiteral("Saddle")});
  addItem(&popUp, {.title = QStringLiteral("plain")});
  EXPECT_EQ(representedObject(&popUp, 0), &record);
  EXPECT_EQ(itemIdentifier(&popUp, 0), QStringLiteral("Saddle"));
  EXPECT_EQ(representedObject(&popUp, 1), nullptr);
  EXPECT_TRUE(itemIdentifier(&popUp, 1).isNull());
  EXPECT_EQ(representedObject(&popUp, 2), nullptr);
  EXPECT_TRUE(itemIdentifier(&popUp, -1).isNull());
}

TEST_F(PopUpsTest, IsEmptyAfterAllItemsWereRemoved) {
  fill();
  removeAllItems(&popUp);
  EXPECT_EQ(numberOfItems(&popUp), 0);
  EXPECT_EQ(indexOfSelectedItem(&popUp), noItem);
  fill();
  EXPECT_EQ(indexOfSelectedItem(&popUp), 0);
}

TEST_F(PopUpsTest, DisablesAndEnablesSingleItems) {
  fill();
  setItemEnabled(&popUp, 1, false);
  EXPECT_TRUE(isItemEnabled(&popUp, 0));
  EXPECT_FALSE(isItemEnabled(&popUp, 1));
  setItemEnabled(&popUp, 1, true);
  EXPECT_TRUE(isItemEnabled(&popUp, 1));
}

TEST_F(PopUpsTest, SkipsItemsItLacksAndReadsThemAsDisabled) {
  fill();
  setItemEnabled(&popUp, 3, false);
  setItemEnabled(&popUp, -1, false);
  EXPECT_FALSE(isItemEnabled(&popUp, 3));
  EXPECT_FALSE(isItemEnabled(&popUp, -1));
  for (int i = 0; i < 3; ++i) EXPECT_TRUE(isItemEnabled(&popUp, i)) << i;
}

TEST_F(PopUpsTest, CanSelectADisabledItemByCode) {
  fill();
  setItemEnabled(&popUp, 2, false);
  selectItemAtIndex(&popUp, 2);
  EXPECT_EQ(indexOfSelectedItem(&popUp), 2);
}

TEST_F(PopUpsTest, EnablesItsItemsByItselfUnlessToldNotTo) {
  EXPECT_TRUE(autoenablesItems(&popUp));
  setAutoenablesItems(&popUp, false);
  EXPECT_FALSE(autoenablesItems(&popUp));
  setAutoenablesItems(&popUp, true);
  EXPECT_TRUE(autoenablesItems(&popUp));
}

TEST_F(PopUpsTest, SignalsNothingWhenCodeChangesIt) {
  const QSignalSpy activated(&popUp, &QComboBox::activated);
  const QSignalSpy changed(&popUp, &QComboBox::currentIndexChanged);
  fill();
  selectItemAtIndex(&popUp, 2);
  selectItemWithTitle(&popUp, QStringLiteral("Fold"));
  selectItemAtIndex(&popUp, noItem);
  removeAllItems(&popUp);
  EXPECT_EQ(activated.count(), 0);
  EXPECT_EQ(changed.count(), 0);
}

}  // namespace
}  // namespace orvek::test
