// SPDX-License-Identifier: Apache-2.0
// Jobs whose document or output would get lost: the driver says so.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <array>

#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

const QString kSheets = QStringLiteral("\"$D\" --sheets 1 u t 1 '' ");
const QString kJob = QStringLiteral("\"$D\" 1 u t 1 '' ");
const QString kBooklet = QStringLiteral("\"$D\" 1 u t 1 OVKEnableBooklet ");
const QString kError = QStringLiteral("ERROR: ");

class LostOutput : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    file = kit.write(QStringLiteral("in.pdf"), markedDocument(200));
    script = kit.write(QStringLiteral("in.ps"), postScriptDocument(3).toStdString());
    environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("D"), kit.filter());
    environment.insert(QStringLiteral("PDF"), file);
    environment.insert(QStringLiteral("PS"), script);
    environment.insert(QStringLiteral("TMPDIR"), kit.path(QString()));
    environment.insert(QStringLiteral("CUPS_SERVERBIN"), QStringLiteral("/usr/lib/cups"));
  }

  /// Runs commands of a shell; $D is the driver, $PDF and $PS are documents.
  Printed run(const QString &commands) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), commands});
    return finish(process);
  }

  void expectRefused(const QString &commands, const QString &about) {
    const Printed printed = run(commands);
    EXPECT_EQ(printed.exitStatus, 1) << commands.toStdString();
    const QStringList said = printed.lines(kError);
    ASSERT_EQ(said.size(), 1) << commands.toStdString()
                              << printed.messages.join(u'|').toStdString();
    EXPECT_TRUE(said[0].contains(about)) << said[0].toStdString();
    EXPECT_TRUE(printed.output.isEmpty()) << commands.toStdString();
  }

  DriverKit kit;
  QString file;
  QString script;
  QProcessEnvironment environment;
};

TEST_F(LostOutput, IsNoticedWhereThereIsNoRoomForAllOfTheSheets) {
  // Files may grow to so many blocks of half a kilobyte; a write beyond fails as on a full disk.
  for (const int blocks : {1, 20, 80, 120}) {
    expectRefused(QStringLiteral("ulimit -f %1; ").arg(blocks) + kSheets + "\"$PDF\"",
                  QStringLiteral("its sheets can't be written"));
  }
}

TEST_F(LostOutput, IsNoticedWhereAFilterHasNoRoomForTheDocument) {
  expectRefused("cat \"$PDF\" | (trap '' XFSZ; ulimit -f 0; " + kJob + ")",
                QStringLiteral("pdftops: it made nothing of the document"));
}

TEST_F(LostOutput, IsNoticedWhereAFilterMakesNothingOfTheSheets) {
  run(
      QStringLiteral("mkdir -p \"$TMPDIR/filter\"; cd \"$TMPDIR/filter\"; "
                     "printf '#!/bin/sh\\ncat >/dev/null\\n' >pdftops; chmod 755 pdftops"));
  environment.insert(QStringLiteral("CUPS_SERVERBIN"), kit.path(QString()));
  expectRefused(kBooklet + "\"$PDF\"", QStringLiteral("pdftops: it made nothing of the document"));
}

TEST_F(LostOutput, IsNoFaultWhereTheDocumentIsEmpty) {
  for (const QString &job : {kJob, kBooklet, kSheets}) {
    const Printed printed = run(job + "</dev/null");
    EXPECT_EQ(printed.exitStatus, 0) << job.toStdString();
    EXPECT_TRUE(printed.lines(kError).isEmpty()) << printed.messages.join(u'|').toStdString();
  }
}

TEST_F(LostOutput, IsNoticedWhereADocumentCanNotBeRead) {
  for (const QString &job : {kSheets, kJob, kBooklet}) {
    expectRefused(job + "/usr", QStringLiteral("/usr: Is a directory"));
    expectRefused(job + "/proc/self/mem", QStringLiteral("/proc/self/mem: Input/output error"));
    expectRefused(job + "</usr", QStringLiteral("the document: Is a directory"));
  }
}

