// SPDX-License-Identifier: Apache-2.0
// Folds booklets and reads them.

#include "imposition/PageOrder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>

namespace orvek::imposition {
namespace {

using ::testing::ElementsAre;

constexpr int mostPages = 400;

std::vector<int> readLeftToRight(const std::vector<FoldedSheet> &sheets) {
  std::vector<int> read;
  // The first half of the book: the leaves right of the fold. Turning a leaf shows what lies behind
  // it: on the sheet's other side, which was turned over at the short edge, that is the left half.
  for (const FoldedSheet &sheet : sheets) {
    read.push_back(sheet.front.right);
    read.push_back(sheet.back.left);
  }
  // The second half: the same sheets' other leaves, now from the middle of the book outwards.
  for (auto sheet = sheets.rbegin(); sheet != sheets.rend(); ++sheet) {
    read.push_back(sheet->back.right);
    read.push_back(sheet->front.left);
  }
  return read;
}

std::vector<int> readRightToLeft(const std::vector<FoldedSheet> &sheets) {
  std::vector<int> read;
  for (const FoldedSheet &sheet : sheets) {
    read.push_back(sheet.front.left);
    read.push_back(sheet.back.right);
  }
  for (auto sheet = sheets.rbegin(); sheet != sheets.rend(); ++sheet) {
    read.push_back(sheet->back.left);
    read.push_back(sheet->front.right);
  }
  return read;
}

std::vector<int> book(int pages) {
  std::vector<int> numbers(static_cast<std::size_t>(bookletSheets(pages) * pagesPerBookletSheet));
  std::iota(numbers.begin(), numbers.begin() + pages, 1);
  return numbers;
}

TEST(PageOrder, PutsEightPagesOnTwoSheets) {
  EXPECT_THAT(bookletOrder(8, false), ElementsAre(FoldedSheet{{8, 1}, {2, 7}},  //
                                                  FoldedSheet{{6, 3}, {4, 5}}));
}

TEST(PageOrder, LeavesThePlacesAfterTheLastPageEmpty) {
  EXPECT_THAT(bookletOrder(5, false), ElementsAre(FoldedSheet{{0, 1}, {2, 0}},  //
                                                  FoldedSheet{{0, 3}, {4, 5}}));
  EXPECT_THAT(bookletOrder(1, false), ElementsAre(FoldedSheet{{0, 1}, {0, 0}}));
}

TEST(PageOrder, ReadsTrueOnceFolded) {
  for (int pages = 1; pages <= mostPages; ++pages) {
    ASSERT_EQ(readLeftToRight(bookletOrder(pages, false)), book(pages)) << pages << " pages";
  }
}

TEST(PageOrder, ReadsTrueFromRightToLeftOnceFolded) {
  for (int pages = 1; pages <= mostPages; ++pages) {
    ASSERT_EQ(readRightToLeft(bookletOrder(pages, true)), book(pages)) << pages << " pages";
  }
}

TEST(PageOrder, HasEveryPageOnce) {
  for (int pages = 1; pages <= mostPages; ++pages) {
    std::vector<int> seen(static_cast<std::size_t>(pages) + 1);
    for (const FoldedSheet &sheet : bookletOrder(pages, false)) {
      for (const int page :
           {sheet.front.left, sheet.front.right, sheet.back.left, sheet.back.right}) {
        ++seen.at(static_cast<std::size_t>(page));
      }
    }
    ASSERT_EQ(std::count(seen.begin() + 1, seen.end(), 1), pages) << pages << " pages";
    ASSERT_LT(seen[0], pagesPerBookletSheet) << "a sheet too many for " << pages << " pages";
  }
}

TEST(PageOrder, IsMirroredFromRightToLeft) {
  const auto mirrored = [](Spread side) { return Spread{side.right, side.left}; };
  const auto right = bookletOrder(mostPages, true);
  const auto left = bookletOrder(mostPages, false);
  ASSERT_EQ(right.size(), left.size());
  for (std::size_t sheet = 0; sheet < left.size(); ++sheet) {
    EXPECT_EQ(right[sheet].front, mirrored(left[sheet].front));
    EXPECT_EQ(right[sheet].back, mirrored(left[sheet].back));
  }
}

TEST(PageOrder, HasNoSheetsForNoPages) {
  EXPECT_TRUE(bookletOrder(0, false).empty());
  EXPECT_TRUE(bookletOrder(-3, false).empty());
}

TEST(PagesInBookletOrder, AreThoseOfTheSheetsOneSideAfterTheOther) {
  EXPECT_THAT(pagesInBookletOrder(6, 0), ElementsAre(0, 1, 2, 0, 6, 3, 4, 5));
  EXPECT_THAT(pagesInBookletOrder(6, 4), ElementsAre(4, 1, 2, 3, 0, 5, 6, 0));
  EXPECT_THAT(pagesInBookletOrder(3, 8), ElementsAre(0, 1, 2, 0, 0, 3, 0, 0));
}

TEST(PagesInBookletOrder, AreNoneForNoPagesAndForBookletsOfBrokenSheets) {
  EXPECT_THAT(pagesInBookletOrder(0, 0), ElementsAre());
  EXPECT_THAT(pagesInBookletOrder(8, 6), ElementsAre());
}

TEST(BookletSheets, HoldFourPagesEach) {
  EXPECT_EQ(bookletSheets(-1), 0);
  EXPECT_EQ(bookletSheets(0), 0);
  EXPECT_EQ(bookletSheets(1), 1);
  EXPECT_EQ(bookletSheets(4), 1);
  EXPECT_EQ(bookletSheets(5), 2);
}

}  // namespace
}  // namespace orvek::imposition
