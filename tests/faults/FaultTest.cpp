// SPDX-License-Identifier: Apache-2.0
// Sessions one of whose calls fails, that are killed, and whose disk is full: nothing that was
// saved is lost, one line says what went wrong, and the exit status is right. In short here; run.sh
// does it for every call.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QRandomGenerator>

#include "tests/faults/Fault.h"
#include "tests/faults/FaultSession.h"

namespace orvek::test {
namespace {

constexpr qint64 hangs = 10000;

int numberIn(const char *variable, int usual) {
  bool isNumber = false;
  const int number = qEnvironmentVariableIntValue(variable, &isNumber);
  return isNumber ? number : usual;
}

bool isWhole() {
  return qEnvironmentVariableIsSet("ORVEK_FAULTS_ALL");
}

class Faults : public testing::TestWithParam<SessionKind> {
 protected:
  void SetUp() override {
    const QString obstacle = FaultSession::obstacle(GetParam());
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    session = std::make_unique<FaultSession>(GetParam());
  }

  /// Runs with the call of this number failing; false where there was no such call any more.
  bool runWith(const FailingFunction &function, int number) {
    const CallCount count(session->folder() + QStringLiteral("/count"));
    QElapsedTimer clock;
    clock.start();
    const ProgramRun run = session->run(count.begin(function, number));
    const QString problem = session->problemOf(run);
    EXPECT_TRUE(problem.isEmpty() && clock.elapsed() < hangs)
        << problem.toStdString() << "\nwith " << function.family << " number " << number
        << " failing with " << std::strerror(function.error) << ", status " << run.status
        << " after " << clock.elapsed() << " ms:\n"
        << run.errors.constData();
    ++runs;
    return count.calls() >= number;
  }

  int callsOf(const FailingFunction &function) {
    const CallCount count(session->folder() + QStringLiteral("/count"));
    session->run(count.begin(function, 0));
    return count.calls();
  }

  std::unique_ptr<FaultSession> session;
  int runs = 0;
};

TEST_P(Faults, OfOneCallLoseNothingAndAreSaidInOneLine) {
  constexpr std::size_t everySecond = 2;
  const auto kind = static_cast<std::size_t>(GetParam());
  for (std::size_t i = 0; i < failingFunctions.size(); ++i) {
    const FailingFunction &function = failingFunctions[i];
    if (isWhole()) {
      int number = 1;
      while (runWith(function, number)) ++number;
      std::printf("%s, %s: each of %d calls\n", function.family, std::strerror(function.error),
                  number - 1);
    } else if (i % everySecond == kind % everySecond) {
      // What a session does last is what it saves.
      if (const int calls = callsOf(function); calls > 0) runWith(function, calls);
    }
  }
  std::printf("%d runs\n", runs);
  EXPECT_GT(runs, 0);
}

TEST_P(Faults, OfAKillLeaveTheOlderOrTheNewer) {
  constexpr int shortKills = 3;
  const int kills = numberIn("ORVEK_FAULTS_KILLS", shortKills);
  QRandomGenerator random(static_cast<quint32>(numberIn("ORVEK_FAULTS_SEED", 1)));
  for (int i = 0; i < kills; ++i) {
    const int moment = int(random.bounded(quint32(session->usualMilliseconds()) + 1));
    session->killAfter(moment);
    const QString problem = session->problemOfFiles();
    EXPECT_TRUE(problem.isEmpty()) << problem.toStdString() << ", killed after " << moment << " ms";
  }
  // And the next one works as ever.
  const ProgramRun run = session->run();
  EXPECT_EQ(session->problemOf(run), QString());
  EXPECT_EQ(run.status, 0);
}

TEST_P(Faults, OfADiskThatFillsUpLeaveTheOlderOrTheNewer) {
  const ProgramRun trial = session->runOnFullDisk(0, {"true"});
  if (trial.status != 0) GTEST_SKIP() << "no file system of its own: " << trial.errors.data();
  const int mostPages = isWhole() ? 64 : 1;
  int full = 0;
  for (int pages = 0; pages <= mostPages; ++pages) {
    const ProgramRun run = session->runOnFullDisk(pages);
    const QString problem = session->problemOf(run);
    EXPECT_TRUE(problem.isEmpty()) << problem.toStdString() << ", with room for " << pages
                                   << " pages, status " << run.status << ":\n"
                                   << run.errors.constData();
    if (run.status != 0) ++full;
  }
  std::printf("%d disks, %d of them too small\n", mostPages + 1, full);
  // The queue's PPD has another place then, and nothing else of that session is a file.
  EXPECT_EQ(full > 0, GetParam() != SessionKind::Queue);
}

std::string nameOf(const testing::TestParamInfo<SessionKind> &kind) {
  constexpr std::array names{"Ticket", "Preset", "Output", "Queue", "Window"};
  return names.at(static_cast<std::size_t>(kind.param));
}

INSTANTIATE_TEST_SUITE_P(Sessions, Faults,
                         testing::Values(SessionKind::Ticket, SessionKind::Preset,
                                         SessionKind::Output, SessionKind::Queue,
                                         SessionKind::Window),
                         nameOf);

}  // namespace
}  // namespace orvek::test
