// SPDX-License-Identifier: Apache-2.0
// Where pages stand: stated for one booklet, and as properties of many.

#include "imposition/Booklet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "imposition/PageOrder.h"
#include "tests/support/Dice.h"

namespace orvek::imposition {
namespace {

constexpr double tolerance = 1e-6;
constexpr Size a4{595, 842};

std::vector<Size> document(int pages, Size size = a4) {
  return std::vector<Size>(static_cast<std::size_t>(pages), size);
}

BookletKeys keysWith(int gutter, int creep) {
  BookletKeys keys;
  keys.gutter = gutter;
  keys.creep = creep;
  return keys;
}

double gap(const Side &side) {
  return side.pages.at(1).frame.x - side.pages.at(0).frame.right();
}

TEST(Booklet, HasTheSidesInThePageOrder) {
  const ImposedJob job = imposeBooklet(document(8), a4, {});
  ASSERT_EQ(job.sheets.size(), 2U);
  EXPECT_EQ(job.side, (Size{842, 595}));
  EXPECT_EQ(job.sheets[0].front.pages.at(0).page, 8);
  EXPECT_EQ(job.sheets[0].front.pages.at(1).page, 1);
  EXPECT_EQ(job.sheets[1].back.pages.at(0).page, 4);
  EXPECT_EQ(job.sheets[1].back.pages.at(1).page, 5);
}

TEST(Booklet, LeavesOutEmptyHalves) {
  const ImposedJob job = imposeBooklet(document(1), a4, {});
  ASSERT_EQ(job.sheets.size(), 1U);
  ASSERT_EQ(job.sheets[0].front.pages.size(), 1U);
  EXPECT_GE(job.sheets[0].front.pages[0].frame.x, 421);
  EXPECT_TRUE(job.sheets[0].back.pages.empty());
}

TEST(Booklet, PutsTheGutterHalfOnEachSideOfTheFold) {
  for (const Size paper : {a4, Size{612, 1008}, Size{842, 1191}}) {
    const ImposedJob job = imposeBooklet(document(4), paper, keysWith(36, 0));
    const Side &front = job.sheets.at(0).front;
    EXPECT_NEAR(gap(front), 36, tolerance);
    EXPECT_NEAR(front.pages[0].frame.right(), job.side.width / 2 - 18, tolerance);
  }
}

TEST(Booklet, CreepsInEqualStepsFromTheOutermostToTheInnermostSheet) {
  const ImposedJob still = imposeBooklet(document(12), a4, keysWith(40, 0));
  const ImposedJob job = imposeBooklet(document(12), a4, keysWith(40, 9));
  for (int sheet : {0, 1, 2}) {
    const auto at = static_cast<std::size_t>(sheet);
    const Frame left = job.sheets.at(at).front.pages.at(0).frame;
    const Frame right = job.sheets.at(at).back.pages.at(1).frame;
    EXPECT_NEAR(left.x - still.sheets[at].front.pages.at(0).frame.x, 4.5 * sheet, tolerance);
    EXPECT_NEAR(right.x - still.sheets[at].back.pages.at(1).frame.x, -4.5 * sheet, tolerance);
  }
}

TEST(Booklet, CreepsAwayFromTheFoldWhereCreepIsNegative) {
  const ImposedJob job = imposeBooklet(document(8), a4, keysWith(24, -10));
  EXPECT_NEAR(gap(job.sheets.at(0).front), 24, tolerance);
  EXPECT_NEAR(gap(job.sheets.at(1).front), 24 + 2 * 10, tolerance);
  EXPECT_GE(job.sheets[1].front.pages.at(0).frame.x, 0);
}

TEST(Booklet, DrawsNothingOfAPageBeyondTheFoldThatItCreepsOver) {
  const ImposedJob job = imposeBooklet(document(8), a4, keysWith(0, 20));
  const PlacedPage &left = job.sheets.at(1).front.pages.at(0);
  EXPECT_GT(left.frame.right(), 421);
  EXPECT_NEAR(left.clip.right(), 421, tolerance);
  EXPECT_NEAR(job.sheets[1].front.pages.at(1).clip.x, 421, tolerance);
}

TEST(Booklet, GivesASingleSheetNoCreep) {
  EXPECT_EQ(imposeBooklet(document(4), a4, keysWith(24, -36)),
            imposeBooklet(document(4), a4, keysWith(24, 0)));
}

TEST(Booklet, KeepsAPagesPlaceOnPaperTooSmallForGutterAndCreep) {
  const ImposedJob job = imposeBooklet(document(8), {50, 100}, keysWith(144, -36));
  EXPECT_NEAR(job.sheets.at(1).front.pages.at(0).frame.width, 100.0 / 2 / 4, tolerance);
}

TEST(Booklet, FramesPagesWhereAskedTo) {
  BookletKeys keys;
  EXPECT_FALSE(imposeBooklet(document(1), a4, keys).sheets.at(0).front.pages.at(0).border);
  keys.pageBorders = true;
  EXPECT_TRUE(imposeBooklet(document(1), a4, keys).sheets.at(0).front.pages.at(0).border);
}

TEST(Booklet, IsEmptyForNoPagesAndForPaperWithoutASize) {
  EXPECT_TRUE(imposeBooklet({}, a4, {}).sheets.empty());
  EXPECT_TRUE(imposeBooklet(document(4), {0, 842}, {}).sheets.empty());
}

TEST(Booklet, GivesPagesWithoutASizeAnEmptyFrame) {
  const double infinite = std::numeric_limits<double>::infinity();
  const ImposedJob job = imposeBooklet(document(4, {infinite, 0}), a4, {});
  EXPECT_EQ(job.sheets.at(0).front.pages.at(0).frame.width, 0);
}

/// A booklet with everything at random.
struct Sample {
  std::vector<Size> pages;
  Size paper;
  BookletKeys keys;
};

Sample sampleOf(unsigned seed) {
  test::Dice dice(seed);
  const auto between = [&](int least, int most) { return dice.from(least, most); };
  Sample sample;
  sample.paper = {double(between(40, 1300)), double(between(40, 1300))};
  for (int page = between(1, 40); page > 0; --page) {
    sample.pages.push_back({double(between(1, 3000)), double(between(1, 3000))});
  }
  sample.keys = {true,
                 between(0, 1) == 1,
                 between(0, 1) == 1,
                 between(gutterRange.least, gutterRange.most),
                 between(creepRange.least, creepRange.most),
                 0};
  return sample;
}

void expectGoodPlace(const PlacedPage &placed, const Sample &sample, Size side) {
  const Size page = sample.pages.at(static_cast<std::size_t>(placed.page) - 1);
  const Frame &frame = placed.frame;
  EXPECT_GT(frame.width, 0);
  EXPECT_NEAR(frame.width * page.height, frame.height * page.width, 1e-3 * page.width);
  EXPECT_GE(frame.x, -tolerance);
  EXPECT_GE(frame.y, -tolerance);
  EXPECT_LE(frame.right(), side.width + tolerance);
  EXPECT_LE(frame.bottom(), side.height + tolerance);
}

TEST(Booklets, KeepEveryPageOnceWithItsProportionsOnThePaper) {
  for (unsigned seed = 1; seed <= 2000; ++seed) {
    SCOPED_TRACE(seed);
    const Sample sample = sampleOf(seed);
    const ImposedJob job = imposeBooklet(sample.pages, sample.paper, sample.keys);
    std::vector<int> seen(sample.pages.size() + 1);
    for (const Sheet &sheet : job.sheets) {
      for (const Side *side : {&sheet.front, &sheet.back}) {
        for (const PlacedPage &placed : side->pages) {
          expectGoodPlace(placed, sample, job.side);
          ++seen.at(static_cast<std::size_t>(placed.page));
        }
      }
    }
    EXPECT_EQ(std::count(seen.begin() + 1, seen.end(), 1), std::ssize(sample.pages));
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(Booklets, AreMirroredFromRightToLeft) {
  for (unsigned seed = 1; seed <= 500; ++seed) {
    SCOPED_TRACE(seed);
    Sample sample = sampleOf(seed);
    sample.keys.rightToLeft = false;
    const ImposedJob left = imposeBooklet(sample.pages, sample.paper, sample.keys);
    sample.keys.rightToLeft = true;
    const ImposedJob right = imposeBooklet(sample.pages, sample.paper, sample.keys);
    for (std::size_t sheet = 0; sheet < left.sheets.size(); ++sheet) {
      for (const PlacedPage &placed : left.sheets[sheet].front.pages) {
        const auto &others = right.sheets.at(sheet).front.pages;
        const auto other = std::find_if(others.begin(), others.end(), [&](const PlacedPage &page) {
          return page.page == placed.page;
        });
        ASSERT_NE(other, others.end());
        EXPECT_NEAR(other->frame.x, left.side.width - placed.frame.right(), tolerance);
        EXPECT_NEAR(other->frame.y, placed.frame.y, tolerance);
      }
    }
  }
}

}  // namespace
}  // namespace orvek::imposition
