// SPDX-License-Identifier: Apache-2.0
// Formats with arguments of every kind, and formats that lie about them.

#include "platform/system/Format.h"

#include <gtest/gtest.h>

#include <cstdarg>
#include <cstdio>
#include <limits>

#include "platform/system/PDEObject.h"
#include "platform/system/TickCount.h"

namespace {

std::string expanded(const char *format, ...) {
  std::va_list arguments;
  va_start(arguments, format);
  const auto collected = orvek::collectArguments(format, arguments);
  va_end(arguments);
  return orvek::expandFormat(format, collected).toStdString();
}

class Named : public PDEObject {
 public:
  QString description() const override { return QStringLiteral("n\u00E4me"); }
};

TEST(Format, ExpandsIntegersOfEveryLength) {
  EXPECT_EQ(expanded("%d %i %u", -1, 2, 3U), "-1 2 3");
  EXPECT_EQ(expanded("%hhd %hd %ld %lld", 300, 70000, -5L, -6LL), "44 4464 -5 -6");
  EXPECT_EQ(expanded("%zu %jd %td", std::size_t{7}, std::intmax_t{8}, std::ptrdiff_t{9}), "7 8 9");
  EXPECT_EQ(expanded("%lx %#o %X", 255UL, 8U, 171U), "ff 010 AB");
  EXPECT_EQ(expanded("%llu", std::numeric_limits<unsigned long long>::max()),
            "18446744073709551615");
}

TEST(Format, ExpandsNumbersWithWidthAndPrecision) {
  EXPECT_EQ(expanded("[%5d] [%-5d] [%05d] [%+d]", 42, 42, 42, 42), "[   42] [42   ] [00042] [+42]");
  EXPECT_EQ(expanded("[%*d] [%-*d] [%.*f]", 5, 42, 4, 7, 2, 3.14159), "[   42] [7   ] [3.14]");
  EXPECT_EQ(expanded("%.3Lf %e %g", 2.5L, 1000.0, 0.5), "2.500 1.000000e+03 0.5");
}

TEST(Format, ExpandsTextAndCharacters) {
  EXPECT_EQ(expanded("%s|%5s|%.2s|%c", "abc", "x", "xyz", 'q'), "abc|    x|xy|q");
  EXPECT_EQ(expanded("%ls %S %C", L"wide", L"\u00FC", 0xE9), "wide \xC3\xBC \xC3\xA9");
  EXPECT_EQ(expanded("%s", static_cast<const char *>(nullptr)), "(null)");
}

TEST(Format, ReadsNoMoreOfATextThanItsPrecision) {
  const char unterminated[] = {'a', 'b', 'c'};
  EXPECT_EQ(expanded("%.3s", unterminated), "abc");
}

TEST(Format, ShowsObjectsByTheirDescription) {
  const Named object;
  EXPECT_EQ(expanded("<%@> <%@>", static_cast<const PDEObject *>(&object),
                     static_cast<const PDEObject *>(nullptr)),
            "<n\xC3\xA4me> <(null)>");
}

TEST(Format, KeepsPercentSignsAndWhatItDoesNotKnow) {
  EXPECT_EQ(expanded("100%% %d", 1), "100% 1");
  EXPECT_EQ(expanded("%y %1$d %"), "%y %1$d %");
}

TEST(Format, WritesNothingThroughAPointer) {
  int untouched = 5;
  EXPECT_EQ(expanded("a%nb", &untouched), "ab");
  EXPECT_EQ(untouched, 5);
}

TEST(Format, HoldsAbsurdWidthsToABound) {
  EXPECT_EQ(expanded("%99999999999d", 1).size(), 65535U);
  EXPECT_EQ(expanded("%*d", std::numeric_limits<int>::min(), 1).size(), 65535U);
}

TEST(Format, LeavesADirectiveAsItIsWhereItsArgumentIsMissing) {
  EXPECT_EQ(orvek::expandFormat("%d %s", {std::int64_t{4}}).toStdString(), "4 %s");
  EXPECT_EQ(orvek::expandFormat("%s %d", {std::int64_t{4}}).toStdString(), "%s 4");
  EXPECT_EQ(orvek::expandFormat("%@", {}).toStdString(), "%@");
}

TEST(TickCount, RunsSixtyTimesASecond) {
  timespec start{};
  clock_gettime(CLOCK_MONOTONIC, &start);
  const std::uint32_t first = TickCount();
  const timespec pause{0, 500000000};
  nanosleep(&pause, nullptr);
  EXPECT_NEAR(static_cast<double>(TickCount() - first), 30.0, 6.0);
}

}  // namespace
