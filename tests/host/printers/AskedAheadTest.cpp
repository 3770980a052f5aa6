// SPDX-License-Identifier: Apache-2.0
// Questions whose answers are there when somebody asks.

#include <gtest/gtest.h>

#include <QThread>

#include "host/printers/PrinterList.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

const QString firstQueue = QStringLiteral("first");
const QString secondQueue = QStringLiteral("second");
const QString noQueue = QStringLiteral("none");

class AskedAhead : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    for (const QString &name : {firstQueue, secondQueue}) {
      const auto made = cups->addQueue(name, orvekPPD(QStringLiteral("6180")));
      ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
    }
  }

  static std::string found(const ServerAccess &access, const QString &destination) {
    const auto queue = findPrinter(access, destination);
    return queue ? queue.value().name.toStdString() : queue.failure().line().toStdString();
  }

  std::unique_ptr<PrivateCups> cups;
};

// How long an answer takes depends on the machine.
TEST_F(AskedAhead, IsKnownThoughTheServerFallsSilentThen) {
  ServerAccess access;
  access.patience = 100ms;
  EXPECT_EQ(found(access, secondQueue), "second");
  std::string answer;
  for (unsigned long wait = 20; wait < 5000 && answer != "second"; wait *= 2) {
    findPrinterAhead(access, secondQueue);
    QThread::msleep(wait);
    cups->pause();
    answer = found(access, secondQueue);
    cups->resume();
  }
  EXPECT_EQ(answer, "second");
}

TEST_F(AskedAhead, IsDroppedByAnotherQuestion) {
  for (const QString &ahead : {firstQueue, noQueue}) {
    findPrinterAhead({}, ahead);
    EXPECT_EQ(found({}, secondQueue), "second");
    findPrinterAhead({}, ahead);
    EXPECT_EQ(listPrinters({}).value().size(), 2);
    const auto talk = ServerTalk::open({}).take();
    talk->askAhead(ServerTask::Find, {{QLatin1String("destination"), fieldOf(ahead)}});
    talk->askAhead(ServerTask::List, {});
    EXPECT_EQ(findPrinter(*talk, secondQueue).value().name, secondQueue);
  }
}

TEST_F(AskedAhead, IsForNobodyWhoAsksAnotherServerOrAsAnother) {
  findPrinterAhead({}, firstQueue);
  const ServerAccess other{cups->hostAndPort(), QStringLiteral("nobody")};
  EXPECT_EQ(found(other, firstQueue), "first");
  EXPECT_EQ(ServerTalk::open(other).value()->serverName(), cups->hostAndPort());
}

TEST_F(AskedAhead, FailsAsItDoesForWhoeverWaits) {
  const ServerAccess deaf{QStringLiteral("127.0.0.1:%1").arg(freePort()), {}};
  for (const auto &[access, queue] : {std::pair(ServerAccess(), noQueue), {deaf, firstQueue}}) {
    const std::string waited = found(access, queue);
    findPrinterAhead(access, queue);
    EXPECT_EQ(found(access, queue), waited);
  }
}

}  // namespace
}  // namespace orvek::test
