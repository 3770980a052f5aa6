// SPDX-License-Identifier: Apache-2.0
// Notices: how long they stand, and what their Undo takes back.

#include <QLabel>

#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Notices : public DialogTest {
 protected:
  void SetUp() override { open(); }

  void pressIn(const char *popUp, Qt::Key key) const {
    auto *menu = find<QComboBox>(popUp);
    menu->setFocus();
    QTest::keyClick(menu, key);
    QCoreApplication::processEvents();
  }

  /// A saddle fold, then a staple, which turns it off.
  void unfoldByAStaple() const {
    pressIn("foldingPopup", Qt::Key_End);
    pressIn("staplingPopup", Qt::Key_Down);
  }

  QString folding() const { return session->marks().marked(QStringLiteral("OVKFolding")); }
  QString stapling() const { return session->marks().marked(QStringLiteral("OVKStapling")); }
  QString said() const { return notices().sentences().join(u'\n'); }

  /// The fold, and with it what came after that.
  void expectThatUndoBringsTheFoldBack() {
    EXPECT_EQ(find<QPushButton>("undoButton")->text(), "&Undo 2 steps");
    click("undoButton");
    EXPECT_EQ(folding(), "Saddle");
    EXPECT_EQ(stapling(), "None");
    EXPECT_FALSE(notices().isVisible());
  }
};

TEST_F(Notices, StandWhenTheNextChoiceIsMade) {
  unfoldByAStaple();
  ASSERT_TRUE(notices().isVisible());
  ASSERT_EQ(folding(), "None");
  const QString first = said();
  pressIn("staplingPopup", Qt::Key_Down);
  EXPECT_TRUE(notices().isVisible());
  EXPECT_EQ(said(), first);
  expectThatUndoBringsTheFoldBack();
}

TEST_F(Notices, KeepTheirUndoWhenAnotherOneComes) {
  unfoldByAStaple();
  const QString first = said();
  pressIn("foldingPopup", Qt::Key_End);
  ASSERT_EQ(stapling(), "None");
  EXPECT_NE(said(), first);
  EXPECT_EQ(find<QLabel>("noticePlace")->text(), "2 of 2");
  click("noticeEarlier");
  EXPECT_EQ(said(), first);
  expectThatUndoBringsTheFoldBack();
}

TEST_F(Notices, GiveWayToTheOneBeforeWhenDismissed) {
  unfoldByAStaple();
  const QString first = said();
  pressIn("foldingPopup", Qt::Key_End);
  click("noticeCloseButton");
  EXPECT_EQ(said(), first);
  EXPECT_FALSE(find<QLabel>("noticePlace")->isVisible());
  click("noticeCloseButton");
  EXPECT_FALSE(notices().isVisible());
  EXPECT_EQ(folding(), "Saddle");
}

TEST_F(Notices, GoWithTheirCauseAndComeBackWithIt) {
  unfoldByAStaple();
  const QString first = said();
  QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(notices().isVisible());
  QTest::keyClick(dialog.get(), Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(said(), first);
  EXPECT_EQ(folding(), "None");
}

TEST_F(Notices, OfARefusalOfferNothingToTakeBack) {
  session->pick(QStringLiteral("OVKPunching"), QStringLiteral("2"));
  session->pick(QStringLiteral("OVKOptionFinisher"), QStringLiteral("False"));
  click("noticeCloseButton");
  session->pick(QStringLiteral("OVKStapling"), QStringLiteral("Front"));
  ASSERT_TRUE(notices().isVisible());
  EXPECT_FALSE(find<QPushButton>("undoButton")->isVisible());
}

TEST_F(Notices, AboutAJobGoWithTheNextOne) {
  dialog.reset();
  outputFile = folder.filePath(QStringLiteral("missing/out.ps"));
  open();
  unfoldByAStaple();
  const QString conflict = said();
  click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return said() != conflict; }, jobTimeout));
  EXPECT_EQ(find<QLabel>("noticePlace")->text(), "2 of 2");
  EXPECT_FALSE(find<QPushButton>("undoButton")->isVisible());
  click("noticeEarlier");
  EXPECT_EQ(said(), conflict);
}

}  // namespace
