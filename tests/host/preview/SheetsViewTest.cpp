// SPDX-License-Identifier: Apache-2.0
// Which pages the view has rendered, and in which order; and how long a renderer may take. The
// renderer is one of the test's own.

#include "host/preview/SheetsView.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTest>
#include <algorithm>
#include <cstdlib>

#include "tests/support/OwnTool.h"

namespace orvek {
namespace {

constexpr int patience = 20000;

/// While it lives these lines of a shell are run in the renderer's place.
class OwnRenderer : public test::OwnTool {
 public:
  explicit OwnRenderer(const QByteArray &lines) : OwnTool(QStringLiteral("pdftoppm"), lines) {}

  /// The numbers written to "pages" since it was asked last.
  QList<int> takePages() {
    QList<int> pages;
    for (const QByteArray &line : takeLines(QStringLiteral("pages"))) pages << line.toInt();
    return pages;
  }
};

DocumentPages documentOf(int pages) {
  DocumentPages document;
  document.pages = QList<DocumentPage>(pages, DocumentPage{QSizeF(300, 400), {0, 0, 1, 1}, 0});
  document.pdf = QStringLiteral("any.pdf");
  return document;
}

/// A page on each.
SheetsView::Sides sidesOf(int count) {
  SheetsView::Sides sides;
  for (int number = 1; number <= count; ++number) {
    imposition::PrintedSide side;
    side.sheet = number;
    side.size = {300, 400};
    imposition::PlacedPage page;
    page.page = number;
    page.frame = page.clip = {0, 0, 300, 400};
    side.pages = {page};
    sides.push_back(side);
  }
  return sides;
}

/// Two are rendered at a time, so that neighbours may change places.
void expectOrder(const QList<int> &rendered, const QList<int> &expected) {
  QList<int> sorted = rendered;
  QList<int> all = expected;
  std::sort(sorted.begin(), sorted.end());
  std::sort(all.begin(), all.end());
  ASSERT_EQ(sorted, all);
  for (qsizetype place = 0; place < expected.size(); ++place) {
    EXPECT_LE(std::abs(rendered.indexOf(expected[place]) - place), 1) << "page " << expected[place];
  }
}

class SheetsViewTest : public testing::Test {
 protected:
  void SetUp() override {
    pictures.setDocument(documentOf(40));
    view.resize(200, 300);
    view.show();
  }

  bool waitUntilIdle() {
    return QTest::qWaitFor([this] { return pictures.isIdle(); }, patience);
  }

  // Fails: a page that can't be shown is not asked for again. Two are at work at once; each lasts
  // long enough for a late start not to be overtaken by many.
  OwnRenderer renderer{"echo \"$3\" >>pages\nsleep 0.1\n"};
  PagePictures pictures;
  SheetsView view{pictures};
};

TEST_F(SheetsViewTest, WishesForWhatIsSeenThenForWhatComesNextThenForWhatCameBefore) {
  view.setSides(sidesOf(40));
  ASSERT_TRUE(waitUntilIdle());
  expectOrder(renderer.takePages(), {1, 2, 3, 4, 5});
  view.setCurrent(19);
  ASSERT_TRUE(waitUntilIdle());
  expectOrder(renderer.takePages(), {20, 21, 22, 23, 24, 19, 18});
}

TEST_F(SheetsViewTest, WishesForNothingBeyondTheLastSide) {
  view.setSides(sidesOf(3));
  ASSERT_TRUE(waitUntilIdle());
  expectOrder(renderer.takePages(), {1, 2, 3});
}

TEST(Renderer, HasTenSecondsForAPageAndNoMore) {
  const OwnRenderer renderer("exec sleep 60\n");
  const std::atomic<bool> never = false;
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(renderPage(documentOf(1), 1, QSize(30, 40), never));
  EXPECT_GE(clock.elapsed(), 9000);
  EXPECT_LT(clock.elapsed(), 15000);
}

}  // namespace
}  // namespace orvek
