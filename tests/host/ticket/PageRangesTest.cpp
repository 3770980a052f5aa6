// SPDX-License-Identifier: Apache-2.0
// Page ranges as people type them.

#include "host/ticket/PageRanges.h"

#include <gtest/gtest.h>

#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

QString normalized(const QString &text) {
  const Result<QString> ranges = normalizedPageRanges(text);
  return ranges ? ranges.value() : QStringLiteral("refused");
}

TEST(PageRanges, KeepsWhatCupsTakesAsItIs) {
  EXPECT_EQ(normalized("1-3,7"), "1-3,7");
  EXPECT_EQ(normalized("1-4,5"), "1-4,5");
  EXPECT_EQ(normalized("8-"), "8-");
}

TEST(PageRanges, DropsWhiteSpaceAndReadsTheSignsOfOtherScripts) {
  EXPECT_EQ(normalized(" 1 - 3 , 7 "), "1-3,7");
  EXPECT_EQ(normalized(QStringLiteral("1–3;7")), "1-3,7");
  EXPECT_EQ(normalized(QStringLiteral("１〜３、７")), "1-3,7");
}

TEST(PageRanges, SortsAndJoinsWhatTheServerWouldRefuse) {
  EXPECT_EQ(normalized("7,1-3"), "1-3,7");
  EXPECT_EQ(normalized("1-5,3-8"), "1-8");
  EXPECT_EQ(normalized("2,2"), "2");
  EXPECT_EQ(normalized("4-,9"), "4-");
}

TEST(PageRanges, OpensARangeAtEitherEnd) {
  EXPECT_EQ(normalized("-5"), "1-5");
  EXPECT_EQ(normalized("1-"), "1-");
}

TEST(PageRanges, MeansAllPagesByNothing) {
  EXPECT_TRUE(normalizedPageRanges(QString()).value().isNull());
  EXPECT_TRUE(normalizedPageRanges("  ").value().isNull());
}

TEST(PageRanges, RefusesWhatIsNoRangeAndSaysWhichPart) {
  for (const char *text : {"0", "3-1", "a", "1,,2", "1-2-3", "1 3", "-", ",", "1.5", "0-4"}) {
    EXPECT_EQ(normalized(QString::fromLatin1(text)), "refused") << text;
  }
  const Result<QString> ranges = normalizedPageRanges("1-3,x7");
  ASSERT_FALSE(ranges.ok());
  EXPECT_EQ(ranges.failure().kind, FailureKind::Usage);
  EXPECT_EQ(ranges.failure().what, "x7");
}

TEST(PageRanges, TakesNumbersBeyondAnyDocument) {
  EXPECT_EQ(normalized("5-99999999999"), "5-");
}

TEST(PageRanges, RefusesToBeginBeyondAnyDocument) {
  EXPECT_EQ(normalized("4294967297"), "refused");
  EXPECT_EQ(normalized("1,4294967297-99999999999"), "refused");
}

TEST(PageRanges, PicksThePagesOfADocument) {
  EXPECT_EQ(pagesInRanges("1-3,7", 8), (QList<int>{1, 2, 3, 7}));
  EXPECT_EQ(pagesInRanges("7-", 9), (QList<int>{7, 8, 9}));
  EXPECT_EQ(pagesInRanges("20", 8), QList<int>());
  EXPECT_EQ(pagesInRanges(QString(), 3), (QList<int>{1, 2, 3}));
}

TEST(PageRanges, PicksPagesByTheSameGrammarInWhichTheyAreTyped) {
  for (const char *text : {"7,1-3", "1–3;7", " 2-3 , 1-2,7,7"}) {
    EXPECT_EQ(pagesInRanges(QString::fromUtf8(text), 8), (QList<int>{1, 2, 3, 7})) << text;
  }
  EXPECT_EQ(pagesInRanges("7,x", 2), (QList<int>{1, 2}));
}

TEST(PageRanges, ComeOneByOneWithOpenEnds) {
  using Ranges = std::vector<imposition::PageRange>;
  EXPECT_EQ(pageRangesIn("2-3,7,9-"), (Ranges{{2, 3}, {7, 7}, {9, 0}}));
  EXPECT_EQ(pageRangesIn("-4"), (Ranges{{1, 4}}));
  EXPECT_EQ(pageRangesIn(QString()), Ranges());
  EXPECT_EQ(pageRangesIn("none"), Ranges());
}

}  // namespace
}  // namespace orvek::test
