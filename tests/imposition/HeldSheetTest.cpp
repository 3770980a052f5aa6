// SPDX-License-Identifier: Apache-2.0
// Sheets in the hand and in the printer.

#include "imposition/HeldSheet.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace orvek::imposition {
namespace {

constexpr Size a4{595, 842};
constexpr Size a4Wide{842, 595};

TEST(Paper, IsHeldWithItsLongEdgeAtTheTop) {
  EXPECT_EQ(heldSheet(a4), a4Wide);
  EXPECT_EQ(heldSheet(a4Wide), a4Wide);
}

// What lies behind a point of the front when the printer puts the back's top where the front's
// bottom is: it turns the paper over about its horizontal middle.
Frame behind(Frame front, Size paper) {
  return {front.x, paper.height - front.bottom(), front.width, front.height};
}

void expectMirrored(Size paper) {
  const Size side = heldSheet(paper);
  const Frame left{10, 20, 100, 200};
  const Frame right{side.width - 110, 20, 100, 200};
  const Frame front = frameOnPaper(right, paper, turnOnPaper(paper, Face::Front));
  const Frame back = frameOnPaper(left, paper, turnOnPaper(paper, Face::Back));
  EXPECT_EQ(behind(front, paper), back);
}

TEST(Paper, HasABacksLeftPageBehindTheFrontsRightPage) {
  expectMirrored(a4);
  expectMirrored(a4Wide);
  expectMirrored({500, 500});
}

TEST(Paper, TurnsBothSidesOfUprightPaperAlike) {
  EXPECT_EQ(turnOnPaper(a4, Face::Front), 270);
  EXPECT_EQ(turnOnPaper(a4, Face::Back), 270);
}

TEST(Paper, KeepsFramesInsideAtEveryTurn) {
  EXPECT_EQ(frameOnPaper({0, 0, 421, 595}, a4, 270), (Frame{0, 421, 595, 421}));
  EXPECT_EQ(frameOnPaper({0, 0, 421, 595}, a4, 90), (Frame{0, 0, 595, 421}));
  EXPECT_EQ(frameOnPaper({0, 0, 421, 595}, a4Wide, 180), (Frame{421, 0, 421, 595}));
  EXPECT_EQ(frameOnPaper({0, 0, 421, 595}, a4Wide, 0), (Frame{0, 0, 421, 595}));
}

TEST(ScaledInto, KeepsProportions) {
  EXPECT_EQ(scaledInto({100, 200}, {50, 300}), (Size{50, 100}));
  EXPECT_EQ(scaledInto({100, 200}, {300, 50}), (Size{25, 50}));
}

TEST(ScaledInto, GivesNothingForSizesThatAreNone) {
  EXPECT_EQ(scaledInto({0, 200}, {50, 300}), Size());
  EXPECT_EQ(scaledInto({100, -1}, {50, 300}), Size());
  EXPECT_EQ(scaledInto({100, std::numeric_limits<double>::infinity()}, {50, 300}), Size());
  EXPECT_EQ(scaledInto({std::nan(""), 200}, {50, 300}), Size());
  EXPECT_EQ(scaledInto({100, 200}, {50, 0}), Size());
}

}  // namespace
}  // namespace orvek::imposition
