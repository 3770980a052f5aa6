// SPDX-License-Identifier: Apache-2.0
// Keys as tickets and jobs carry them.

#include "imposition/BookletOptions.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>

namespace orvek::imposition {
namespace {

using Values = std::map<std::string, std::string>;

BookletKeys read(const Values &values) {
  return readBookletKeys([&](const char *key) -> std::optional<std::string> {
    const auto found = values.find(key);
    if (found == values.end()) return std::nullopt;
    return found->second;
  });
}

TEST(BookletKeys, AreNoBookletWhereTheyAreAbsent) {
  EXPECT_EQ(read({}), BookletKeys());
  EXPECT_FALSE(BookletKeys().enabled);
  EXPECT_EQ(BookletKeys().gutter, 24);
}

TEST(BookletKeys, AreReadTogether) {
  const BookletKeys keys = read({{"OVKEnableBooklet", "True"},
                                 {"OVKRightToLeft", "True"},
                                 {"OVKPrintPageBorders", "True"},
                                 {"OVKGutter", "36"},
                                 {"OVKCreep", "-5"},
                                 {"OVKTargetPaperSize", "2"}});
  EXPECT_EQ(keys, (BookletKeys{true, true, true, 36, -5, 2}));
}

TEST(BookletKeys, AreOnInEveryFormOfABoolean) {
  for (const char *on : {"True", "true", "TRUE", "on", "yes", "1", ""}) {
    EXPECT_TRUE(read({{"OVKEnableBooklet", on}}).enabled) << '"' << on << '"';
  }
}

TEST(BookletKeys, AreOffInEveryFormOfABoolean) {
  for (const char *off : {"False", "false", "FALSE", "off", "no", "No", "0"}) {
    EXPECT_FALSE(read({{"OVKEnableBooklet", off}}).enabled) << '"' << off << '"';
  }
}

TEST(BookletKeys, GiveWayToSeveralPagesPerSheet) {
  EXPECT_FALSE(read({{"OVKEnableBooklet", "True"}, {"number-up", "2"}}).enabled);
  EXPECT_TRUE(read({{"OVKEnableBooklet", "True"}, {"number-up", "1"}}).enabled);
  EXPECT_FALSE(read({{"OVKEnableBooklet", "True"}, {layoutNUpKey.data(), "4"}}).enabled);
  EXPECT_TRUE(read({{"OVKEnableBooklet", "True"}, {layoutNUpKey.data(), "0"}}).enabled);
}

TEST(BookletKeys, StayWithinTheirRanges) {
  EXPECT_EQ(read({{"OVKGutter", "145"}}).gutter, 144);
  EXPECT_EQ(read({{"OVKGutter", "-1"}}).gutter, 0);
  EXPECT_EQ(read({{"OVKGutter", "99999999999999999999"}}).gutter, 144);
  EXPECT_EQ(read({{"OVKCreep", "37"}}).creep, 36);
  EXPECT_EQ(read({{"OVKCreep", "-37"}}).creep, -36);
}

TEST(LeadingInteger, ReadsAsFarAsThereIsANumber) {
  EXPECT_EQ(leadingInteger("12abc"), 12);
  EXPECT_EQ(leadingInteger(" \t+7"), 7);
  EXPECT_EQ(leadingInteger("-0"), 0);
  EXPECT_EQ(leadingInteger("--5"), 0);
  EXPECT_EQ(leadingInteger(""), 0);
  EXPECT_EQ(leadingInteger("2147483648"), std::numeric_limits<int>::max());
  EXPECT_EQ(leadingInteger("-2147483648"), std::numeric_limits<int>::min());
  EXPECT_EQ(leadingInteger("-2147483649"), std::numeric_limits<int>::min());
}

TEST(TargetPaper, CountsTheChoicesFromOneAndOffersNotTheLast) {
  EXPECT_EQ(targetPaperChoice(1, 5), 0);
  EXPECT_EQ(targetPaperChoice(4, 5), 3);
  EXPECT_EQ(targetPaperChoice(5, 5), std::nullopt);
}

TEST(TargetPaper, IsTheJobsOwnForAnythingElse) {
  EXPECT_EQ(targetPaperChoice(0, 5), std::nullopt);
  EXPECT_EQ(targetPaperChoice(-1, 5), std::nullopt);
  EXPECT_EQ(targetPaperChoice(1, 1), std::nullopt);
  EXPECT_EQ(targetPaperChoice(std::numeric_limits<int>::max(), 5), std::nullopt);
}

}  // namespace
}  // namespace orvek::imposition
