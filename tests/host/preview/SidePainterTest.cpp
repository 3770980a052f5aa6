// SPDX-License-Identifier: Apache-2.0
// Sides as they are drawn, looked at point by point: two pixels stand for each point.

#include "host/preview/SidePainter.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace orvek {
namespace {

using namespace imposition;

constexpr int scale = 2;
constexpr QRgb white = 0xffffffff;
constexpr QRgb red = 0xffff0000;

class SidePainterTest : public testing::Test {
 protected:
  SidePainterTest() {
    side.size = {200, 100};
    side.pages = {page(1, {0, 0, 100, 100})};
  }

  static PlacedPage page(int number, const Frame &clip) {
    PlacedPage placed;
    placed.page = number;
    placed.frame = {0, 0, 140, 100};
    placed.clip = clip;
    return placed;
  }

  void paint(const PictureOf &pictureOf) {
    QPainter painter(&seen);
    paintSide(&painter, {QRectF(0, 0, 200 * scale, 100 * scale)}, side, pictureOf);
  }

  QRgb at(int x, int y) const { return seen.pixel(x * scale, y * scale); }

  PrintedSide side;
  QImage seen{200 * scale, 100 * scale, QImage::Format_RGB32};
};

QImage redPage(int) {
  QImage picture(14, 10, QImage::Format_RGB32);
  picture.fill(red);
  return picture;
}

TEST_F(SidePainterTest, EndsAPageWhereItsPlaceEnds) {
  paint(redPage);
  EXPECT_EQ(at(95, 50), red);
  EXPECT_EQ(at(105, 50), white);
}

TEST_F(SidePainterTest, ShowsAStapleWholeOnTheFrontAndItsBentEndsOnTheBack) {
  side.pages.clear();
  side.marks = {{MarkKind::Staple, {150, 40, 2, 20}}};
  paint(redPage);
  EXPECT_LT(qGray(at(151, 50)), 128);
  EXPECT_LT(qGray(at(151, 42)), 128);
  side.face = Face::Back;
  paint(redPage);
  EXPECT_EQ(at(151, 50), white);
  EXPECT_LT(qGray(at(151, 42)), 128);
}

TEST_F(SidePainterTest, PutsANumberInThePlaceOfAPageThatIsAwaited) {
  const auto inkOf = [this](int number) {
    side.pages[0].page = number;
    paint([](int) { return QImage(); });
    int ink = 0;
    for (int x = 0; x < 100; ++x) {
      for (int y = 0; y < 100; ++y) ink += qGray(at(x, y)) < 200 ? 1 : 0;
    }
    return ink;
  };
  EXPECT_GT(inkOf(8), 0);
  EXPECT_GT(inkOf(88), inkOf(8));
}

}  // namespace
}  // namespace orvek
