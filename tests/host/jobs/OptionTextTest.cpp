// SPDX-License-Identifier: Apache-2.0
// Option values survive libcups' parser.

#include "host/jobs/OptionText.h"

#include <cups/cups.h>
#include <gtest/gtest.h>

namespace orvek::test {
namespace {

QString readBack(const QString &text, const char *name) {
  cups_option_t *options = nullptr;
  const int count = cupsParseOptions(text.toUtf8().constData(), 0, &options);
  const QString value = QString::fromUtf8(cupsGetOption(name, count, options));
  cupsFreeOptions(count, options);
  return count == 1 ? value : QStringLiteral("(%1 options)").arg(count);
}

class OptionText : public testing::TestWithParam<const char *> {};

TEST_P(OptionText, ReadsBackUnchanged) {
  const QString value = QString::fromUtf8(GetParam());
  EXPECT_EQ(readBack(optionText(QStringLiteral("key"), value), "key"), value);
}

INSTANTIATE_TEST_SUITE_P(Values, OptionText,
                         testing::Values("plain", "two words", "tab\there", "line\nbreak",
                                         "it's \"quoted\"", "'leading", "\"leading", "back\\slash",
                                         "trailing\\", "a=b", "a,b", "{not closed",
                                         "{x-dimension=21000 y-dimension=29700}", "Käse 日本語",
                                         " leading space", "-dash"));

TEST(FilterToolOptionText, PutsQuotesAroundAValueThatBeginsLikeSyntax) {
  EXPECT_EQ(readBack(filterToolOptionText(QStringLiteral("key"), QStringLiteral("'word")), "key"),
            QStringLiteral("\"'word\""));
}

TEST(FilterToolOptionText, LeavesACollectionBare) {
  const QString collection = QStringLiteral("{a=1 b={c=2}}");
  EXPECT_EQ(readBack(filterToolOptionText(QStringLiteral("key"), collection), "key"), collection);
}

}  // namespace
}  // namespace orvek::test
