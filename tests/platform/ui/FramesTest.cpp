// SPDX-License-Identifier: Apache-2.0
// Frames with y growing upward, and views that keep their distance from an edge.

#include "platform/ui/Frames.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>

#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

// A superview of 200 by 100 points, and a subview of 40 by 20 whose lower left lies at (10, 30).
class FramesTest : public testing::Test {
 protected:
  FramesTest() {
    superview.resize(200, 100);
    subview.setGeometry(10, 50, 40, 20);
  }
  void pin(const char *edge) { subview.setProperty(pinnedProperty, QString::fromLatin1(edge)); }

  QWidget superview;
  QWidget subview{&superview};
};

TEST_F(FramesTest, MeasuresFromTheLowerLeftOfTheSuperview) {
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
}

TEST_F(FramesTest, PutsAViewWithoutSuperviewAtTheOrigin) {
  superview.move(300, 400);
  EXPECT_EQ(frame(&superview), QRectF(0, 0, 200, 100));
}

TEST_F(FramesTest, ReadsBackWhatWasSet) {
  const QRectF wished(12, 34, 56, 18);
  setFrame(&subview, wished);
  EXPECT_EQ(frame(&subview), wished);
  EXPECT_EQ(subview.geometry(), QRect(12, 48, 56, 18));
}

TEST_F(FramesTest, AllowsAFrameOutsideTheSuperview) {
  setFrame(&subview, QRectF(-5, -10, 40, 20));
  EXPECT_EQ(frame(&subview), QRectF(-5, -10, 40, 20));
  setFrame(&subview, QRectF(190, 95, 40, 20));
  EXPECT_EQ(frame(&subview), QRectF(190, 95, 40, 20));
}

TEST_F(FramesTest, RoundsToWholePoints) {
  setFrame(&subview, QRectF(10.4, 30.6, 40.5, 20.4));
  EXPECT_EQ(frame(&subview), QRectF(10, 31, 41, 20));
}

TEST_F(FramesTest, GrowsUpwardFromItsOriginWhenOnlyTheSizeIsSet) {
  setFrameSize(&subview, QSizeF(50, 30));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 50, 30));
  EXPECT_EQ(frameSize(&subview), QSizeF(50, 30));
}

TEST_F(FramesTest, PinsToTheTopUnlessToldOtherwise) {
  EXPECT_EQ(pinnedEdge(&subview), PinnedEdge::Top);
  pin("top");
  EXPECT_EQ(pinnedEdge(&subview), PinnedEdge::Top);
  pin("sideways");
  EXPECT_EQ(pinnedEdge(&subview), PinnedEdge::Top);
  pin("bottom");
  EXPECT_EQ(pinnedEdge(&subview), PinnedEdge::Bottom);
}

TEST_F(FramesTest, KeepsTheDistanceFromTheTopWhenTheSuperviewGrows) {
  pin("top");
  setFrameSize(&superview, QSizeF(200, 160));
  EXPECT_EQ(frame(&subview), QRectF(10, 90, 40, 20));
}

TEST_F(FramesTest, KeepsTheDistanceFromTheTopWhenTheSuperviewShrinks) {
  pin("top");
  setFrameSize(&superview, QSizeF(200, 80));
  EXPECT_EQ(frame(&subview), QRectF(10, 10, 40, 20));
}

TEST_F(FramesTest, KeepsTheDistanceFromTheBottomWhenTheSuperviewGrows) {
  pin("bottom");
  setFrameSize(&superview, QSizeF(200, 160));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
}

TEST_F(FramesTest, KeepsTheDistanceFromTheBottomWhenTheSuperviewShrinks) {
  pin("bottom");
  setFrameSize(&superview, QSizeF(200, 40));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
}

TEST_F(FramesTest, LeavesHorizontalPlaceAndSizeAloneWhenTheSuperviewWidens) {
  setFrameSize(&superview, QSizeF(400, 100));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
}

TEST_F(FramesTest, ComesBackToTheSamePlacesAfterGrowingAndShrinking) {
  for (const char *edge : {"top", "bottom"}) {
    pin(edge);
    setFrameSize(&superview, QSizeF(200, 300));
    setFrameSize(&superview, QSizeF(200, 100));
    EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20)) << edge;
  }
}

