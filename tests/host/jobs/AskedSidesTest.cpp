// SPDX-License-Identifier: Apache-2.0
// Options that leave something of a document, and options that leave nothing.

#include "host/jobs/AskedSides.h"

#include <gtest/gtest.h>

#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

std::string said(int pages, const QMap<QString, QString> &options, bool isScript = false) {
  const Status checked = checkAskedSides(QStringLiteral("a.pdf"), pages, isScript, options);
  return checked ? std::string() : checked.failure().why.toStdString();
}

TEST(AskedSides, ArePagesOfAPlainJob) {
  EXPECT_EQ(said(8, {{"page-ranges", "9-12,99"}}),
            "has no page 9-12,99: the number of its pages is 8");
  EXPECT_EQ(said(8, {{"page-ranges", "8-12,99"}}), "");
  EXPECT_EQ(said(0, {{"page-ranges", "9"}}), "");
  EXPECT_EQ(said(8, {}), "");
}

TEST(AskedSides, AreFewerWithSeveralPagesOnEach) {
  EXPECT_EQ(said(8, {{"page-ranges", "3-"}, {"number-up", "4"}}),
            "has no side that page-ranges=3- asks for: the number of its sides is 2");
  EXPECT_EQ(said(9, {{"page-ranges", "3-"}, {"Number-Up", "4"}}), "");
  EXPECT_EQ(said(8, {{"page-ranges", "3-"}, {"booklet", "true"}}), "");
  EXPECT_EQ(said(4, {{"page-ranges", "3-"}, {"booklet", "true"}}),
            "has no side that page-ranges=3- asks for: the number of its sides is 2");
}

TEST(AskedSides, AreMoreWhereTheFiltersFillABookletUp) {
  EXPECT_EQ(said(5, {{"page-ranges", "6"}, {"booklet", "shuffle-only"}}), "");
}

TEST(AskedSides, AreThoseThatTheFilterOfPostScriptMakes) {
  const QMap<QString, QString> tenOnEach{{"page-ranges", "2-"}, {"number-up", "10"}};
  EXPECT_NE(said(8, tenOnEach), "");
  EXPECT_EQ(said(8, tenOnEach, true), "");
  const QMap<QString, QString> fourOnEach{{"page-ranges", "3-"}, {"number-up", "4"}};
  EXPECT_NE(said(8, fourOnEach, true), "");
  const QMap<QString, QString> filledUp{{"page-ranges", "6"}, {"booklet", "shuffle-only"}};
  EXPECT_EQ(said(5, filledUp, true), "has no page 6: the number of its pages is 5");
}

TEST(AskedSides, AreNotEvenOfASinglePage) {
  EXPECT_EQ(said(1, {{"page-set", "even"}}),
            "has no side that page-set=even asks for: the number of its sides is 1");
  EXPECT_EQ(said(9, {{"page-ranges", "3"}, {"page-set", "even"}}),
            "has no side that page-ranges=3 page-set=even asks for: the number of its sides is 9");
  EXPECT_EQ(said(2, {{"page-set", "even"}}), "");
}

TEST(AskedSides, AreNotJudgedWhereTheRangesMakeNoSense) {
  for (const char *ranges : {"5-2", "abc", "-", "", ",", "1e99-"}) {
    const std::string why = said(8, {{"page-ranges", ranges}});
    EXPECT_EQ(why.empty(), std::string(ranges) != "1e99-") << ranges << ": " << why;
  }
}

}  // namespace
}  // namespace orvek::test
