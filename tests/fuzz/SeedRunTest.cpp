// SPDX-License-Identifier: Apache-2.0
// What the tests that read the fuzzers' seeds are worth.

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace orvek::test {
namespace {

class SeedRun : public testing::Test {
 protected:
  void add(const char *name, const QByteArray &bytes) const {
    QFile seed(folder.filePath(QLatin1String(name)));
    ASSERT_TRUE(seed.open(QIODevice::WriteOnly));
    ASSERT_EQ(seed.write(bytes), bytes.size());
  }

  void run(const QString &seeds) {
    program.start(QStringLiteral(ORVEK_CHOOSY_SEEDS), {seeds});
    ASSERT_TRUE(program.waitForFinished());
    said = program.readAllStandardError();
  }

  QTemporaryDir folder;
  QProcess program;
  QByteArray said;
};

TEST_F(SeedRun, EndsWellWhereEverySeedHolds) {
  add("first", "good");
  add("second", {});
  run(folder.path());
  EXPECT_EQ(program.exitStatus(), QProcess::NormalExit);
  EXPECT_EQ(program.exitCode(), 0);
  EXPECT_EQ(said.count('\n'), 2) << said.constData();
}

TEST_F(SeedRun, EndsWithASeedThatDoesNotHoldAndNamesIt) {
  add("first", "good");
  add("second", "bad");
  add("third", "good");
  run(folder.path());
  EXPECT_EQ(program.exitStatus(), QProcess::CrashExit);
  EXPECT_TRUE(said.endsWith("/second\n")) << said.constData();
}

TEST_F(SeedRun, FailsWhereThereAreNoSeeds) {
  run(folder.path());
  EXPECT_EQ(program.exitCode(), 1);
  run(folder.filePath(QStringLiteral("none")));
  EXPECT_EQ(program.exitCode(), 1);
  EXPECT_TRUE(said.endsWith("/none: no seeds there\n")) << said.constData();
}

}  // namespace
}  // namespace orvek::test
