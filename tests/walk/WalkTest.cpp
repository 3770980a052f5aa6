// SPDX-License-Identifier: Apache-2.0
// Thousands of actions at random, with what must hold looked at after each. run.sh does many more.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QFile>

#include "tests/support/MemoryGrowth.h"
#include "tests/walk/Walk.h"

namespace orvek::test {
namespace {

constexpr int shortWalk = 2000;
/// By then all that is made once is there.
constexpr int settled = 10000;

int numberIn(const char *variable, int usual) {
  bool isNumber = false;
  const int number = qEnvironmentVariableIntValue(variable, &isNumber);
  return isNumber ? number : usual;
}

/// Bytes in memory at present.
long memoryNow() {
  QFile file(QStringLiteral("/proc/self/statm"));
  if (!file.open(QIODevice::ReadOnly)) return 0;
  return file.readAll().split(' ').value(1).toLong() * ::sysconf(_SC_PAGESIZE);
}

TEST(Walk, KeepsWhatMustHoldAfterEveryAction) {
  const int actions = numberIn("ORVEK_WALK_ACTIONS", shortWalk);
  Walk walk(static_cast<quint32>(numberIn("ORVEK_WALK_SEED", 1)));
  long then = 0;
  for (int i = 1; i <= actions; ++i) {
    walk.step();
    const QString problem = walk.problem();
    ASSERT_TRUE(problem.isEmpty())
        << "action " << i << ", " << walk.action().toStdString() << ": " << problem.toStdString();
    if (i == settled) then = memoryNow();
  }
  if (actions <= settled || !memoryCanBeMeasured) return;
  constexpr long rounding = 2 << 20;
  std::printf("memory after %d actions: %ld kB, after %d: %ld kB\n", settled, then / 1024, actions,
              memoryNow() / 1024);
  EXPECT_LE(memoryNow(), then + rounding);
}

}  // namespace
}  // namespace orvek::test
