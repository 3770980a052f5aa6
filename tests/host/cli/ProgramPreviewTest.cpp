// SPDX-License-Identifier: Apache-2.0
// What --inspect says of sheets: of documents that come once, and of some that can't be read.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include "tests/driver/DriverKit.h"
#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class ProgramPreview : public ::testing::Test {
 protected:
  ProgramRun run(const QStringList &more, const Surroundings &surroundings) const {
    const QStringList begin{"--headless", "--ppd", orvekPPD(QStringLiteral("6180")), "--inspect"};
    return runProgram(begin + more, surroundings);
  }

  static int sheetsIn(const ProgramRun &run) {
    return run.json().value("preview").toObject().value("sheets").toInt(-1);
  }

  void expectUnread(const QString &document, const char *why) const {
    const ProgramRun failed = run({document}, {});
    EXPECT_EQ(failed.status, 1);
    EXPECT_EQ(failed.errorLines(),
              QByteArrayList{"orvek-print: " + document.toUtf8() + ": " + why});
    EXPECT_EQ(sheetsIn(failed), 0);
  }

  const QByteArray sample =
      contentsOf(QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"));
  QTemporaryDir folder;
  QString printed = folder.filePath(QStringLiteral("out.ps"));
};

TEST_F(ProgramPreview, IsOfWhatStandardInputBrings) {
  EXPECT_EQ(sheetsIn(run({"-"}, {.input = sample})), 8);
  EXPECT_EQ(sheetsIn(run({"/dev/stdin"}, {.input = sample})), 8);
}

TEST_F(ProgramPreview, LeavesStandardInputToThePrinterToo) {
  if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  for (const QStringList &name : {QStringList{"-"}, QStringList{}}) {
    QFile::remove(printed);
    const ProgramRun both = run(QStringList{"--output", printed} + name, {.input = sample});
    EXPECT_EQ(both.status, 0) << both.errors.toStdString();
    EXPECT_EQ(sheetsIn(both), 8);
    EXPECT_EQ(contentsOf(printed).count("%%Page: "), 8);
    EXPECT_TRUE(contentsOf(printed).contains("(stdin)"));
  }
}

TEST_F(ProgramPreview, WaitsForNoDocumentThatWasNotNamed) {
  const ProgramRun silent = run({}, {.closeInput = false});
  EXPECT_EQ(silent.status, 0);
  EXPECT_FALSE(silent.json().contains("preview"));
}

TEST_F(ProgramPreview, FailsForADocumentThatCannotBeRead) {
  const QString cut = folder.filePath(QStringLiteral("cut.pdf"));
  writeContents(cut, sample.left(3000));
  expectUnread(cut, "can't be read as a PDF");
  expectUnread(QStringLiteral("/no/such/file.pdf"), "No such file or directory");
}

TEST_F(ProgramPreview, SaysThatStandardInputIsEmpty) {
  const ProgramRun empty = run({"-"}, {});
  EXPECT_EQ(empty.status, 1);
  EXPECT_EQ(sheetsIn(empty), 0);
  EXPECT_EQ(empty.errorLines(),
            QByteArrayList{"orvek-print: standard input: is empty, so there is nothing to print"});
}

}  // namespace
}  // namespace orvek::test
