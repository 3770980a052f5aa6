// SPDX-License-Identifier: Apache-2.0
// Booklets on paper, folded in thought. Preview and driver impose with the same code, so that they
// would agree in a fault, too: here the paper is held against what a booklet is.

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

#include "tests/chain/Agreement.h"
#include "tests/chain/CodedPages.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

constexpr double tolerance = 2;
constexpr int quarter = 90;
constexpr double longEdge = 842;
constexpr double shortEdge = 595;
constexpr double fold = longEdge / 2;

/// A booklet of A4 pages on A4 paper, the way its keys have it.
struct Wish {
  int pages = 0;
  int gutter = 24;
  int creep = 0;
  bool rightToLeft = false;
};

void PrintTo(const Wish &wish, std::ostream *stream) {
  *stream << wish.pages << " pages, gutter " << wish.gutter << ", creep " << wish.creep
          << (wish.rightToLeft ? ", from right to left" : "");
}

/// A side as it is held to read it, its long edge at the top.
SeenSide inHand(const SeenSide &fed) {
  EXPECT_NEAR(fed.paper.width, shortEdge, 1);
  EXPECT_NEAR(fed.paper.height, longEdge, 1);
  SeenSide side = turned(fed, quarter);
  for (const SeenPage &page : side.pages) EXPECT_EQ(page.turn, 0) << "page " << page.page;
  return side;
}

bool isLeft(const SeenPage &page) {
  return page.frame.x + page.frame.width / 2 < fold;
}

int pageOn(const SeenSide &side, bool left) {
  for (const SeenPage &page : side.pages) {
    if (isLeft(page) == left) return page.page;
  }
  return 0;
}

/// The pages as they follow each other once all sheets lie in each other and are folded.
std::vector<int> read(const std::vector<SeenSide> &sides, bool rightToLeft) {
  std::vector<int> pages(2 * sides.size());
  for (std::size_t sheet = 0; sheet < sides.size() / 2; ++sheet) {
    const SeenSide &front = sides[2 * sheet];
    const SeenSide &back = sides[2 * sheet + 1];
    const std::size_t last = pages.size() - 1 - 2 * sheet;
    pages[2 * sheet] = pageOn(front, rightToLeft);
    pages[2 * sheet + 1] = pageOn(back, !rightToLeft);
    pages[last - 1] = pageOn(back, rightToLeft);
    pages[last] = pageOn(front, !rightToLeft);
  }
  return pages;
}

/// How far a page is to move towards the fold, counted from the outermost sheet.
double creepOf(const Wish &wish, std::size_t sheet, std::size_t sheets) {
  if (sheets < 2) return 0;
  return wish.creep * static_cast<double>(sheet) / static_cast<double>(sheets - 1);
}

void expectPlace(const SeenPage &page, const Wish &wish, std::size_t sheet, std::size_t sheets) {
  SCOPED_TRACE("sheet " + std::to_string(sheet + 1) + ", page " + std::to_string(page.page));
  const double room = fold - wish.gutter / 2.0 - (sheets > 1 ? std::max(0, -wish.creep) : 0);
  const double scale = std::min(room / shortEdge, shortEdge / longEdge);
  const double beyond = wish.gutter / 2.0 - creepOf(wish, sheet, sheets);
  const double fromFold = isLeft(page) ? fold - page.frame.right() : page.frame.x - fold;
  EXPECT_NEAR(fromFold, std::max(0.0, beyond), tolerance);
  EXPECT_NEAR(page.frame.width, scale * shortEdge + std::min(0.0, beyond), tolerance);
  EXPECT_NEAR(page.frame.height, scale * longEdge, tolerance);
  EXPECT_NEAR(page.frame.y + page.frame.height / 2, shortEdge / 2, tolerance);
}

class FoldedBooklet : public ::testing::TestWithParam<Wish> {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
  }

  static std::vector<SeenSide> print(const Wish &wish) {
    const DriverKit kit;
    const std::vector<MarkedPage> pages(static_cast<std::size_t>(wish.pages));
    const QString out = kit.path(QStringLiteral("out.ps"));
    QStringList arguments{QStringLiteral("--headless"), QStringLiteral("--ppd"),
                          orvekPPD(QStringLiteral("6180")), QStringLiteral("--output"), out};
    for (const QString &option :
         {QStringLiteral("OVKEnableBooklet"), QStringLiteral("OVKGutter=%1").arg(wish.gutter),
          QStringLiteral("OVKCreep=%1").arg(wish.creep)}) {
      arguments << QStringLiteral("-o") << option;
    }
    if (wish.rightToLeft) arguments << QStringLiteral("-o") << QStringLiteral("OVKRightToLeft");
    arguments << kit.write(QStringLiteral("in.pdf"), documentOf(pages, codedPage));
    const ProgramRun run = runProgram(arguments);
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    std::vector<SeenSide> sides = paperIn(out).sides;
    std::transform(sides.begin(), sides.end(), sides.begin(), inHand);
    return sides;
  }
};

TEST_P(FoldedBooklet, IsReadInOrderAndHasItsGutterAndCreep) {
  const Wish &wish = GetParam();
  const std::vector<SeenSide> sides = print(wish);
  const auto sheets = static_cast<std::size_t>((wish.pages + 3) / 4);
  ASSERT_EQ(sides.size(), 2 * sheets);
  std::vector<int> expected(4 * sheets, 0);
  std::iota(expected.begin(), expected.begin() + wish.pages, 1);
  EXPECT_EQ(read(sides, wish.rightToLeft), expected);
  for (std::size_t side = 0; side < sides.size(); ++side) {
    for (const SeenPage &page : sides[side].pages) expectPlace(page, wish, side / 2, sheets);
  }
}

INSTANTIATE_TEST_SUITE_P(Keys, FoldedBooklet,
                         ::testing::Values(Wish{1}, Wish{2, 0}, Wish{4, 144}, Wish{5, 36, 12, true},
                                           Wish{8, 36}, Wish{9, 24, -36}, Wish{13, 72, 36, true},
                                           Wish{16, 24, 12}, Wish{27, 10, 36}, Wish{40, 0, -20}));

}  // namespace
}  // namespace orvek::test
