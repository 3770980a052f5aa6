// SPDX-License-Identifier: Apache-2.0
// The picture itself: it changes with every key of the ticket, and it can be scrolled by keyboard.

#include "host/preview/BookletPreview.h"

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QTest>

#include "host/preview/SheetPainter.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class BookletPreviewTest : public testing::Test {
 protected:
  void SetUp() override {
    SessionSetup setup;
    setup.printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
            .take();
    session = PrintSession::begin(setup).take();
    open(8);
  }

  void open(int pages) {
    preview = std::make_unique<BookletPreview>(*session, pages, QSizeF(595, 842));
    preview->resize(640, 600);
    preview->show();
    QCoreApplication::processEvents();
  }

  void write(const char *key, const QVariant &value) {
    {
      const ActionScope action(*session);
      session->ticket().setValue(QString::fromLatin1(key), value);
    }
    QCoreApplication::processEvents();
  }

  QImage picture() { return sheets()->viewport()->grab().toImage(); }
  QAbstractScrollArea *sheets() {
    return preview->findChild<QAbstractScrollArea *>("previewSheets");
  }
  QString caption() { return preview->findChild<QLabel *>("previewCaption")->text(); }

  std::unique_ptr<PrintSession> session;
  std::unique_ptr<BookletPreview> preview;
};

TEST_F(BookletPreviewTest, ShowsWordsWhereThereIsNoBooklet) {
  EXPECT_FALSE(sheets()->isVisible());
  EXPECT_EQ(caption(), "Booklet printing is off: pages are printed one after the other.");
  write("OVKEnableBooklet", "True");
  EXPECT_TRUE(sheets()->isVisible());
  EXPECT_EQ(caption(), "8 pages on 2 sheets · A4");
}

TEST_F(BookletPreviewTest, ChangesWithEveryKeyOfTheTicket) {
  write("OVKEnableBooklet", "True");
  QImage before = picture();
  const QList<std::pair<const char *, QVariant>> changes{{"OVKRightToLeft", "True"},
                                                         {"OVKPrintPageBorders", "True"},
                                                         {"OVKGutter", "96"},
                                                         {"OVKCreep", "2"},
                                                         {"OVKTargetPaperSize", "8"}};
  for (const auto &[key, value] : changes) {
    write(key, value);
    const QImage after = picture();
    EXPECT_NE(before, after) << key;
    before = after;
  }
}

TEST_F(BookletPreviewTest, StaysAsItIsForOtherKeys) {
  write("OVKEnableBooklet", "True");
  const QImage before = picture();
  write("OVKAppName", "another");
  EXPECT_EQ(before, picture());
}

TEST_F(BookletPreviewTest, FollowsAControlThatWritesOutsideOfAnAction) {
  session->ticket().setValue("OVKEnableBooklet", "True");
  QCoreApplication::processEvents();
  EXPECT_TRUE(preview->state().booklet.enabled);
}

TEST_F(BookletPreviewTest, SaysWhatItShows) {
  write("OVKEnableBooklet", "True");
  EXPECT_EQ(sheets()->accessibleName(), "Booklet preview");
  EXPECT_EQ(sheets()->accessibleDescription(),
            "Sheet 1: front 8 and 1, back 2 and 7. Sheet 2: front 6 and 3, back 4 and 5");
  write("OVKCreep", "-3");
  write("OVKRightToLeft", "True");
  EXPECT_EQ(caption(),
            "8 pages on 2 sheets · A4 · read from right to left · creep shown 3 times as large");
}

TEST_F(BookletPreviewTest, SaysThatItShowsASample) {
  open(0);
  write("OVKEnableBooklet", "True");
  EXPECT_TRUE(caption().startsWith("The document's page count is not known"));
}

TEST_F(BookletPreviewTest, SaysThatNoPageIsPrinted) {
  write("OVKEnableBooklet", "True");
  JobSettings job;
  job.pageRanges = QStringLiteral("20-30");
  session->job().setSettings(job);
  EXPECT_EQ(caption(), "No page of the document is printed.");
  EXPECT_FALSE(sheets()->isVisible());
}

TEST_F(BookletPreviewTest, IsScrolledByKeyboard) {
  open(4000);
  write("OVKEnableBooklet", "True");
  sheets()->setFocus();
  QTest::keyClick(sheets(), Qt::Key_PageDown);
  const int after = sheets()->verticalScrollBar()->value();
  EXPECT_GT(after, 0);
  QTest::keyClick(sheets(), Qt::Key_Up);
  EXPECT_LT(sheets()->verticalScrollBar()->value(), after);
  QTest::keyClick(sheets(), Qt::Key_End);
  EXPECT_EQ(sheets()->verticalScrollBar()->value(), sheets()->verticalScrollBar()->maximum());
  QTest::keyClick(sheets(), Qt::Key_Home);
  EXPECT_EQ(sheets()->verticalScrollBar()->value(), 0);
}

// One side drawn by itself, so that single spots can be looked at.
QImage drawnSide(const ImposedSide &side, double creep, const BookletSettings &booklet) {
  PreviewState state;
  state.booklet = booklet;
  state.page = QSizeF(300, 400);
  state.paper = QSizeF(600, 400);
  QImage image(600, 400, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  paintSide(&painter, {QRectF(image.rect()), false}, side, creep, state);
  return image;
}

bool isPaper(const QImage &image, int x, int y) {
  return image.pixelColor(x, y) == QColor(Qt::white);
}

TEST(SheetPainter, LeavesAnEmptyHalfEmpty) {
  BookletSettings booklet;
  booklet.gutter = 0;
  const QImage image = drawnSide({0, 7}, 0, booklet);
  EXPECT_TRUE(isPaper(image, 20, 20));
  EXPECT_FALSE(isPaper(image, 580, 20));
}

TEST(SheetPainter, KeepsTheGutterFree) {
  BookletSettings booklet;
  booklet.gutter = 60;
  const QImage image = drawnSide({1, 2}, 0, booklet);
  EXPECT_TRUE(isPaper(image, 285, 100));
  EXPECT_TRUE(isPaper(image, 315, 100));
  booklet.gutter = 0;
  const QImage closed = drawnSide({1, 2}, 0, booklet);
  EXPECT_FALSE(isPaper(closed, 285, 100));
}

TEST(SheetPainter, MovesPagesByTheCreepLargerThanItIs) {
  BookletSettings booklet;
  booklet.gutter = 0;
  const QImage still = drawnSide({1, 2}, 0, booklet);
  const QImage moved = drawnSide({1, 2}, 5, booklet);
  EXPECT_FALSE(isPaper(still, 10, 100));
  EXPECT_TRUE(isPaper(moved, 10, 100));  // 5 points are 15 in the picture
  EXPECT_FALSE(isPaper(moved, 17, 100));
}

TEST(SheetPainter, DrawsBordersOnlyWhereTheyArePrinted) {
  BookletSettings booklet;
  const QImage without = drawnSide({1, 2}, 0, booklet);
  booklet.pageBorders = true;
  const QImage with = drawnSide({1, 2}, 0, booklet);
  EXPECT_NE(without, with);
  const SideLayout layout = layOutSide({300, 400}, {600, 400}, booklet.gutter, 0);
  const QPoint onBorder(static_cast<int>(layout.left.right()), 200);
  EXPECT_LT(with.pixelColor(onBorder).lightness(), without.pixelColor(onBorder).lightness());
}

}  // namespace
}  // namespace orvek::test
