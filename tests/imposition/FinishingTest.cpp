// SPDX-License-Identifier: Apache-2.0
// The words of finishing, and where marks lie.

#include "imposition/Finishing.h"

#include <gtest/gtest.h>

#include <map>

namespace orvek::imposition {
namespace {

constexpr Size a4{595, 842};

Finishing read(const std::map<std::string, std::string> &marked) {
  return readFinishing([&](const char *option) -> std::optional<std::string> {
    const auto found = marked.find(option);
    if (found == marked.end()) return std::nullopt;
    return found->second;
  });
}

double middleX(const Mark &mark) {
  return mark.frame.x + mark.frame.width / 2;
}

double middleY(const Mark &mark) {
  return mark.frame.y + mark.frame.height / 2;
}

TEST(Finishing, LeavesNoMarksWhereNothingIsMarkedOrOff) {
  EXPECT_TRUE(marksOnPaper(read({}), a4).empty());
  const Finishing off = read({{"OVKStapling", "None"},
                              {"OVKPunching", "None"},
                              {"OVKFolding", "None"},
                              {"StapleLocation", "None"},
                              {"Booklet", "False"},
                              {"finishings", "none"}});
  EXPECT_EQ(off, Finishing());
  EXPECT_TRUE(foldsOn(off.fold, a4).empty());
}

TEST(Finishing, HasTheFrontStapleAtTheFootOfThePaper) {
  const auto marks = marksOnPaper(read({{"OVKStapling", "Front"}}), a4);
  ASSERT_EQ(marks.size(), 1U);
  EXPECT_EQ(marks[0].kind, MarkKind::Staple);
  EXPECT_LT(middleX(marks[0]), a4.width / 4);
  EXPECT_GT(middleY(marks[0]), a4.height * 3 / 4);
}

TEST(Finishing, HasAFlippedStapleAtTheOtherLongEdge) {
  EXPECT_EQ(read({{"OVKStapling", "FrontFlip"}}).cornerStaple, Corner::TopRight);
  EXPECT_EQ(read({{"OVKStapling", "RearFlip"}}).cornerStaple, Corner::BottomRight);
  EXPECT_EQ(read({{"OVKStapling", "DualFlip"}}).staples, (EdgeMarks{Edge::Right, 2}));
}

TEST(Finishing, ReadsTheStandardsChoicesAndKeywords) {
  EXPECT_EQ(read({{"StapleLocation", "SinglePortrait"}}).cornerStaple, Corner::TopLeft);
  EXPECT_EQ(read({{"StapleLocation", "DualRevLandscape"}}).staples, (EdgeMarks{Edge::Bottom, 2}));
  EXPECT_EQ(read({{"StapleLocation", "TripleLandscape"}}).staples, (EdgeMarks{Edge::Top, 3}));
  EXPECT_EQ(read({{"PunchMedia", "QuadRevPortrait"}}).holes, (EdgeMarks{Edge::Right, 4}));
  EXPECT_TRUE(read({{"StapleLocation", "SaddleStitch"}}).stapledInFold);
  const Finishing words = read({{"finishings", "staple-top-right,punch-dual-left,fold-half"}});
  EXPECT_EQ(words.cornerStaple, Corner::TopRight);
  EXPECT_EQ(words.holes, (EdgeMarks{Edge::Left, 2}));
  EXPECT_EQ(words.fold, "fold-half");
}

TEST(Finishing, PassesOverWordsItDoesNotKnow) {
  for (const char *word : {"Spiral", "Dual?", "Hole", "xHole", ",,,", "staple-"}) {
    EXPECT_TRUE(marksOnPaper(read({{"OVKStapling", word},
                                   {"OVKPunching", word},
                                   {"finishings", word},
                                   {"PunchMedia", word}}),
                             a4)
                    .empty())
        << word;
  }
}

TEST(Finishing, PunchesAtTheStapledEdgeAsFarApartAsBindersWantIt) {
  const auto two = marksOnPaper(read({{"OVKPunching", "2Hole"}}), a4);
  ASSERT_EQ(two.size(), 2U);
  EXPECT_EQ(two[0].kind, MarkKind::Hole);
  EXPECT_NEAR(middleY(two[1]) - middleY(two[0]), 80 * 72 / 25.4, 0.01);
  EXPECT_NEAR(middleX(two[0]), 12 * 72 / 25.4, 0.01);
  EXPECT_NEAR((middleY(two[1]) + middleY(two[0])) / 2, a4.height / 2, 0.01);
  const auto three = marksOnPaper(read({{"OVKPunching", "3Hole"}}), {612, 792});
  ASSERT_EQ(three.size(), 3U);
  EXPECT_NEAR(middleY(three[1]) - middleY(three[0]), 4.25 * 72, 0.01);
  const Finishing flipped = read({{"OVKStapling", "DualFlip"}, {"OVKPunching", "4Hole"}});
  EXPECT_EQ(flipped.holes, (EdgeMarks{Edge::Right, 4}));
}

TEST(Finishing, StaplesASaddleFoldInTheFold) {
  const Finishing saddle = read({{"OVKFolding", "Saddle"}});
  const auto marks = marksOnPaper(saddle, a4);
  ASSERT_EQ(marks.size(), 2U);
  for (const Mark &mark : marks) EXPECT_NEAR(middleY(mark), a4.height / 2, 0.01);
  EXPECT_EQ(foldsOn(saddle.fold, a4), (std::vector<Line>{{0, 421, 595, 421}}));
  EXPECT_TRUE(marksOnPaper(read({{"OVKFolding", "Fold"}}), a4).empty());
}

TEST(Finishing, FoldsInAsManyPartsAsTheWordSays) {
  EXPECT_EQ(foldsOn("Letter", {300, 200}).size(), 2U);
  EXPECT_EQ(foldsOn("fold-z", {300, 200}).at(0), (Line{100, 0, 100, 200}));
  EXPECT_EQ(foldsOn("Gate", {300, 200}).at(1).x1, 225);
  EXPECT_EQ(foldsOn("Half", {300, 200}).size(), 1U);
}

TEST(Finishing, KeepsItsMarksOnSmallPaper) {
  for (const char *holes : {"2Hole", "3Hole", "4Hole"}) {
    const Size small{284, 150};
    for (const Mark &mark :
         marksOnPaper(read({{"OVKPunching", holes}, {"OVKStapling", "Dual"}}), small)) {
      EXPECT_GE(mark.frame.y, 0) << holes;
      EXPECT_LE(mark.frame.bottom(), small.height) << holes;
    }
  }
}

}  // namespace
}  // namespace orvek::imposition
