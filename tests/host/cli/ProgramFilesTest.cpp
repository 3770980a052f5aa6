// SPDX-License-Identifier: Apache-2.0
// What the program writes on a full disk, below a limit, and into pipes.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"

namespace orvek::test {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class ProgramOnAFullDisk : public testing::Test {
 protected:
  void SetUp() override {
    const ProgramRun trial = runFull(QStringLiteral("true"));
    if (trial.status != 0) GTEST_SKIP() << "no file system of its own: " << trial.errors.data();
  }

  /// Runs the script in a small file system of its own, where `fill` leaves no room.
  ProgramRun runFull(const QString &script) const {
    return runScript(QStringLiteral("mount -t tmpfs -o size=256k none %1 && cd %1 || exit 77\n"
                                    "export XDG_DATA_HOME=%1\n"
                                    "fill() { cat /dev/zero 2>/dev/null >fill; }\n")
                             .arg(dir.path()) +
                         script,
                     {"unshare", "-rm"});
  }

  /// What the file held before it must hold after, and the reason must be said.
  void expectOldFileKept(const QString &option, const QString &document = {}) const {
    const ProgramRun run = runFull(
        QStringLiteral("echo old >made; fill; $program %1 made %2; status=$?; cat made; ls -A\n"
                       "exit $status")
            .arg(option, document));
    EXPECT_EQ(run.status, 1) << run.errors.data();
    EXPECT_EQ(run.output, "old\nfill\nmade\n");
    ASSERT_EQ(run.errorLines().size(), 1) << run.errors.data();
    EXPECT_THAT(run.errorLines().first().toStdString(),
                AllOf(HasSubstr("made: "), EndsWith("No space left on device")));
  }

  QTemporaryDir dir;
};

TEST_F(ProgramOnAFullDisk, KeepsTheOldTicket) {
  expectOldFileKept(QStringLiteral("--do staplingPopup=Front --ticket-out"));
}

TEST_F(ProgramOnAFullDisk, KeepsTheOldPicture) {
  expectOldFileKept(QStringLiteral("--screenshot"));
}

TEST_F(ProgramOnAFullDisk, KeepsTheOldOutput) {
  expectOldFileKept(QStringLiteral("--print --output"),
                    QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"));
}

TEST_F(ProgramOnAFullDisk, KeepsTheOldPreset) {
  const ProgramRun run =
      runFull(QStringLiteral("$program --do staplingPopup=Front --save-preset kept || exit\n"
                             "before=$(md5sum orvek-print/presets/*); fill\n"
                             "$program --save-preset kept; status=$?\n"
                             "[ \"$before\" = \"$(md5sum orvek-print/presets/*)\" ] && echo same\n"
                             "exit $status"));
  EXPECT_EQ(run.status, 1) << run.errors.data();
  EXPECT_THAT(run.output.toStdString(), EndsWith("same\n"));
  ASSERT_EQ(run.errorLines().size(), 1) << run.errors.data();
  EXPECT_THAT(run.errorLines().first().toStdString(), EndsWith("No space left on device"));
}

TEST(ProgramFiles, BeyondALimitOnTheirSizeStayWhatTheyWere) {
  const QTemporaryDir dir;
  const ProgramRun run = runScript(QStringLiteral("cd %1; echo old >made; ulimit -f 2\n"
                                                  "$program --screenshot made; status=$?\n"
                                                  "cat made; ls -A; exit $status")
                                       .arg(dir.path()));
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.output, "old\nmade\n");
  ASSERT_EQ(run.errorLines().size(), 1) << run.errors.data();
  EXPECT_THAT(run.errorLines().first().toStdString(), EndsWith("made: File too large"));
}

TEST(ProgramFiles, GoIntoAPipe) {
  const QByteArray start("\x89PNG");
  EXPECT_TRUE(
      runScript(QStringLiteral("$program --screenshot /dev/stdout")).output.startsWith(start));
  const QTemporaryDir dir;
  const ProgramRun run = runScript(QStringLiteral("cd %1; mkfifo pipe; cat pipe & \n"
                                                  "$program --screenshot pipe || exit; wait\n"
                                                  "[ -p pipe ]")
                                       .arg(dir.path()));
  EXPECT_EQ(run.status, 0) << run.errors.data();
  EXPECT_TRUE(run.output.startsWith(start));
}

TEST(ProgramFiles, AreNotWaitedForTwiceWhereTheyAreEmptyPipes) {
  for (const char *job : {"--output out", "--print -d office -h 127.0.0.1:1"}) {
    const QTemporaryDir dir;
    const ProgramRun run = runScript(QStringLiteral("cd %1; mkfifo pipe; : >pipe &\n"
                                                    "timeout 10 $program %2 --inspect pipe\n")
                                         .arg(dir.path(), QLatin1String(job)));
    EXPECT_EQ(run.status, 1) << job;
    EXPECT_EQ(run.errorLines(),
              QByteArrayList{"orvek-print: pipe: is empty, so there is nothing to print"});
    EXPECT_EQ(run.output, "");
  }
}

TEST(ProgramFiles, GoBeforeWhatFollowsOnTheSameStream) {
  const QTemporaryDir dir;
  const ProgramRun run = runScript(QStringLiteral("cd %1; (echo first\n"
                                                  "$program --ticket-out /dev/stdout\n"
                                                  "echo last) >all; cat all")
                                       .arg(dir.path()));
  EXPECT_EQ(run.status, 0) << run.errors.data();
  EXPECT_THAT(run.output.toStdString(), AllOf(StartsWith("first\n{"), EndsWith("}\nlast\n")));
}

}  // namespace
}  // namespace orvek::test
