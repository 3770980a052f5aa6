// SPDX-License-Identifier: Apache-2.0
// Sides in words.

#include "host/preview/SpokenSide.h"

#include <gtest/gtest.h>

namespace orvek {
namespace {

using namespace imposition;

PrintedSide sideWith(std::vector<PlacedPage> pages) {
  PrintedSide side;
  side.size = {842, 595};
  side.pages = std::move(pages);
  return side;
}

PlacedPage at(int page, double x, double width) {
  PlacedPage placed;
  placed.page = page;
  placed.frame = {x, 0, width, 595};
  return placed;
}

TEST(SpokenSide, TellsABookletsPagesByTheirPlaces) {
  const PrintedSide side = sideWith({at(8, 0, 409), at(1, 433, 409)});
  EXPECT_EQ(spokenSide(side, QStringLiteral("saddle fold")),
            "Sheet 1, front: page 8 left, page 1 right, saddle fold");
  PrintedSide back = sideWith({at(2, 0, 409)});
  back.face = Face::Back;
  EXPECT_EQ(spokenSide(back, {}), "Sheet 1, back: page 2 left");
}

TEST(SpokenSide, NamesALonePageAndSeveralInTheirOrder) {
  EXPECT_EQ(spokenSide(sideWith({at(3, 0, 842)}), {}), "Sheet 1, front: page 3");
  EXPECT_EQ(spokenSide(sideWith({at(1, 0, 280), at(2, 280, 280), at(3, 560, 280)}), {}),
            "Sheet 1, front: page 1, page 2, page 3");
}

TEST(SpokenSide, SaysBlankSidesAndWhatTheFinisherDoes) {
  PrintedSide side = sideWith({});
  side.marks = {{MarkKind::Staple, {}}, {MarkKind::Hole, {}}, {MarkKind::Hole, {}}};
  EXPECT_EQ(spokenSide(side, {}), "Sheet 1, front: blank, 1 staple, 2 holes");
}

TEST(SpokenSide, HasATitleOfItsSheetAndItsFace) {
  PrintedSide side = sideWith({});
  side.sheet = 3;
  side.face = Face::Back;
  EXPECT_EQ(sideTitle(side, 12, true), "Sheet 3 of 12, back");
  side.face = Face::Front;
  EXPECT_EQ(sideTitle(side, 12, true), "Sheet 3 of 12, front");
  EXPECT_EQ(sideTitle(side, 12, false), "Sheet 3 of 12");
}

TEST(SpokenSide, CallsFoldsAsThePrinterDoes) {
  EXPECT_EQ(foldInWords(QStringLiteral("Saddle"), QStringLiteral("x")), "saddle fold");
  EXPECT_EQ(foldInWords(QStringLiteral("ZFold"), QStringLiteral("Z fold")), "Z fold");
  EXPECT_EQ(foldInWords(QStringLiteral("fold-z"), {}), "fold-z");
}

}  // namespace
}  // namespace orvek
