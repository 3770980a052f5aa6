// SPDX-License-Identifier: Apache-2.0
// What is left of a screen and its buses when the test that has them is killed.

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QProcess>

#include "tests/access/AccessBus.h"
#include "tests/support/Descendants.h"

namespace orvek::test {
namespace {

TEST(AnAccessBus, EndsWithATestThatIsKilled) {
  if (!AccessBus::obstacle().isEmpty()) GTEST_SKIP() << AccessBus::obstacle().toStdString();
  constexpr int endingTime = 5000;
  const Descendants descendants;
  QProcess test;
  test.start(QCoreApplication::applicationFilePath(),
             {QStringLiteral("--gtest_filter=Listener.HearsWhatConstraintsChanged")});
  ASSERT_TRUE(descendants.waitFor("orvek-print")) << test.readAll().toStdString();
  ASSERT_TRUE(descendants.names().contains("Xvfb"));
  test.kill();
  ASSERT_TRUE(test.waitForFinished());
  EXPECT_TRUE(descendants.waitForNone(endingTime)) << descendants.names().join(' ').toStdString();
}

}  // namespace
}  // namespace orvek::test