TEST_F(FramesTest, DoesNotMoveSubviewsWhenOnlyTheOriginChanges) {
  pin("bottom");
  QWidget outer;
  outer.resize(400, 400);
  superview.setParent(&outer);
  setFrame(&superview, QRectF(20, 20, 200, 100));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
  superview.setParent(nullptr);
}

TEST_F(FramesTest, KeepsPinnedSubviewsOfASubviewInPlace) {
  QWidget inner(&subview);
  inner.setGeometry(0, 5, 10, 10);
  inner.setProperty(pinnedProperty, QStringLiteral("bottom"));
  setFrameSize(&subview, QSizeF(40, 50));
  EXPECT_EQ(frame(&inner), QRectF(0, 5, 10, 10));
}

TEST_F(FramesTest, MovesPinnedSubviewsByWhatTheViewReallyGrew) {
  pin("bottom");
  superview.setMaximumHeight(120);
  setFrameSize(&superview, QSizeF(200, 160));
  EXPECT_EQ(superview.height(), 120);
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
}

TEST_F(FramesTest, MirrorsWithTheDirectionOfReadingWhileFramesStayAsDesigned) {
  pin("bottom");
  superview.setLayoutDirection(Qt::RightToLeft);
  adoptDesign(&superview);
  EXPECT_EQ(subview.geometry(), QRect(150, 50, 40, 20));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
  setFrame(&subview, QRectF(20, 10, 50, 20));
  EXPECT_EQ(subview.geometry(), QRect(130, 70, 50, 20));
  setFrameSize(&superview, QSizeF(300, 120));
  EXPECT_EQ(subview.geometry(), QRect(230, 90, 50, 20));
  EXPECT_EQ(frame(&subview), QRectF(20, 10, 50, 20));
}

TEST_F(FramesTest, GrowWithTheTextWhileFramesStayAsDesigned) {
  const QFont usual = QApplication::font();
  for (const int pixelSize : {15, 16, 17, 19, 20, 21, 23, 24, 27, 31, 48}) {
    QFont large = usual;
    large.setPixelSize(pixelSize);
    QApplication::setFont(large);
    QWidget root;
    root.resize(600, 420);
    QWidget view(&root);
    view.setGeometry(33, 208, 567, 211);
    view.setProperty(pinnedProperty, QStringLiteral("bottom"));
    QWidget control(&view);
    control.setGeometry(172, 31, 259, 26);
    adoptDesign(&root);
    EXPECT_GE(control.width(), 259 * pixelSize / 16) << pixelSize;
    EXPECT_EQ(frameSize(&root), QSizeF(600, 420));
    EXPECT_EQ(frame(&view), QRectF(33, 1, 567, 211)) << pixelSize;
    EXPECT_EQ(frame(&control), QRectF(172, 154, 259, 26)) << pixelSize;
    for (const int height : {208, 389, 420}) {
      setFrameSize(&root, QSizeF(600, height));
      setFrame(&control, frame(&control).translated(0, 30));
      setFrame(&control, frame(&control).translated(0, -30));
    }
    EXPECT_EQ(frame(&view), QRectF(33, 1, 567, 211)) << pixelSize;
    EXPECT_EQ(frame(&control), QRectF(172, 154, 259, 26)) << pixelSize;
  }
  QApplication::setFont(usual);
}

TEST_F(FramesTest, KeepsTheOriginOfAViewThatRefusesASize) {
  subview.setMinimumHeight(20);
  setFrame(&subview, QRectF(10, 30, 40, 5));
  EXPECT_EQ(frame(&subview), QRectF(10, 30, 40, 20));
}

TEST_F(FramesTest, LeavesWindowsOfASuperviewAlone) {
  QWidget window(&superview, Qt::Window);
  window.setProperty(pinnedProperty, QStringLiteral("bottom"));
  window.setGeometry(7, 9, 30, 30);
  setFrameSize(&superview, QSizeF(200, 160));
  EXPECT_EQ(window.geometry().topLeft(), QPoint(7, 9));
}

TEST_F(FramesTest, WorksOnViewsThatWereNeverShownAndOnHiddenOnes) {
  subview.hide();
  setFrame(&subview, QRectF(1, 2, 3, 4));
  EXPECT_EQ(frame(&subview), QRectF(1, 2, 3, 4));
}

}  // namespace
}  // namespace orvek::test
