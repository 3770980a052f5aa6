// SPDX-License-Identifier: Apache-2.0
// The reason that is read out of what filters say.

#include "host/jobs/FilterMessages.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

std::string reasonOf(const QByteArray &text) {
  FilterMessages messages;
  messages.add(text);
  return messages.reason(QStringLiteral("a.pdf"), QStringLiteral("p.ppd"), 1).line().toStdString();
}

TEST(FilterMessages, GiveAFiltersOwnLastErrorBeforeHowItEnded) {
  EXPECT_EQ(reasonOf("ERROR: paper\nERROR: no toner\nERROR: drv (PID 7) stopped with status 1\n"),
            "a.pdf: no toner");
}

TEST(FilterMessages, NameTheFilterThatEndedWithoutAWord) {
  EXPECT_EQ(reasonOf("ERROR: drv (PID 7) crashed on signal 11\n"),
            "a.pdf: the filter drv crashed on signal 11");
}

TEST(FilterMessages, SayThatATypeIsUnknown) {
  EXPECT_EQ(reasonOf("cupsfilter: Unable to determine MIME type of \"/x/a.pdf\".\n"),
            "a.pdf: its type is unknown; print a PDF, PostScript, text or image file");
}

TEST(FilterMessages, BlameThePPDForAFilterThatIsMissing) {
  EXPECT_EQ(reasonOf("cupsfilter: File \"/f/drv\" not available: No such file or directory\n"
                     "cupsfilter: No filter to convert from application/pdf to printer/x.\n"),
            "p.ppd: the filter /f/drv not available: No such file or directory");
}

TEST(FilterMessages, NameTheTypeThatNoFilterPrints) {
  EXPECT_EQ(reasonOf("cupsfilter: No filter to convert from image/x-odd to printer/x.\n"),
            "a.pdf: no filter prints the type image/x-odd");
}

TEST(FilterMessages, SayThatADocumentNeedsAPassword) {
  const std::string words =
      "a.pdf: it needs a password; print it from a program that opens it with that password";
  EXPECT_EQ(reasonOf("ERROR: loadFilename failed: /x/a.pdf: invalid password\n"
                     "ERROR: pdftopdf (PID 7) stopped with status 1\n"),
            words);
  EXPECT_EQ(reasonOf("Command Line Error: Incorrect password\n"), words);
  EXPECT_EQ(reasonOf("DEBUG: argv[3]=\"invalid password\"\n"),
            "a.pdf: the filters ended with status 1");
}

TEST(FilterMessages, SayThatADocumentMustNotBePrinted) {
  EXPECT_EQ(reasonOf("Not allowed to print\nERROR: pdftopdf (PID 7) stopped with status 2\n"),
            "a.pdf: whoever made it has encrypted it and does not allow that it is printed");
}

TEST(FilterMessages, FallBackOnTheStatus) {
  EXPECT_EQ(reasonOf("DEBUG: nothing\n"), "a.pdf: the filters ended with status 1");
}

TEST(FilterMessages, AnInvalidPPDIsNoInputOutputFailure) {
  FilterMessages messages;
  messages.add("cupsfilter: Unable to open PPD file: Missing header on line 1.\n");
  const auto failure = messages.reason(QStringLiteral("a.pdf"), QStringLiteral("p.ppd"), 1);
  EXPECT_EQ(failure.kind, FailureKind::Invalid);
  EXPECT_EQ(failure.line(), QStringLiteral("p.ppd: Missing header on line 1."));
}

TEST(FilterMessages, CountPagesAcrossPiecesOfAnySize) {
  const QByteArray text = "PAGE: 1 1\nDEBUG: x\nPAGE: 2 1\n";
  FilterMessages messages;
  for (const char c : text) messages.add(QByteArray(1, c));
  EXPECT_EQ(messages.pages(), 2);
}

TEST(FilterMessages, SurviveALineWithoutEnd) {
  FilterMessages messages;
  for (int i = 0; i < 1000; ++i) messages.add(QByteArray(10000, 'x'));
  messages.add("\nPAGE: 1 1\n");
  EXPECT_EQ(messages.pages(), 1);
}

}  // namespace
}  // namespace orvek::test
