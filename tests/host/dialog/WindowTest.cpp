// SPDX-License-Identifier: Apache-2.0
// The window itself: its size, its notices, and what happens to a job that fails.

#include <QFile>

#include "host/panels/PanelContainer.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Window : public DialogTest {};

TEST_F(Window, GrowsWithTheBookletSectionAndShrinksAgain) {
  open();
  const QSize closed = dialog->size();
  click("bookletChckBox");
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->height() > closed.height(); }));
  auto *view = find<QWidget>("pdeView");
  EXPECT_GE(view->mapTo(dialog.get(), QPoint()).x(), 0);
  EXPECT_LE(view->mapTo(dialog.get(), QPoint(0, view->height())).y(), dialog->height());
  click("bookletChckBox");
  EXPECT_TRUE(QTest::qWaitFor([&] { return dialog->size() == closed; }));
}

TEST_F(Window, KeepsTheSizeThatTheUserChose) {
  open();
  const QSize chosen = dialog->size() + QSize(120, 200);
  dialog->resize(chosen);
  QCoreApplication::processEvents();
  click("bookletChckBox");
  EXPECT_EQ(dialog->size(), chosen);
  click("bookletChckBox");
  EXPECT_EQ(dialog->size(), chosen);
}

TEST_F(Window, GivesThePreviewTheRoomOfALargeScreen) {
  open();
  const QSize usual = find<QWidget>("previewSheets")->size();
  const int pages = find<QWidget>("pages")->width();
  dialog->resize(1900, 1000);
  QCoreApplication::processEvents();
  EXPECT_GE(find<QWidget>("previewSheets")->width(), 2 * usual.width());
  EXPECT_GE(find<QWidget>("previewSheets")->height(), 2 * usual.height());
  EXPECT_GE(find<QWidget>("pages")->width(), pages);
}

TEST_F(Window, FitsASmallScreenWithTheBookletOpen) {
  open();
  const int closed = dialog->height();
  click("bookletChckBox");
  ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->height() > closed; }));
  EXPECT_LE(dialog->width(), 1280);
  EXPECT_LE(dialog->height(), 720 - 40);  // a title bar takes its share
}

TEST_F(Window, StaysOpenAndSaysWhyAJobFailed) {
  outputFile = folder.filePath(QStringLiteral("missing/out.ps"));
  open();
  click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notices().isVisible(); }, jobTimeout));
  EXPECT_TRUE(notices().sentences().first().contains(outputFile));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
}

TEST_F(Window, GivesThePanelBackWhenItGoes) {
  open();
  PanelContainer *container = session->panels().first()->container();
  dialog.reset();
  ASSERT_EQ(session->panels().first()->container(), container);
  EXPECT_EQ(container->parentWidget(), nullptr);
  showWindow();
  EXPECT_NE(find<QWidget>("pdeView"), nullptr);
}

}  // namespace
