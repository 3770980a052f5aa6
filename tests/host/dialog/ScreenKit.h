// SPDX-License-Identifier: Apache-2.0
// The window on screens of several sizes, which the off-screen platform sets up side by side.
#pragma once

#include <QGuiApplication>
#include <QScreen>

#include "tests/host/dialog/DialogKit.h"

namespace orvek::test {

/// Milliseconds.
inline constexpr int settleTime = 40;

/// Screens are those of screens.json; a program of these tests begins by asking for them.
class ScreenTest : public DialogTest {
 protected:
  void SetUp() override {
    if (QGuiApplication::screens().size() < 2) GTEST_SKIP() << "the platform has its own screens";
    screen = screenOf(QStringLiteral("1280x720"));
    store = std::make_shared<PresetStore>(folder.filePath(QStringLiteral("data")));
    prepare = [this](DialogSetup &setup) { setup.presets = store; };
  }

  static QScreen *screenOf(const QString &name) {
    for (QScreen *each : QGuiApplication::screens()) {
      if (each->name() == name) return each;
    }
    return nullptr;
  }

  // One part after the other finds its place.
  static void settle() { QTest::qWait(settleTime); }

  std::shared_ptr<PresetStore> store;
};

}  // namespace orvek::test
