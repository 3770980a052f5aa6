// SPDX-License-Identifier: Apache-2.0
// The same command line makes the same job, whether it is given to lp or to this program.

#include <gtest/gtest.h>

#include <QRegularExpression>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/Printers.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps");

/// Words between the program's name and the document. "SERVER" stands for the private server.
struct CommandWords {
  const char *name;
  QStringList words;
};

void PrintTo(const CommandWords &line, std::ostream *stream) {
  *stream << line.words.join(' ').toStdString();
}

QStringList options(const QStringList &values) {
  QStringList words;
  for (const QString &value : values) words << QStringLiteral("-o") << value;
  return words;
}

std::vector<CommandWords> commandLines() {
  return {
      {"nothing", {}},
      {"media", options({"media=A5"})},
      {"mediaByItsStandardName", options({"media=iso_a5_148x210mm"})},
      {"mediaOfSeveralParts", options({"media=A5,tray-2,Heavy"})},
      {"mediaThatNobodyKnows", options({"media=papyrus"})},
      {"sides", options({"sides=two-sided-long-edge"})},
      {"sidesAsTheyAreAnyway", options({"sides=one-sided"})},
      {"sidesThatNobodyKnows", options({"sides=three-sided"})},
      {"colorMode", options({"print-color-mode=monochrome"})},
      {"quality", options({"print-quality=5"})},
      {"qualityAndColorMode", options({"print-quality=5", "print-color-mode=monochrome"})},
      {"outputBin", options({"output-bin=finisher"})},
      {"source", options({"media-source=tray-2"})},
      {"type", options({"media-type=stationery-heavyweight"})},
      {"collation", options({"multiple-document-handling=separate-documents-uncollated-copies"})},
      {"finishings", options({"finishings=4"})},
      {"resolution", options({"printer-resolution=1200dpi"})},
      {"aWordAndTheOptionsOwnName", options({"media=A5", "PageSize=A5"})},
      {"severalInOneArgument", options({"sides=two-sided-short-edge media=A5"})},
      {"severalWithAFlagAmongThem", options({"sides=one-sided fit-to-page media=A5"})},
      {"aQuotedValue", options({"note='two words' sides=one-sided"})},
      {"aValueInDoubleQuotes", options({"note=\"two words\""})},
      {"anEscapedBlank", options({"note=two\\ words"})},
      {"oneOptionTwice", options({"sides=one-sided", "sides=two-sided-long-edge"})},
      {"serverWithProtocolVersion", {"-h", "SERVER/version=1.1"}},
      {"clusteredLetters", {"-n2", "-tMy title", "-q80"}},
      {"orientationByWord", options({"landscape"})},
  };
}

class ProgramLp : public ::testing::TestWithParam<CommandWords> {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    ASSERT_EQ(cups->addQueue("office", orvekPPD("6180")).exitStatus, 0);
    cups->run("lpadmin", {"-d", "office"});
    // Jobs of a stopped queue stay as they were made.
    cups->run("cupsdisable", {"office"});
  }

  static int jobIn(const QString &output) {
    static const QRegularExpression id("office-([0-9]+)");
    return id.match(output).captured(1).toInt();
  }

  int printWithLp(const QStringList &words) const {
    const auto ran = cups->run("lp", words + QStringList{document});
    EXPECT_EQ(ran.exitStatus, 0) << ran.errors.toStdString();
    return jobIn(ran.output);
  }

  int printWithTheProgram(const QStringList &words) const {
    const ProgramRun ran =
        runProgram(QStringList{"--headless", "--print"} + words + QStringList{document},
                   {{"XDG_CACHE_HOME=" + cache.path()}, {}, {}});
    EXPECT_EQ(ran.status, 0) << ran.errors.constData();
    return jobIn(QString::fromUtf8(ran.output));
  }

  // One attribute a line. The finishing panel's own keys are what lp has no idea of.
  std::string jobInWords(int id) const {
    QString lines;
    const auto attributes = cups->comparableJobAttributes(id);
    for (auto one = attributes.cbegin(); one != attributes.cend(); ++one) {
      if (!one.key().startsWith("OVK")) lines += one.key() + '=' + one.value() + '\n';
    }
    EXPECT_GT(attributes.size(), 10);
    return lines.toStdString();
  }

  QTemporaryDir cache;
  std::unique_ptr<PrivateCups> cups;
};

TEST_P(ProgramLp, MakesTheSameJob) {
  QStringList words = GetParam().words;
  words.replaceInStrings("SERVER", cups->hostAndPort());
  const std::string expected = jobInWords(printWithLp(words));
  EXPECT_EQ(jobInWords(printWithTheProgram(words)), expected);
}

class ProgramLpSaved : public ProgramLp {};

TEST_P(ProgramLpSaved, MakesTheSameJobWithOptionsThatTheUserSaved) {
  const auto saved = cups->run("lpoptions", QStringList{"-p", "office"} + GetParam().words);
  ASSERT_EQ(saved.exitStatus, 0) << saved.errors.toStdString();
  const std::string expected = jobInWords(printWithLp({}));
  EXPECT_EQ(jobInWords(printWithTheProgram({})), expected);
}

std::string nameOf(const ::testing::TestParamInfo<CommandWords> &line) {
  return line.param.name;
}

std::vector<CommandWords> linesOfOptions() {
  std::vector<CommandWords> lines = commandLines();
  std::erase_if(lines, [](const CommandWords &line) { return !line.words.contains("-o"); });
  return lines;
}

INSTANTIATE_TEST_SUITE_P(CommandLines, ProgramLp, ::testing::ValuesIn(commandLines()), nameOf);
INSTANTIATE_TEST_SUITE_P(CommandLines, ProgramLpSaved, ::testing::ValuesIn(linesOfOptions()),
                         nameOf);

}  // namespace
}  // namespace orvek::test
