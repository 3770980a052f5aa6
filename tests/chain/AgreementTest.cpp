// SPDX-License-Identifier: Apache-2.0
// The comparison itself: it is content with what agrees, and notices each thing that does not.

#include "tests/chain/Agreement.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "tests/chain/CodedPages.h"
#include "tests/chain/PaperLook.h"

namespace orvek::test {
namespace {

QJsonObject page(int number, double x, double y, int turn) {
  return {{QStringLiteral("page"), number},
          {QStringLiteral("frame"), QJsonArray{x, y, 200, 300}},
          {QStringLiteral("turn"), turn}};
}

QJsonObject side(int sheet, const char *face, const QJsonArray &pages) {
  return {{QStringLiteral("sheet"), sheet},
          {QStringLiteral("side"), QLatin1String(face)},
          {QStringLiteral("size"), QJsonArray{500, 400}},
          {QStringLiteral("pages"), pages}};
}

/// A sheet with two pages on its front and one on its back.
QJsonObject preview() {
  return {{QStringLiteral("copies"), 1},
          {QStringLiteral("sides"),
           QJsonArray{side(1, "front", {page(4, 20, 30, 0), page(1, 260, 40, 0)}),
                      side(1, "back", {page(2, 20, 50, 0)})}}};
}

/// The same on upright paper: everything a quarter to the left.
PaperSides paper() {
  PaperSides paper;
  paper.isTwoSided = true;
  paper.sides = {{{400, 500}, {{1, {40, 40, 300, 200}, 270}, {4, {30, 280, 300, 200}, 270}}},
                 {{400, 500}, {{2, {50, 280, 300, 200}, 270}}}};
  return paper;
}

TEST(Agreement, HoldsForPaperTurnedIntoTheHand) {
  EXPECT_EQ(differences(preview(), paper()), QStringList());
}

TEST(Agreement, ForgivesTwoPointsAndNoMore) {
  PaperSides moved = paper();
  moved.sides[0].pages[0].frame.x += 1.9;
  EXPECT_EQ(differences(preview(), moved), QStringList());
  moved.sides[0].pages[0].frame.x += 0.2;
  EXPECT_EQ(differences(preview(), moved),
            QStringList{
                QStringLiteral("side 1: page 1 at [260 40 200 300] stands at [260 42.1 200 300]")});
}

TEST(Agreement, NoticesTwoPagesInEachOthersPlace) {
  PaperSides swapped = paper();
  std::swap(swapped.sides[0].pages[0].page, swapped.sides[0].pages[1].page);
  EXPECT_EQ(differences(preview(), swapped).size(), 2);
}

TEST(Agreement, NoticesAPageOnItsHead) {
  PaperSides turned = paper();
  turned.sides[0].pages[0].turn = 90;
  EXPECT_FALSE(differences(preview(), turned).isEmpty());
}

TEST(Agreement, NoticesPagesTooManyAndTooFew) {
  PaperSides few = paper();
  few.sides[0].pages.pop_back();
  EXPECT_FALSE(differences(preview(), few).isEmpty());
  PaperSides many = paper();
  many.sides[1].pages.push_back({3, {50, 20, 300, 200}, 270});
  EXPECT_EQ(differences(preview(), many),
            QStringList{QStringLiteral("side 2: page 3 stands at [280 50 200 300]")});
}

TEST(Agreement, NoticesSidesInAnotherOrder) {
  PaperSides swapped = paper();
  std::swap(swapped.sides[0], swapped.sides[1]);
  EXPECT_FALSE(differences(preview(), swapped).isEmpty());
}

TEST(Agreement, NoticesSidesThatAreNotThereAndOtherCopies) {
  PaperSides few = paper();
  few.sides.pop_back();
  EXPECT_FALSE(differences(preview(), few).isEmpty());
  QJsonObject twice = preview();
  twice[QStringLiteral("copies")] = 2;
  EXPECT_FALSE(differences(twice, paper()).isEmpty());
  PaperSides repeated = paper();
  repeated.repeats = 2;
  repeated.sides = {paper().sides[0], paper().sides[0], paper().sides[1], paper().sides[1]};
  EXPECT_EQ(differences(twice, repeated), QStringList());
}

TEST(Agreement, NoticesPaperOfAnotherSizeAndTheOtherWayRound) {
  PaperSides large = paper();
  large.sides[1].paper.width += 3;
  EXPECT_FALSE(differences(preview(), large).isEmpty());
  PaperSides turned = paper();
  std::swap(turned.sides[1].paper.width, turned.sides[1].paper.height);
  EXPECT_FALSE(differences(preview(), turned).isEmpty());
}

TEST(Agreement, NoticesABackThatBecomesASheetOfItsOwn) {
  PaperSides oneSided = paper();
  oneSided.isTwoSided = false;
  EXPECT_EQ(differences(preview(), oneSided),
            QStringList{QStringLiteral("side 2 is the front of sheet 2, not the back of sheet 1")});
}

TEST(CodedPages, AreFoundByAnyPartOfThem) {
  // Two pixels of page 42, the upper half on the right: it lies a quarter to the right.
  const QByteArray header = "P6\n# a comment\n3 1\n255\n";
  const auto pixel = [](int red, int green, int blue) -> QByteArray {
    return QByteArray(1, char(red)) + QByteArray(1, char(green)) + QByteArray(1, char(blue));
  };
  const QByteArray row = pixel(255, 255, 255) + pixel(54, 150, 180) + pixel(54, 150, 120);
  const auto sides = codedPagesIn(header + row + header + row);
  ASSERT_EQ(sides.size(), 2U);
  ASSERT_EQ(sides[1].pages.size(), 1U);
  EXPECT_EQ(sides[1].pages[0].page, 42);
  EXPECT_EQ(sides[1].pages[0].turn, 90);
  EXPECT_EQ(sides[1].pages[0].frame, (imposition::Frame{1, 0, 2, 1}));
}

TEST(CodedPages, AreNeitherWhiteNorBlackNorBetweenTwoColours) {
  EXPECT_FALSE(spotOf(255, 255, 255));
  EXPECT_FALSE(spotOf(0, 0, 0));
  EXPECT_FALSE(spotOf(42, 30, 60));
  const auto spot = spotOf(31, 29, 62);
  ASSERT_TRUE(spot);
  EXPECT_EQ(spot->page, 1);
  EXPECT_EQ(spot->part, PagePart::Outline);
}

}  // namespace
}  // namespace orvek::test
