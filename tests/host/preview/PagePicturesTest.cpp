// SPDX-License-Identifier: Apache-2.0
// Pictures come from the real renderer, in the background, and within bounds.

#include "host/preview/PagePictures.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include "tests/support/NumberedPages.h"

namespace orvek {
namespace {

constexpr int patience = 20000;
const std::atomic<bool> never = false;

class PagePicturesTest : public testing::Test {
 protected:
  DocumentPages document(const QList<test::NumberedPage> &pages) {
    const QString path = m_folder.filePath(QStringLiteral("document.pdf"));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(test::numberedPdf(pages));
    file.close();
    return readDocumentPages(path, {}, never).take();
  }

  DocumentPages document(int pages) {
    return document(QList<test::NumberedPage>(pages, {QSizeF(300, 400), 0, {}, {}}));
  }

  bool waitUntilIdle() {
    return QTest::qWaitFor([this] { return pictures.isIdle(); }, patience);
  }

  QTemporaryDir m_folder;
  PagePictures pictures;
};

TEST_F(PagePicturesTest, HaveTheSizeThatWasAskedFor) {
  pictures.setDocument(document(2));
  pictures.want({{1, QSize(150, 200)}, {2, QSize(75, 100)}});
  EXPECT_FALSE(pictures.isIdle());
  ASSERT_TRUE(waitUntilIdle());
  EXPECT_EQ(pictures.picture(1).size(), QSize(150, 200));
  EXPECT_EQ(pictures.picture(2).size(), QSize(75, 100));
  EXPECT_EQ(qRed(pictures.picture(2).pixel(40, 90)), 12);
}

TEST_F(PagePicturesTest, ShowThePrintedPartOfAPage) {
  pictures.setDocument(document({{QSizeF(400, 400), 0, QRectF(200, 200, 200, 100), {}}}));
  pictures.want({{1, QSize(100, 50)}});
  ASSERT_TRUE(waitUntilIdle());
  EXPECT_EQ(pictures.picture(1).size(), QSize(100, 50));
  for (const QPoint corner : {QPoint(2, 2), QPoint(97, 2), QPoint(2, 47), QPoint(97, 47)}) {
    EXPECT_EQ(qRed(pictures.picture(1).pixel(corner)), 6);
  }
}

TEST_F(PagePicturesTest, KeepTheProportionsOfPagesThatTheDocumentTurns) {
  for (const int turn : {90, 180, 270}) {
    const bool lies = turn != 180;
    pictures.setDocument(document({{QSizeF(300, 400), turn, {}, {}}}));
    const QSize size = lies ? QSize(200, 150) : QSize(150, 200);
    pictures.want({{1, size}});
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_EQ(pictures.picture(1).size(), size) << turn;
    const Result<QImage> drawn =
        renderPage(document({{QSizeF(300, 400), turn, {}, {}}}), 1, size, never);
    ASSERT_TRUE(drawn.ok());
    EXPECT_EQ(drawn.value().size(), size) << turn;
  }
}

TEST_F(PagePicturesTest, GiveUpPagesThatCannotBeRendered) {
  DocumentPages broken = document(1);
  broken.pages << DocumentPage{QSizeF(300, 400), {0, 0, 1, 1}};  // the file has one page
  pictures.setDocument(broken);
  pictures.want({{2, QSize(30, 40)}, {1, QSize(30, 40)}});
  ASSERT_TRUE(waitUntilIdle());
  EXPECT_TRUE(pictures.picture(2).isNull());
  EXPECT_FALSE(pictures.picture(1).isNull());
  pictures.want({{2, QSize(30, 40)}});
  EXPECT_TRUE(pictures.isIdle());
}

TEST_F(PagePicturesTest, StayWithinTheirBound) {
  pictures.setDocument(document(40));
  for (int first = 1; first <= 40; first += 10) {
    QList<PageWish> wishes;
    for (int page = first; page < first + 10; ++page) wishes << PageWish{page, QSize(900, 1200)};
    pictures.want(wishes);
    ASSERT_TRUE(waitUntilIdle());
    EXPECT_LE(pictures.kept(), 64 << 10);
  }
  EXPECT_TRUE(pictures.picture(1).isNull());
  EXPECT_FALSE(pictures.picture(40).isNull());
}

TEST_F(PagePicturesTest, ComeAllTheSameWhereAWishIsTakenBackAndMadeAgain) {
  pictures.setDocument(document(3));
  for (int i = 0; i < 5; ++i) {
    pictures.want({{1, QSize(150, 200)}, {2, QSize(150, 200)}});
    pictures.want({{3, QSize(150, 200)}});
  }
  pictures.want({{1, QSize(150, 200)}});
  ASSERT_TRUE(waitUntilIdle());
  EXPECT_FALSE(pictures.picture(1).isNull());
}

TEST_F(PagePicturesTest, AreForgottenWithTheirDocument) {
  pictures.setDocument(document(1));
  pictures.want({{1, QSize(30, 40)}});
  ASSERT_TRUE(waitUntilIdle());
  pictures.want({{1, QSize(60, 80)}});
  pictures.setDocument({});
  EXPECT_TRUE(pictures.isIdle());
  QTest::qWait(100);
  EXPECT_TRUE(pictures.picture(1).isNull());
}

TEST_F(PagePicturesTest, OfHugePagesStaySmall) {
  const auto huge =
      renderPage(document({{QSizeF(14400, 14400), 0, {}, {}}}), 1, QSize(100000, 100000), never);
  ASSERT_TRUE(huge);
  EXPECT_LE(huge.value().sizeInBytes(), 25 << 20);
}

}  // namespace
}  // namespace orvek
