// SPDX-License-Identifier: Apache-2.0
// The integer a text begins with, and the two readings of a ticket's values.

#include <gtest/gtest.h>

#include <limits>

#include "platform/printing/PrintSettings.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

constexpr std::int32_t smallest = std::numeric_limits<std::int32_t>::min();
constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();

std::int32_t leading(const char *text) {
  return leadingInteger(QString::fromUtf8(text));
}

TEST(LeadingInteger, ReadsDecimalDigits) {
  EXPECT_EQ(leading("36"), 36);
  EXPECT_EQ(leading("0"), 0);
  EXPECT_EQ(leading("007"), 7);
}

TEST(LeadingInteger, StopsAtTheFirstOtherCharacter) {
  EXPECT_EQ(leading("12pt"), 12);
  EXPECT_EQ(leading("12.9"), 12);
  EXPECT_EQ(leading("12 34"), 12);
  EXPECT_EQ(leading("12-3"), 12);
  EXPECT_EQ(leading("0x10"), 0);
}

TEST(LeadingInteger, IsZeroWhereNoDigitBeginsTheText) {
  EXPECT_EQ(leading(""), 0);
  EXPECT_EQ(leadingInteger(QString()), 0);
  EXPECT_EQ(leading("pt12"), 0);
  EXPECT_EQ(leading("-"), 0);
  EXPECT_EQ(leading("+"), 0);
  EXPECT_EQ(leading("   "), 0);
}

TEST(LeadingInteger, TakesOneSign) {
  EXPECT_EQ(leading("-36"), -36);
  EXPECT_EQ(leading("+36"), 36);
  EXPECT_EQ(leading("--36"), 0);
  EXPECT_EQ(leading("+-36"), 0);
}

TEST(LeadingInteger, SkipsWhiteSpaceBeforeTheSignButNotAfterIt) {
  EXPECT_EQ(leading(" \t\n 12"), 12);
  EXPECT_EQ(leading("  -12"), -12);
  EXPECT_EQ(leading("- 12"), 0);
}

TEST(LeadingInteger, KnowsThe32BitEnds) {
  EXPECT_EQ(leading("2147483647"), largest);
  EXPECT_EQ(leading("-2147483648"), smallest);
}

TEST(LeadingInteger, GivesTheNearest32BitValueBeyondThem) {
  EXPECT_EQ(leading("2147483648"), largest);
  EXPECT_EQ(leading("-2147483649"), smallest);
  EXPECT_EQ(leading("18446744073709551617"), largest);  // 2^64 + 1
  EXPECT_EQ(leading("-18446744073709551617"), smallest);
  EXPECT_EQ(leadingInteger(QString(100000, u'9')), largest);
}

TEST(LeadingInteger, TakesAsciiDigitsOnly) {
  EXPECT_EQ(leading("\xD9\xA1\xD9\xA2"), 0);  // Arabic-Indic one, two
  EXPECT_EQ(leading("1\xD9\xA2"), 1);
}

TEST(TextReading, IsTheTextOrTheIntegersDigits) {
  EXPECT_EQ(textReading(QStringLiteral("Saddle")), QStringLiteral("Saddle"));
  EXPECT_EQ(textReading(-36), QStringLiteral("-36"));
  EXPECT_EQ(textReading(36U), QStringLiteral("36"));
  EXPECT_EQ(textReading(qlonglong(1) << 40), QStringLiteral("1099511627776"));
}

TEST(TextReading, TellsAnEmptyTextFromAnAbsentOne) {
  EXPECT_FALSE(textReading(QStringLiteral("")).isNull());
  EXPECT_TRUE(textReading(QVariant()).isNull());
}

TEST(TextReading, IsNullForWhatIsNeitherTextNorInteger) {
  EXPECT_TRUE(textReading(1.5).isNull());
  EXPECT_TRUE(textReading(true).isNull());
  EXPECT_TRUE(textReading(QStringList{"a"}).isNull());
}

TEST(IntegerReading, TakesIntegersAsTheyAreAndTextByItsLeadingInteger) {
  EXPECT_EQ(integerReading(-36), -36);
  EXPECT_EQ(integerReading(QStringLiteral(" 12pt")), 12);
  EXPECT_EQ(integerReading(QStringLiteral("True")), 0);
}

TEST(IntegerReading, GivesTheNearest32BitValueOfALongInteger) {
  EXPECT_EQ(integerReading(qlonglong(largest) + 1), largest);
  EXPECT_EQ(integerReading(qlonglong(smallest) - 1), smallest);
  EXPECT_EQ(integerReading(std::numeric_limits<unsigned>::max()), largest);
}

TEST(IntegerReading, IsZeroForAbsenceAndForOtherValues) {
  EXPECT_EQ(integerReading(QVariant()), 0);
  EXPECT_EQ(integerReading(1.5), 0);
  EXPECT_EQ(integerReading(true), 0);
}

}  // namespace
}  // namespace orvek::test
