// SPDX-License-Identifier: Apache-2.0
// The window's size: chosen once, and kept.

#include <QLabel>
#include <QTabWidget>

#include "host/preview/JobPreview.h"
#include "tests/host/dialog/ScreenKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

// Before there is an application, which reads it.
[[gnu::constructor]] void askForScreens() {
  if (qEnvironmentVariable("QT_QPA_PLATFORM", "offscreen") == QLatin1String("offscreen")) {
    qputenv("QT_QPA_PLATFORM",
            "offscreen:configfile=" ORVEK_SOURCE_DIR "/tests/host/dialog/screens.json");
  }
}

class Room : public ScreenTest {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    prepare = [](DialogSetup &setup) {
      setup.document =
          documentInfo(QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"));
    };
  }

  // With all that comes after the first paint.
  void openWhole() {
    open();
    const auto *preview = dialog->findChild<JobPreview *>();
    ASSERT_TRUE(QTest::qWaitFor([&] { return preview->isComplete(); }, jobTimeout));
    settle();
  }

  QRect placeOf(const char *name) const {
    auto *widget = find<QWidget>(name);
    return {widget->mapTo(dialog.get(), QPoint()), widget->size()};
  }

  bool isWhole(const char *name) const {
    auto *widget = find<QWidget>(name);
    return widget->visibleRegion().boundingRect() == widget->rect();
  }
};

TEST_F(Room, StaysAsItIsWithTheBookletOpenAndShowsAllOfIt) {
  openWhole();
  const QSize before = dialog->size();
  EXPECT_LE(before.width(), 1280);
  EXPECT_LE(before.height(), 720 - 40);  // a title bar takes its share
  const QRect preview = placeOf("previewSheets");
  click("bookletChckBox");
  ASSERT_TRUE(QTest::qWaitFor([&] { return find<QWidget>("bookletView")->isVisible(); }));
  settle();
  EXPECT_EQ(dialog->size(), before);
  EXPECT_EQ(placeOf("previewSheets"), preview);
  EXPECT_TRUE(isWhole("pdeView"));
}

TEST_F(Room, StaysAsItIsWhicheverPageIsShown) {
  openWhole();
  const QSize before = dialog->size();
  auto *pages = find<QTabWidget>("pages");
  const QRect place = placeOf("pages");
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    settle();
    EXPECT_EQ(dialog->size(), before) << page;
    EXPECT_EQ(placeOf("pages"), place) << page;
  }
}

TEST_F(Room, HasANoticeBesideTheButtonsWhereNothingMovesForIt) {
  openWhole();
  const QSize before = dialog->size();
  const QRect pages = placeOf("pages");
  const QRect preview = placeOf("previewSheets");
  const QRect print = placeOf("printButton");
  notices().say({.sentences = {QStringLiteral("Folding was set to Off")},
                 .takesBack = {QStringLiteral("Folding: Saddle fold")}},
                true);
  ASSERT_TRUE(QTest::qWaitFor([&] { return notices().isVisible(); }));
  settle();
  EXPECT_EQ(dialog->size(), before);
  EXPECT_EQ(placeOf("pages").topLeft(), pages.topLeft());
  EXPECT_LE(pages.height() - placeOf("pages").height(), 16);
  EXPECT_LE(preview.height() - placeOf("previewSheets").height(), 16);
  EXPECT_LE(std::abs(print.y() - placeOf("printButton").y()), 8);
  EXPECT_TRUE(isWhole("noticeBar"));
}

TEST_F(Room, LeavesTheButtonsOnTheScreenHoweverLongANoticeIs) {
  screen = screenOf(QStringLiteral("800x600"));
  openWhole();
  const QSize before = dialog->size();
  QStringList sentences;
  for (int i = 0; i < 30; ++i) sentences << QStringLiteral("This option is not what it was");
  notices().say({.sentences = sentences}, true);
  settle();
  EXPECT_EQ(dialog->size(), before);
  EXPECT_TRUE(isWhole("printButton"));
  EXPECT_TRUE(isWhole("cancelButton"));
  EXPECT_GE(find<QWidget>("pages")->visibleRegion().boundingRect().height(), 80);
}

TEST_F(Room, IsTheSameForAPrinterThatFinishesNothing) {
  openWhole();
  const QSize before = dialog->size();
  dialog.reset();
  auto begun = openSession(QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/values.ppd"));
  ASSERT_TRUE(begun);
  session = begun.take();
  showWindow();
  EXPECT_EQ(dialog->size(), before);
}

TEST_F(Room, IsTheUsersOnceHeChoseIt) {
  openWhole();
  dialog->resize(1100, 660);
  dialog->hide();
  dialog->show();
  settle();
  EXPECT_EQ(dialog->size(), QSize(1100, 660));
}

TEST_F(Room, GoesToThePreviewOnALargeScreen) {
  screen = screenOf(QStringLiteral("3840x2160"));
  openWhole();
  const QSize usual = find<QWidget>("previewSheets")->size();
  const int pages = find<QWidget>("pages")->width();
  const QSize popUp = find<QWidget>("foldingPopup")->size();
  dialog->resize(1900, 1000);
  settle();
  EXPECT_GE(find<QWidget>("previewSheets")->width(), 2 * usual.width());
  EXPECT_GE(find<QWidget>("previewSheets")->height(), 1.5 * usual.height());
  EXPECT_GE(find<QWidget>("pages")->width(), pages);
  EXPECT_EQ(find<QWidget>("foldingPopup")->size(), popUp);
  dialog->resize(3840, 2120);
  settle();
  EXPECT_GE(find<QWidget>("previewSheets")->height(), 1200);
  EXPECT_LE(find<QWidget>("pageRanges")->width(), 400);
}

}  // namespace
