// SPDX-License-Identifier: Apache-2.0
// The program before hostile print servers: an end within the bound, one line, the right status.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <csignal>
#include <thread>

#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/HostileServer.h"

namespace orvek::test {
namespace {

constexpr qint64 longestMilliseconds = 12000;
const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");

/// One run before one server.
struct Run {
  Hostility hostility;
  ProgramRun ended = {};
  qint64 milliseconds = 0;
};

void runBefore(Run &run, const QStringList &arguments, const QString &cache) {
  const HostileServer server(run.hostility);
  QElapsedTimer clock;
  clock.start();
  run.ended = runProgram(QStringList{"-h", server.hostAndPort()} + arguments,
                         {{"ORVEK_PRINT_PATIENCE=0.3", "XDG_CACHE_HOME=" + cache}, {}, {}});
  run.milliseconds = clock.elapsed();
}

// All at once: most of the time is spent waiting.
void expectOneLineOfEach(const QStringList &arguments) {
  const QTemporaryDir cache;
  std::vector<Run> runs;
  for (const Hostility hostility : allHostilities()) {
    // That one's answers can be read; a password may be asked for on the terminal of whoever tests.
    const bool isOdd =
        hostility == Hostility::WrongRequestId || hostility == Hostility::PasswordsForEver;
    if (!isOdd) runs.push_back({hostility});
  }
  std::vector<std::thread> threads;
  threads.reserve(runs.size());
  for (Run &run : runs) {
    threads.emplace_back([&] { runBefore(run, arguments, cache.path()); });
  }
  for (std::thread &thread : threads) thread.join();
  for (const Run &run : runs) {
    SCOPED_TRACE(nameOf(run.hostility));
    EXPECT_LT(run.milliseconds, longestMilliseconds);
    EXPECT_EQ(run.ended.status, 1);
    EXPECT_EQ(run.ended.output, "");
    EXPECT_EQ(run.ended.errorLines().size(), 1) << run.ended.errors.constData();
    EXPECT_EQ(run.ended.errors.count('\n'), 1) << run.ended.errors.constData();
  }
}

TEST(ProgramServer, IsLeftInOneLineByAList) {
  expectOneLineOfEach({"--list-printers"});
}

TEST(ProgramServer, IsLeftInOneLineByAJob) {
  expectOneLineOfEach({"--headless", "--print", "-d", "office", document});
}

TEST(ProgramServer, IsNamedWithTheReasonWhereThereIsNone) {
  const ProgramRun run = runProgram({"-h", "127.0.0.1:1", "--list-printers"});
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors,
            "orvek-print: 127.0.0.1:1: no print server answers there (Connection refused)\n");
}

TEST(ProgramServer, IsConnectedToOnceForASessionAndItsJob) {
  const QTemporaryDir cache;
  const HostileServer server(Hostility::None);
  const ProgramRun run =
      runProgram({"-h", server.hostAndPort(), "-d", "office", "--headless", "--print", document},
                 {{"XDG_CACHE_HOME=" + cache.path()}, {}, {}});
  EXPECT_EQ(run.status, 0) << run.errors.constData();
  EXPECT_EQ(run.output, "request id is office-1 (1 file(s))\n");
  EXPECT_EQ(server.connections(), 1U);
}

QByteArray childrenOf(qint64 process) {
  return contentsOf(QStringLiteral("/proc/%1/task/%1/children").arg(process)).simplified();
}

// An ended one may have nobody to notice.
bool isRunning(const QByteArray &process) {
  const QByteArray state = contentsOf(QStringLiteral("/proc/%1/stat").arg(process.constData()));
  return !state.isEmpty() && !state.mid(state.lastIndexOf(')')).startsWith(") Z");
}

bool comesTrue(const std::function<bool()> &condition) {
  constexpr int soon = 5000;
  constexpr int moment = 10000;
  QElapsedTimer clock;
  for (clock.start(); clock.elapsed() < soon; ::usleep(moment)) {
    if (condition()) return true;
  }
  return false;
}

TEST(HelperOfTheProgram, EndsWithItWhateverEndsIt) {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
    SCOPED_TRACE(signal);
    const HostileServer server(Hostility::Silence);
    QProcess program;
    program.start(QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print"),
                  {"-h", server.hostAndPort(), "--list-printers"});
    ASSERT_TRUE(program.waitForStarted());
    QByteArray helper;
    ASSERT_TRUE(comesTrue([&] {
      helper = childrenOf(program.processId());
      return !helper.isEmpty();
    }));
    EXPECT_TRUE(isRunning(helper));
    ::kill(static_cast<pid_t>(program.processId()), signal);
    program.waitForFinished();
    EXPECT_TRUE(comesTrue([&] { return !isRunning(helper); }));
  }
}

}  // namespace
}  // namespace orvek::test
