// SPDX-License-Identifier: Apache-2.0
// Names of settings where nobody has better ones.

#include "host/server/SettingTitles.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

TEST(SettingTitles, AreWordsWhereAKeywordIsKnown) {
  EXPECT_EQ(plainSettingTitle(QStringLiteral("sides")), QStringLiteral("Two-sided"));
  EXPECT_EQ(plainChoiceTitle(QStringLiteral("sides"), QStringLiteral("two-sided-long-edge")),
            QStringLiteral("Long edge"));
  EXPECT_EQ(plainChoiceTitle(QStringLiteral("media"), QStringLiteral("iso_a4_210x297mm")),
            QStringLiteral("A4"));
  EXPECT_EQ(plainChoiceTitle(QStringLiteral("finishings"), QStringLiteral("4")),
            QStringLiteral("Staple"));
}

TEST(SettingTitles, SpellOutWhatIsNotKnown) {
  EXPECT_EQ(plainSettingTitle(QStringLiteral("vendor-oddity")), QStringLiteral("Vendor oddity"));
  EXPECT_EQ(plainChoiceTitle(QStringLiteral("output-bin"), QStringLiteral("face-down")),
            QStringLiteral("Face down"));
}

}  // namespace
}  // namespace orvek::test
