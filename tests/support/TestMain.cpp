// SPDX-License-Identifier: Apache-2.0
// The one main of all test programs: a Qt application, off-screen unless a platform was named.

#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char **argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
