// SPDX-License-Identifier: Apache-2.0
// The program before a print server that wants a password, with a terminal and without.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <unistd.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdlib>

#include "tests/host/cli/Program.h"
#include "tests/support/FrontServer.h"

namespace orvek::test {
namespace {

const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");

/// A terminal with somebody who answers each question with the next line.
class Terminal {
 public:
  explicit Terminal(QByteArrayList lines)
      : m_lines(std::move(lines)), m_keyboard(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC)) {
    EXPECT_EQ(::grantpt(m_keyboard), 0);
    EXPECT_EQ(::unlockpt(m_keyboard), 0);
    m_name = ::ptsname(m_keyboard);
  }
  ~Terminal() { ::close(m_keyboard); }
  Terminal(const Terminal &) = delete;
  Terminal &operator=(const Terminal &) = delete;

  const QByteArray &name() const { return m_name; }
  const QByteArray &screen() const { return m_screen; }
  qsizetype linesLeft() const { return m_lines.size(); }

  /// False where nothing came on the screen for a moment.
  bool work() {
    constexpr int moment = 20;
    pollfd ready{m_keyboard, POLLIN, 0};
    if (::poll(&ready, 1, moment) <= 0 || (ready.revents & POLLIN) == 0) return false;
    char bytes[256];
    const ssize_t count = ::read(m_keyboard, bytes, sizeof bytes);
    if (count <= 0) return false;
    m_screen.append(bytes, count);
    if (!m_screen.endsWith("? ") || m_lines.isEmpty()) return true;
    const QByteArray line = m_lines.takeFirst();
    EXPECT_EQ(::write(m_keyboard, line.constData(), std::size_t(line.size())), line.size());
    return true;
  }

 private:
  QByteArrayList m_lines;
  int m_keyboard;
  QByteArray m_name;
  QByteArray m_screen;
};

class ProgramPassword : public ::testing::Test {
 protected:
  void SetUp() override {
    const QString obstacle = PrivateCups::obstacle() + FrontServer::obstacle();
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    cups = std::make_unique<PrivateCups>();
    ASSERT_EQ(cups->addQueue("office", testPpd("finisher.ppd")).exitStatus, 0);
    guard(Guarded::Everything);
  }

  void guard(Guarded guarded) { server = std::make_unique<FrontServer>(*cups, guarded); }

  /// A run as user anna; without a terminal where there is none to control it.
  ProgramRun run(const QStringList &more, Terminal *terminal = nullptr) {
    QProcess program;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("XDG_CACHE_HOME", cache.path());
    program.setProcessEnvironment(environment);
    const QByteArray name = terminal == nullptr ? QByteArray() : terminal->name();
    program.setChildProcessModifier([name] {
      ::setsid();
      // The first terminal that the leader of a session opens controls it.
      if (!name.isEmpty()) ::open(name.constData(), O_RDWR);
    });
    program.start(
        QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print"),
        QStringList{"--headless", "-h", server->hostAndPort(), "-U", "anna", "-d", "office"} +
            more);
    program.closeWriteChannel();
    ProgramRun done;
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < longestRun;) {
      if (program.waitForFinished(moment)) break;
      if (terminal != nullptr) terminal->work();
    }
    // The program's last words may still be on their way.
    while (terminal != nullptr && terminal->work()) {
    }
    if (program.state() == QProcess::NotRunning) done.status = program.exitCode();
    done.output = program.readAllStandardOutput();
    done.errors = program.readAllStandardError();
    return done;
  }

  static constexpr int longestRun = 30000;
  static constexpr int moment = 20;
  QTemporaryDir cache;
  std::unique_ptr<PrivateCups> cups;
  std::unique_ptr<FrontServer> server;
};

TEST_F(ProgramPassword, IsMissedInOneLineWithoutATerminal) {
  const ProgramRun job = run({"--print", document});
  EXPECT_EQ(job.status, 1);
  EXPECT_EQ(job.output, "");
  ASSERT_EQ(job.errorLines().size(), 1) << job.errors.constData();
  EXPECT_EQ(job.errorLines().first(),
            "orvek-print: " + server->hostAndPort().toUtf8() +
                ": the print server asks for the password of user \"anna\", and there is no "
                "terminal to read it from");
}

TEST_F(ProgramPassword, IsAskedForOnceAndNotShown) {
  Terminal terminal({"secret\r", "again\r"});
  const ProgramRun job = run({"--print", document}, &terminal);
  EXPECT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_EQ(job.output, "request id is office-1 (1 file(s))\n");
  EXPECT_EQ(terminal.screen().toStdString(),
            "Password for anna on " + server->hostAndPort().toStdString() + "? \r\n");
  EXPECT_EQ(terminal.linesLeft(), 1);
}

TEST_F(ProgramPassword, IsAskedForOnlyWhereItIsNeeded) {
  guard(Guarded::Queues);
  Terminal terminal({"secret\r"});
  const ProgramRun job = run({"--print", document}, &terminal);
  EXPECT_EQ(job.status, 0) << job.errors.constData();
  EXPECT_EQ(terminal.linesLeft(), 0);
  Terminal unused({"secret\r"});
  EXPECT_EQ(run({"--list-printers"}, &unused).status, 0);
  EXPECT_EQ(unused.linesLeft(), 1);
}

TEST_F(ProgramPassword, LeavesTheStandardOutputAlone) {
  Terminal terminal({"secret\r"});
  const ProgramRun session = run({"--inspect"}, &terminal);
  EXPECT_EQ(session.json().value("modelNumber"), "6180") << session.errors.constData();
}

TEST_F(ProgramPassword, MayBeCorrected) {
  Terminal terminal({"wrong\r", "nonsense\x15secrex\x7ft\r"});
  EXPECT_EQ(run({"--print", document}, &terminal).status, 0);
  EXPECT_EQ(terminal.linesLeft(), 0);
}

TEST_F(ProgramPassword, IsNotAskedForAFourthTime) {
  Terminal terminal({"a\r", "b\r", "c\r", "d\r"});
  const ProgramRun job = run({"--print", document}, &terminal);
  EXPECT_EQ(job.status, 1);
  ASSERT_EQ(job.errorLines().size(), 1) << job.errors.constData();
  EXPECT_TRUE(job.errorLines().first().endsWith(
      "the print server did not accept the password of user \"anna\", given 3 times"))
      << job.errors.constData();
  EXPECT_EQ(terminal.linesLeft(), 1);
}

TEST_F(ProgramPassword, MayBeRefusedToTheServer) {
  for (const char *giveUp : {"\r", "\x03", "\x04"}) {
    Terminal terminal({giveUp});
    const ProgramRun job = run({"--print", document}, &terminal);
    EXPECT_EQ(job.status, 1);
    ASSERT_EQ(job.errorLines().size(), 1) << job.errors.constData();
    EXPECT_TRUE(job.errorLines().first().contains("none was given"));
  }
  EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
}

TEST_F(ProgramPassword, IsAskedForToListPrinters) {
  Terminal terminal({"secret\r"});
  EXPECT_EQ(run({"--list-printers"}, &terminal).output, "office\tIdle\t\n");
}

}  // namespace
}  // namespace orvek::test
