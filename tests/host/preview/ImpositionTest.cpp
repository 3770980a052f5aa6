// SPDX-License-Identifier: Apache-2.0
// Page order and geometry of booklets.

#include "host/preview/Imposition.h"

#include <gtest/gtest.h>

#include <QSet>
#include <numeric>

namespace orvek::test {
namespace {

QList<int> document(int pages) {
  QList<int> all(pages);
  std::iota(all.begin(), all.end(), 1);
  return all;
}

TEST(Imposition, PutsTheLastPageBesideTheFirstOnTheOutermostSheet) {
  const QList<ImposedSheet> sheets = imposeBooklet(document(8), {});
  ASSERT_EQ(sheets.size(), 2);
  EXPECT_EQ(sheets[0].front, (ImposedSide{8, 1}));
  EXPECT_EQ(sheets[0].back, (ImposedSide{2, 7}));
  EXPECT_EQ(sheets[1].front, (ImposedSide{6, 3}));
  EXPECT_EQ(sheets[1].back, (ImposedSide{4, 5}));
}

TEST(Imposition, SwapsTheHalvesForBooksReadFromTheRight) {
  BookletSettings booklet;
  booklet.rightToLeft = true;
  const QList<ImposedSheet> sheets = imposeBooklet(document(4), booklet);
  ASSERT_EQ(sheets.size(), 1);
  EXPECT_EQ(sheets[0].front, (ImposedSide{1, 4}));
  EXPECT_EQ(sheets[0].back, (ImposedSide{3, 2}));
}

TEST(Imposition, LeavesTheHalvesEmptyThatTheDocumentDoesNotFill) {
  const QList<ImposedSheet> sheets = imposeBooklet(document(5), {});
  ASSERT_EQ(sheets.size(), 2);
  EXPECT_EQ(sheets[0].front, (ImposedSide{0, 1}));
  EXPECT_EQ(sheets[0].back, (ImposedSide{2, 0}));
  EXPECT_EQ(sheets[1].front, (ImposedSide{0, 3}));
  EXPECT_EQ(sheets[1].back, (ImposedSide{4, 5}));
}

TEST(Imposition, TakesOnePageAndNone) {
  EXPECT_TRUE(imposeBooklet({}, {}).isEmpty());
  EXPECT_EQ(imposeBooklet({3}, {}),
            (QList<ImposedSheet>{{ImposedSide{0, 3}, ImposedSide{0, 0}, 0}}));
}

TEST(Imposition, PlacesEveryPageOnce) {
  for (int pages = 1; pages <= 100; ++pages) {
    QList<int> seen;
    for (const ImposedSheet &sheet : imposeBooklet(document(pages), {})) {
      seen << sheet.front.left << sheet.front.right << sheet.back.left << sheet.back.right;
    }
    seen.removeAll(0);
    std::sort(seen.begin(), seen.end());
    EXPECT_EQ(seen, document(pages));
  }
}

TEST(Imposition, LetsCreepGrowFromTheOutermostToTheInnermostSheet) {
  BookletSettings booklet;
  booklet.creep = 12;
  const QList<ImposedSheet> sheets = imposeBooklet(document(12), booklet);
  ASSERT_EQ(sheets.size(), 3);
  EXPECT_DOUBLE_EQ(sheets[0].creep, 0);
  EXPECT_DOUBLE_EQ(sheets[1].creep, 6);
  EXPECT_DOUBLE_EQ(sheets[2].creep, 12);
}

TEST(Imposition, GivesASingleSheetNoCreep) {
  BookletSettings booklet;
  booklet.creep = -36;
  EXPECT_DOUBLE_EQ(imposeBooklet(document(4), booklet)[0].creep, 0);
}

TEST(SideLayout, KeepsHalfTheGutterFreeOnEitherSideOfTheFold) {
  const SideLayout layout = layOutSide({400, 600}, {600, 800}, 40, 0);
  EXPECT_EQ(layout.sheet, QSizeF(800, 600));
  EXPECT_LE(layout.left.right(), 380 + 1e-9);
  EXPECT_GE(layout.right.left(), 420 - 1e-9);
  EXPECT_DOUBLE_EQ(layout.left.width() / layout.left.height(), 400.0 / 600.0);
}

TEST(SideLayout, MovesBothPagesTowardsTheFoldByTheCreep) {
  const SideLayout still = layOutSide({595, 842}, {842, 595}, 24, 0);
  const SideLayout moved = layOutSide({595, 842}, {842, 595}, 24, 5);
  EXPECT_DOUBLE_EQ(moved.left.x(), still.left.x() + 5);
  EXPECT_DOUBLE_EQ(moved.right.x(), still.right.x() - 5);
}

TEST(SideLayout, SurvivesAGutterWiderThanThePaper) {
  const SideLayout layout = layOutSide({595, 842}, {100, 50}, 144, 0);
  EXPECT_EQ(layout.sheet, QSizeF(100, 50));
  EXPECT_LE(layout.left.width(), 0);
}

}  // namespace
}  // namespace orvek::test
