// SPDX-License-Identifier: Apache-2.0
// The pictures on a screen with two pixels to a point. A program of its own, since the density is
// settled when the application starts.

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>

#include "platform/ui/Controls.h"
#include "tests/resources/BundleFolder.h"

namespace orvek::test {
namespace {

TEST(DenseScreen, ShowsAPictureWithAllItsPixelsAtItsUsualSize) {
  ASSERT_EQ(qGuiApp->devicePixelRatio(), 2);
  QLabel view;
  setImage(&view, bundleFile(QStringLiteral("Stapling_Dual.png")));
  const QPixmap shown = view.pixmap(Qt::ReturnByValue);
  EXPECT_EQ(shown.size(), QSize(208, 192));
  EXPECT_EQ(shown.deviceIndependentSize(), QSizeF(104, 96));
  EXPECT_EQ(imageName(&view), "Stapling_Dual.png");
}

TEST(DenseScreen, LeavesTheViewEmptyWithoutAPicture) {
  QLabel view;
  setImage(&view, bundleFile(QStringLiteral("Stapling_Missing.png")));
  EXPECT_TRUE(view.pixmap(Qt::ReturnByValue).isNull());
  EXPECT_TRUE(imageName(&view).isNull());
}

}  // namespace
}  // namespace orvek::test

int main(int argc, char **argv) {
  qputenv("QT_SCALE_FACTOR", "2");
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  ::testing::InitGoogleTest(&argc, argv);
  const QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
