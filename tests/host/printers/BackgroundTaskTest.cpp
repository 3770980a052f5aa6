// SPDX-License-Identifier: Apache-2.0
// Work on a thread, its result where it is wanted.

#include "host/printers/BackgroundTask.h"

#include <gtest/gtest.h>

#include <QTest>
#include <QThread>

namespace orvek::test {
namespace {

int seven(const BackgroundTask::Cancelled &) {
  return 7;
}

int untilCancelled(const BackgroundTask::Cancelled &cancelled) {
  while (!cancelled) QThread::msleep(1);
  return 0;
}

TEST(BackgroundTask, GivesItsResultOnTheOwnersThread) {
  QObject owner;
  BackgroundTask task;
  int result = 0;
  QThread *heardOn = nullptr;
  task.start(&owner, seven, [&](int value) {
    result = value;
    heardOn = QThread::currentThread();
  });
  EXPECT_TRUE(QTest::qWaitFor([&] { return result == 7; }));
  EXPECT_EQ(heardOn, QThread::currentThread());
}

TEST(BackgroundTask, SaysNothingOnceCancelled) {
  constexpr int longEnough = 100;
  QObject owner;
  BackgroundTask task;
  bool heard = false;
  task.start(&owner, untilCancelled, [&](int) { heard = true; });
  task.cancel();
  QTest::qWait(longEnough);
  EXPECT_FALSE(heard);
}

TEST(BackgroundTask, DropsEarlierWorkForNewWork) {
  QObject owner;
  BackgroundTask task;
  int earlier = 0;
  int result = 0;
  task.start(&owner, untilCancelled, [&](int) { ++earlier; });
  task.start(&owner, seven, [&](int value) { result = value; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return result == 7; }));
  EXPECT_EQ(earlier, 0);
}

TEST(BackgroundTask, DoesNotWaitForEarlierWorkThatIsSlowToNotice) {
  std::atomic<bool> mayEnd = false;
  QObject owner;
  BackgroundTask task;
  int result = 0;
  task.start(
      &owner,
      [&mayEnd](const BackgroundTask::Cancelled &) {
        while (!mayEnd) QThread::msleep(1);
        return 1;
      },
      [&](int value) { result = value; });
  task.start(&owner, seven, [&](int value) { result = value; });
  EXPECT_TRUE(QTest::qWaitFor([&] { return result == 7; }));
  mayEnd = true;
  QTest::qWait(1);
  EXPECT_EQ(result, 7);
}

TEST(BackgroundTask, MayBeDestroyedWhileItRuns) {
  QObject owner;
  bool heard = false;
  {
    BackgroundTask task;
    task.start(&owner, untilCancelled, [&](int) { heard = true; });
  }
  QTest::qWait(1);
  EXPECT_FALSE(heard);
}

}  // namespace
}  // namespace orvek::test
