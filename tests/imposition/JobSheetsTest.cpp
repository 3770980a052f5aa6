// SPDX-License-Identifier: Apache-2.0
// Whole jobs, side by side, as they lie in one's hand.

#include "imposition/JobSheets.h"

#include <gtest/gtest.h>

#include <set>

namespace orvek::imposition {
namespace {

constexpr double tolerance = 1e-6;
constexpr Size a4{595, 842};
constexpr Size a4Across{842, 595};

SheetJob jobOn(Size paper) {
  SheetJob job;
  job.filters.paper = paper;
  job.filters.printable = {12, 12, paper.width - 24, paper.height - 24};
  return job;
}

std::vector<Size> document(int pages, Size size = a4) {
  return std::vector<Size>(static_cast<std::size_t>(pages), size);
}

std::vector<int> numbers(const PrintedSide &side) {
  std::vector<int> result;
  for (const PlacedPage &page : side.pages) result.push_back(page.page);
  return result;
}

Finishing stapled(Corner corner) {
  Finishing finishing;
  finishing.cornerStaple = corner;
  return finishing;
}

bool isLeft(const Mark &mark, const PrintedSide &side) {
  return mark.frame.x + mark.frame.width / 2 < side.size.width / 2;
}

bool isTop(const Mark &mark, const PrintedSide &side) {
  return mark.frame.y + mark.frame.height / 2 < side.size.height / 2;
}

TEST(JobSheets, HaveOneSideEachWhereTheJobIsOneSided) {
  const auto sides = printedSides(document(3), jobOn(a4));
  ASSERT_EQ(sides.size(), 3U);
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(sides[i].sheet, i + 1);
    EXPECT_EQ(sides[i].face, Face::Front);
    EXPECT_EQ(numbers(sides[i]), (std::vector<int>{i + 1}));
    EXPECT_EQ(sides[i].pages[0].frame, (Frame{0, 0, 595, 842}));
  }
  EXPECT_EQ(sheetCount(sides), 3);
}

TEST(JobSheets, PairSidesWhereTheJobIsTwoSided) {
  SheetJob job = jobOn(a4);
  job.twoSided = true;
  const auto sides = printedSides(document(3), job);
  ASSERT_EQ(sides.size(), 3U);
  EXPECT_EQ(sides[1].sheet, 1);
  EXPECT_EQ(sides[1].face, Face::Back);
  EXPECT_EQ(sides[2].sheet, 2);
  EXPECT_EQ(sheetCount(sides), 2);
}

TEST(JobSheets, AreHeldSuchThatTheFirstPageStandsUpright) {
  const auto sides = printedSides({{a4Across, a4}}, jobOn(a4));
  ASSERT_EQ(sides.size(), 2U);
  EXPECT_EQ(sides[0].size, a4Across);
  EXPECT_EQ(sides[0].pages[0].turn, 0);
  EXPECT_EQ(sides[0].pages[0].frame, (Frame{0, 0, 842, 595}));
  EXPECT_EQ(sides[1].size, a4);
}

TEST(JobSheets, SayHowOtherPagesAreTurnedAgainstTheFirst) {
  SheetJob job = jobOn(a4);
  job.filters.pagesPerSide = 2;
  const auto sides = printedSides({{a4, a4Across}}, job);
  ASSERT_EQ(sides.size(), 1U);
  EXPECT_EQ(sides[0].size, a4Across);
  EXPECT_EQ(sides[0].pages[0].turn, 0);
  EXPECT_EQ(sides[0].pages[1].turn, 270);
  EXPECT_LT(sides[0].pages[0].frame.x, sides[0].pages[1].frame.x);
}

TEST(JobSheets, ShowABookletAsOneReadsIt) {
  SheetJob job = jobOn(a4);
  job.booklet.enabled = true;
  job.finishing.fold = "Saddle";
  job.finishing.stapledInFold = true;
  const auto sides = printedSides(document(8), job);
  ASSERT_EQ(sides.size(), 4U);
  EXPECT_EQ(numbers(sides[0]), (std::vector<int>{8, 1}));
  EXPECT_EQ(numbers(sides[1]), (std::vector<int>{2, 7}));
  EXPECT_EQ(numbers(sides[2]), (std::vector<int>{6, 3}));
  EXPECT_EQ(numbers(sides[3]), (std::vector<int>{4, 5}));
  for (const PrintedSide &side : sides) {
    EXPECT_EQ(side.size, a4Across);
    ASSERT_EQ(side.marks.size(), 2U);
    for (const Mark &mark : side.marks) {
      EXPECT_NEAR(mark.frame.x + mark.frame.width / 2, 421, tolerance);
    }
    EXPECT_EQ(side.folds, (std::vector<Line>{{421, 0, 421, 595}}));
  }
}

TEST(JobSheets, FoldABookletInTheMiddleWhateverTheFinisherDoes) {
  SheetJob job = jobOn(a4);
  job.booklet.enabled = true;
  for (const PrintedSide &side : printedSides(document(8), job)) {
    ASSERT_EQ(side.folds.size(), 1U);
    EXPECT_NEAR(side.folds[0].x1, side.size.width / 2, tolerance);
    EXPECT_NEAR(side.folds[0].x2, side.size.width / 2, tolerance);
  }
  job.booklet.enabled = false;
  EXPECT_TRUE(printedSides(document(8), job).at(0).folds.empty());
}

TEST(JobSheets, PlaceABookletsPagesAsItsImpositionDoes) {
  SheetJob job = jobOn(a4);
  job.booklet.enabled = true;
  job.booklet.gutter = 36;
  job.bookletPaper = {842, 1191};
  const auto sides = printedSides(document(4), job);
  const ImposedJob imposed = imposeBooklet(document(4), {842, 1191}, job.booklet);
  ASSERT_EQ(sides.size(), 2U);
  EXPECT_EQ(sides[0].size, imposed.side);
  for (std::size_t i = 0; i < 2; ++i) {
    const Frame &expected = imposed.sheets[0].front.pages[i].frame;
    const Frame &frame = sides[0].pages[i].frame;
    EXPECT_NEAR(frame.x, expected.x, tolerance);
    EXPECT_NEAR(frame.y, expected.y, tolerance);
    EXPECT_NEAR(frame.width, expected.width, tolerance);
    EXPECT_NEAR(frame.height, expected.height, tolerance);
  }
}

TEST(JobSheets, TurnABookletOfReversedPagesRound) {
  SheetJob job = jobOn(a4);
  job.booklet.enabled = true;
  job.filters.sides.reverse = true;
  job.filters.sides.ranges = {{2, 4}};
  const auto sides = printedSides(document(6), job);
  ASSERT_EQ(sides.size(), 2U);
  EXPECT_EQ(numbers(sides[0]), (std::vector<int>{4}));
  EXPECT_EQ(numbers(sides[1]), (std::vector<int>{3, 2}));
}

TEST(JobSheets, ShowAStapleOnTheBackWhereItComesThrough) {
  SheetJob job = jobOn(a4);
  job.twoSided = true;
  job.finishing = stapled(Corner::TopLeft);
  auto sides = printedSides(document(2), job);
  EXPECT_TRUE(isLeft(sides[0].marks.at(0), sides[0]));
  EXPECT_TRUE(isTop(sides[0].marks.at(0), sides[0]));
  EXPECT_FALSE(isLeft(sides[1].marks.at(0), sides[1]));
  EXPECT_TRUE(isTop(sides[1].marks.at(0), sides[1]));
  job.turnsOverShortEdge = true;
  sides = printedSides(document(2), job);
  EXPECT_TRUE(isLeft(sides[1].marks.at(0), sides[1]));
  EXPECT_FALSE(isTop(sides[1].marks.at(0), sides[1]));
}

// A wide page's top lies at the paper's left edge.
TEST(JobSheets, TurnMarksWithTheSide) {
  SheetJob job = jobOn(a4);
  job.finishing = stapled(Corner::TopLeft);
  const auto sides = printedSides({{a4Across}}, job);
  EXPECT_FALSE(isLeft(sides[0].marks.at(0), sides[0]));
  EXPECT_TRUE(isTop(sides[0].marks.at(0), sides[0]));
}

TEST(JobSheets, HoldABlankSideAsTheSheetsOtherSide) {
  SheetJob job = jobOn(a4);
  job.twoSided = true;
  job.filters.sides.reverse = true;
  const auto sides = printedSides({{a4Across}}, job);
  ASSERT_EQ(sides.size(), 2U);
  EXPECT_TRUE(sides[0].pages.empty());
  EXPECT_EQ(sides[0].size, a4Across);
}

TEST(JobSheets, PrintEveryPageOnce) {
  for (const int perSide : {1, 2, 4, 6, 9, 16}) {
    for (const bool isBooklet : {false, true}) {
      SheetJob job = jobOn(a4);
      job.booklet.enabled = isBooklet;
      job.filters.pagesPerSide = isBooklet ? 1 : perSide;
      std::multiset<int> seen;
      for (const PrintedSide &side : printedSides(document(37), job)) {
        for (const PlacedPage &page : side.pages) seen.insert(page.page);
      }
      EXPECT_EQ(seen.size(), 37U);
      for (int page = 1; page <= 37; ++page) EXPECT_EQ(seen.count(page), 1U);
    }
  }
}

TEST(JobSheets, ComeLastFirstWhereTheTrayWantsThem) {
  SheetJob job = jobOn(a4);
  job.isTurnedForTray = true;
  job.twoSided = true;
  const auto sides = printedSides(document(3), job);
  ASSERT_EQ(sides.size(), 4U);
  EXPECT_TRUE(sides[0].pages.empty());
  EXPECT_EQ(numbers(sides[1]), std::vector<int>{3});
  EXPECT_EQ(sides[1].face, Face::Back);
  EXPECT_EQ(numbers(sides[3]), std::vector<int>{1});
  job.booklet.enabled = true;
  EXPECT_EQ(numbers(printedSides(document(7), job)[0]), (std::vector<int>{4, 5}));
}

TEST(JobSheets, MakeNoPageOfTheBlankSideThatEvensAReversedJobOut) {
  SheetJob job = jobOn(a4);
  job.booklet.enabled = true;
  job.filters.sides.parity = Parity::Even;
  job.filters.sides.reverse = true;
  EXPECT_EQ(numbers(printedSides(document(6), job)[0]), std::vector<int>{6});
}

TEST(JobSheets, FollowTheFilterOfPostScriptWhereItIsIt) {
  SheetJob job = jobOn(a4);
  job.isScript = true;
  job.filters.pagesPerSide = 8;
  EXPECT_EQ(printedSides(document(3), job).size(), 3U);
  job.filters.pagesPerSide = 1;
  job.filters.turning = Turning::Landscape;
  const auto sides = printedSides(document(1), job);
  EXPECT_EQ(sides[0].size, a4Across);
  EXPECT_EQ(sides[0].pages[0].frame, (Frame{0, -247, 595, 842}));
}

TEST(JobSheets, AreAsManyAsCountedBeforehand) {
  for (int seed = 0; seed < 600; ++seed) {
    SheetJob job = jobOn(a4);
    job.twoSided = seed % 2 != 0;
    job.booklet.enabled = seed % 3 == 0;
    job.filters.pagesPerSide = job.booklet.enabled ? 1 : 1 + seed % 5;
    job.filters.booklet = seed % 7 == 0 ? OwnBooklet::Sides : OwnBooklet::Off;
    job.filters.sides.reverse = seed % 11 < 5;
    job.filters.sides.parity = seed % 13 == 0 ? Parity::Even : Parity::All;
    if (seed % 5 == 0) job.filters.sides.ranges = {{2, 3}, {5, 0}};
    const int pages = seed % 23;
    EXPECT_EQ(sheetsFor(pages, job), sheetCount(printedSides(document(pages), job))) << seed;
  }
}

TEST(JobSheets, AreNoneForNoPagesAndForRangesBeyondTheDocument) {
  EXPECT_TRUE(printedSides({}, jobOn(a4)).empty());
  SheetJob job = jobOn(a4);
  job.filters.sides.ranges = {{7, 9}};
  EXPECT_TRUE(printedSides(document(3), job).empty());
  EXPECT_EQ(sheetCount({}), 0);
}

}  // namespace
}  // namespace orvek::imposition