TEST_F(LostOutput, IsNoticedWhereThePPDCanNotBeRead) {
  environment.insert(QStringLiteral("PPD"), QStringLiteral("/usr"));
  expectRefused(kSheets + "\"$PDF\"", QStringLiteral("/usr: this PPD can't be read"));
}

TEST_F(LostOutput, IsNoticedWhereAStandardDescriptorIsClosed) {
  const QString input = QStringLiteral("standard input: it is closed");
  const QString output = QStringLiteral("standard output: it is closed");
  for (const QString &job : {kSheets, kJob, kBooklet}) {
    expectRefused(job + "\"$PDF\" <&- >&-", output);
    expectRefused(job + "\"$PDF\" >&-", output);
    expectRefused(job + "<&-", input);
    EXPECT_EQ(run(job + "\"$PDF\" >&- 2>&-").exitStatus, 1) << job.toStdString();
  }
}

TEST_F(LostOutput, IsNoneWhereOnlyStandardInputIsClosedAndTheDocumentIsAFile) {
  const Printed open = run(kSheets + "\"$PDF\" </dev/null");
  const Printed closed = run(kSheets + "\"$PDF\" <&- 2>&-");
  EXPECT_EQ(closed.exitStatus, 0);
  EXPECT_EQ(closed.output.size(), open.output.size());
  EXPECT_EQ(run(kJob + "\"$PS\" <&-").lines(QStringLiteral("PAGE: ")).size(), 3);
}

TEST_F(LostOutput, IsNoneWhereADocumentComesByAFIFO) {
  const QString fifo = QStringLiteral("mkfifo \"$TMPDIR/fifo\"; cat \"$%1\" >\"$TMPDIR/fifo\" & ");
  const QString end =
      QStringLiteral("timeout 30 %1 \"$TMPDIR/fifo\"; s=$?; rm \"$TMPDIR/fifo\"; exit $s");
  const Printed sheets = run(fifo.arg(QStringLiteral("PDF")) + end.arg(kSheets));
  EXPECT_EQ(sheets.exitStatus, 0);
  EXPECT_EQ(sheets.output.size(), run(kSheets + "\"$PDF\"").output.size());
  const Printed printed = run(fifo.arg(QStringLiteral("PS")) + end.arg(kJob));
  EXPECT_EQ(printed.exitStatus, 0);
  EXPECT_EQ(printed.lines(QStringLiteral("PAGE: ")).size(), 3);
}

TEST_F(LostOutput, IsNoneWherePostScriptIsSlowInComing) {
  for (const QString &job : {kJob, kBooklet}) {
    const Printed atOnce = run(job + "<\"$PS\"");
    const Printed slow = run("(printf %%; sleep .3; tail -c +2 \"$PS\") | " + job);
    EXPECT_EQ(slow.exitStatus, 0);
    EXPECT_FALSE(atOnce.lines(QStringLiteral("PAGE: ")).isEmpty());
    EXPECT_EQ(slow.lines(QStringLiteral("PAGE: ")), atOnce.lines(QStringLiteral("PAGE: ")));
  }
}

TEST_F(LostOutput, IsNoneWherePostScriptComesByASocket) {
  std::array<int, 2> ends{};
  ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
  const QByteArray document = contentsOf(script);
  ASSERT_EQ(::write(ends[1], document.constData(), std::size_t(document.size())), document.size());
  ::close(ends[1]);
  QProcess process;
  process.setProcessEnvironment(environment);
  process.setChildProcessModifier([&] { ::dup2(ends[0], STDIN_FILENO); });
  process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), kJob});
  const Printed printed = finish(process);
  ::close(ends[0]);
  EXPECT_EQ(printed.exitStatus, 0);
  EXPECT_EQ(printed.lines(QStringLiteral("PAGE: ")).size(), 3);
}

}  // namespace
}  // namespace orvek::test
