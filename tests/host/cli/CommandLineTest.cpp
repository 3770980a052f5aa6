// SPDX-License-Identifier: Apache-2.0
// Reading command lines as lp's users write them.

#include "host/cli/CommandLine.h"

#include <gmock/gmock.h>

namespace orvek::test {
namespace {

CommandLine parsed(const QByteArrayList &words) {
  const auto line = parseCommandLine(words);
  EXPECT_TRUE(line.ok()) << (line.ok() ? "" : line.failure().line().toStdString());
  return line.ok() ? line.value() : CommandLine{};
}

Failure refused(const QByteArrayList &words) {
  const auto line = parseCommandLine(words);
  EXPECT_FALSE(line.ok()) << words.join(' ').constData();
  if (line.ok()) return {};
  EXPECT_EQ(line.failure().kind, FailureKind::Usage);
  EXPECT_FALSE(line.failure().line().contains('\n'));
  return line.failure();
}

TEST(CommandLine, SaysNothingWhereNothingWasGiven) {
  const CommandLine line = parsed({});
  EXPECT_TRUE(line.ppd.isNull());
  EXPECT_TRUE(line.destination.isNull());
  EXPECT_EQ(line.copies, 0);
  EXPECT_TRUE(line.resize);
  EXPECT_TRUE(line.files.isEmpty());
}

TEST(CommandLine, TakesLettersAndValuesTogetherOrApart) {
  EXPECT_EQ(parsed({"-n2"}).copies, 2);
  EXPECT_EQ(parsed({"-n", "2"}).copies, 2);
  EXPECT_EQ(parsed({"-sn3"}).copies, 3);
  EXPECT_TRUE(parsed({"-sn3"}).silent);
  EXPECT_EQ(parsed({"-dlaser/draft"}).destination, "laser/draft");
}

TEST(CommandLine, TakesLongOptionsInBothForms) {
  EXPECT_EQ(parsed({"--ppd", "a.ppd"}).ppd, "a.ppd");
  EXPECT_EQ(parsed({"--ppd=a.ppd"}).ppd, "a.ppd");
}

TEST(CommandLine, LetsOptionsStandBehindFiles) {
  const CommandLine line = parsed({"one.pdf", "--headless", "-", "two.pdf"});
  EXPECT_TRUE(line.headless);
  EXPECT_EQ(line.files, (QStringList{"one.pdf", "-", "two.pdf"}));
}

TEST(CommandLine, TakesEverythingAfterTwoDashesAsFiles) {
  EXPECT_EQ(parsed({"--", "--headless", "-n2"}).files, (QStringList{"--headless", "-n2"}));
}

TEST(CommandLine, ReadsOptionsAsThePrintServerDoes) {
  EXPECT_EQ(parsed({"-o", "a=b", "-oc=d e=f", "-o", "landscape", "-o", "nocollate"}).options,
            (QList<OptionChoice>{
                {"a", "b"}, {"c", "d"}, {"e", "f"}, {"landscape", "true"}, {"collate", "false"}}));
  EXPECT_EQ(parsed({"-o", "a='b c'"}).options, (QList<OptionChoice>{{"a", "b c"}}));
}

TEST(CommandLine, CollectsWhatRepeatsInOrder) {
  const CommandLine line = parsed({"--mark", "A=1", "--mark=B=2=3", "--do", "view", "--do", "nup=2",
                                   "--plugin", "x.bundle", "--plugin", "y.bundle"});
  EXPECT_EQ(line.marks, (QList<OptionChoice>{{"A", "1"}, {"B", "2=3"}}));
  ASSERT_EQ(line.actions.size(), 2);
  EXPECT_EQ(line.actions[1].number, 2);
  EXPECT_EQ(line.plugins, (QStringList{"x.bundle", "y.bundle"}));
}

TEST(CommandLine, KeepsWhatIsAskedOfTheRun) {
  const CommandLine line = parsed(
      {"--headless", "--inspect", "--summary",   "--screenshot", "s.png",      "--ticket-out=t",
       "--output=o", "--print",   "--no-resize", "--ticket",     "i",          "--preset",
       "p",          "-t",        "Title",       "-h",           "server:631", "-U",
       "me",         "-q",        "100",         "-P",           "1-4,7,9-"});
  EXPECT_TRUE(line.headless && line.inspect && line.summary && line.print);
  EXPECT_FALSE(line.resize);
  EXPECT_EQ(line.screenshot, "s.png");
  EXPECT_EQ(line.ticketOut, "t");
  EXPECT_EQ(line.output, "o");
  EXPECT_EQ(line.ticket, "i");
  EXPECT_EQ(line.preset, "p");
  EXPECT_EQ(line.title, "Title");
  EXPECT_EQ(line.server, "server:631");
  EXPECT_EQ(line.user, "me");
  EXPECT_EQ(line.priority, 100);
  EXPECT_EQ(line.pageRanges, "1-4,7,9-");
}

TEST(CommandLine, NamesAnUnknownOption) {
  EXPECT_EQ(refused({"--frobnicate"}).what, "--frobnicate");
  EXPECT_EQ(refused({"--frobnicate=1"}).what, "--frobnicate=1");
  EXPECT_EQ(refused({"-z"}).what, "-z");
  EXPECT_EQ(refused({"-sz"}).what, "-z");
}

TEST(CommandLine, NamesAnOptionWhoseValueIsMissing) {
  EXPECT_EQ(refused({"-n"}).what, "-n");
  EXPECT_EQ(refused({"--ppd"}).what, "--ppd");
  EXPECT_EQ(refused({"--headless=yes"}).what, "--headless");
}

TEST(CommandLine, RefusesNumbersThatAreNone) {
  for (const char *copies : {"0", "-1", "two", "", "1.5", "99999999999"}) {
    EXPECT_EQ(refused({"-n", copies}).what, "-n");
  }
  for (const char *priority : {"0", "101", "high"}) {
    EXPECT_EQ(refused({"-q", priority}).what, "-q");
  }
  for (const char *ranges : {"", "a", "1-2-3", "1,,2", ",1", "-"}) {
    EXPECT_EQ(refused({"-P", ranges}).what, "-P");
  }
}

TEST(CommandLine, RefusesMarksAndOptionsWithoutTheirParts) {
  for (const char *mark : {"OVKStapling", "=Front", "OVKStapling=", ""}) {
    EXPECT_EQ(refused({"--mark", mark}).what, "--mark");
  }
  EXPECT_EQ(refused({"-o", ""}).what, "-o");
}

TEST(CommandLine, RefusesAnActionThatIsNone) {
  EXPECT_EQ(refused({"--do", "fly"}).what, "--do fly");
}

}  // namespace
}  // namespace orvek::test
