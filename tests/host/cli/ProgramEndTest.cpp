// SPDX-License-Identifier: Apache-2.0
// Whatever ends the program ends its filters, too, and takes its temporary files along.

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <csignal>

#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/Descendants.h"

namespace orvek::test {
namespace {

constexpr int soon = 3000;

class ProgramEnd : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  }

  void start(const QStringList &arguments) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("TMPDIR"), temporary.path());
    // Else the toolkit makes a folder for it there.
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), folder.path());
    program.setProcessEnvironment(environment);
    program.start(Surroundings().program, QStringList{"--headless"} + arguments);
    ASSERT_TRUE(program.waitForStarted());
  }

  QStringList print(const QString &ppd) const {
    return {"--ppd", ppd, "--output", folder.filePath("out.ps")};
  }

  QStringList files() const {
    return QDir(temporary.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
  }

  void killWith(int signal) {
    ::kill(static_cast<pid_t>(program.processId()), signal);
    expectNothingIsLeft();
  }

  void expectNothingIsLeft() {
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_TRUE(descendants.waitForNone(soon)) << descendants.names().join(' ').constData();
    EXPECT_EQ(files(), QStringList());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), written);
  }

  const Descendants descendants;
  const QTemporaryDir temporary;
  const QTemporaryDir folder;
  /// What is to be found beside the output.
  QStringList written;
  QProcess program;
};

std::string nameOf(const testing::TestParamInfo<int> &signal) {
  return ::sigabbrev_np(signal.param);
}

INSTANTIATE_TEST_SUITE_P(By, ProgramEnd, testing::Values(SIGINT, SIGTERM, SIGHUP, SIGKILL), nameOf);

TEST_P(ProgramEnd, EndsFiltersAtWorkAndRemovesTheSpooledDocument) {
  start(print(orvekPPD("6180")) << "-o"
                                << "OVKEnableBooklet=True"
                                << "-");
  program.write(QByteArray::fromStdString(markedDocument(2000)));
  program.closeWriteChannel();
  while (program.bytesToWrite() > 0) program.waitForBytesWritten();
  ASSERT_TRUE(descendants.waitFor("gs")) << descendants.names().join(' ').constData();
  EXPECT_NE(files(), QStringList());
  killWith(GetParam());
}

TEST_P(ProgramEnd, EndsFiltersThatDoNotListenAndWhatTheyLeftBehind) {
  const CapturingFilter filter(
      QStringLiteral("trap '' TERM INT HUP\n(setsid sleep 61 &)\n"
                     "while :; do sleep 1; done"));
  start(print(filter.ppdFile()) << ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");
  ASSERT_TRUE(descendants.waitFor("capture")) << descendants.names().join(' ').constData();
  ASSERT_TRUE(descendants.waitFor("sleep"));
  killWith(GetParam());
}

TEST_P(ProgramEnd, EndsThePreviewsConversion) {
  const QString text = folder.filePath("long.txt");
  written = QStringList{"long.txt"};
  writeContents(text, QByteArray("A line of a long text.\n").repeated(1'000'000));
  start({"--ppd", orvekPPD("6180"), "--inspect", text});
  ASSERT_TRUE(descendants.waitFor("texttopdf")) << descendants.names().join(' ').constData();
  killWith(GetParam());
}

TEST_P(ProgramEnd, RemovesWhatHasComeOfADocument) {
  start(print(orvekPPD("6180")) << "-");
  program.write("%!PS\n");
  ASSERT_TRUE(Descendants::holdsWithin(soon, [this] {
    program.waitForBytesWritten(1);
    return !files().isEmpty();
  }));
  killWith(GetParam());
}

TEST_F(ProgramEnd, LeavesNothingOfAnOutputThatFailed) {
  const CapturingFilter filter(QStringLiteral("echo 'ERROR: no toner' >&2; exit 1"));
  start(print(filter.ppdFile()) << "-");
  program.write(postScriptDocument(2));
  program.closeWriteChannel();
  expectNothingIsLeft();
  EXPECT_EQ(program.exitCode(), 1);
  EXPECT_TRUE(program.readAllStandardError().endsWith("orvek-print: standard input: no toner\n"));
}

TEST_F(ProgramEnd, LeavesNothingOfAnOutputThatWasMade) {
  start(print(orvekPPD("6180")) << ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
  written = QStringList{"out.ps"};
  expectNothingIsLeft();
  EXPECT_EQ(program.exitCode(), 0);
}

TEST_F(ProgramEnd, EndsWhatAFilterLeftBehindWhenTheJobIsDone) {
  const CapturingFilter filter(QStringLiteral("sleep 61 >/dev/null 2>&1 &\ncat ${6:+\"$6\"}"));
  start(print(filter.ppdFile()) << ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");
  written = QStringList{"out.ps"};
  expectNothingIsLeft();
  EXPECT_EQ(program.exitCode(), 0);
}

TEST_F(ProgramEnd, SaysThatThereIsNoRoomForItsFiles) {
  const QString full = folder.filePath("full");
  const ProgramRun run =
      runScript(QStringLiteral("mkdir %1; mount -t tmpfs -o size=4k none %1 || exit 77\n"
                               "export TMPDIR=%1\n"
                               "$program --ppd %2 --output %3 %4")
                    .arg(full, orvekPPD("6180"), folder.filePath("none.ps"),
                         ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"),
                {"unshare", "-rm"});
  if (run.status == 77) GTEST_SKIP() << "no file system of its own: " << run.errors.constData();
  EXPECT_EQ(run.status, 1);
  ASSERT_EQ(run.errorLines().size(), 1) << run.errors.constData();
  EXPECT_EQ(run.errorLines().first(),
            "orvek-print: " + full.toUtf8() + ": No space left on device");
}

}  // namespace
}  // namespace orvek::test
