// SPDX-License-Identifier: Apache-2.0
// The running program's information dictionary.

#include "platform/system/MainBundle.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

TEST(MainBundle, HasNoDictionaryUntilTheProgramGivesItselfOne) {
  EXPECT_FALSE(mainBundleInfo().has_value());
}

TEST(MainBundle, NamesTheExecutableItWasGiven) {
  setMainBundleInfo(QJsonObject{{QLatin1String(kCFBundleExecutableKey), "orvek-print"}});
  ASSERT_TRUE(mainBundleInfo().has_value());
  EXPECT_EQ(mainBundleInfo()->value(QLatin1String(kCFBundleExecutableKey)).toString(),
            QStringLiteral("orvek-print"));
  setMainBundleInfo(std::nullopt);
}

TEST(MainBundle, LosesItsDictionaryAgain) {
  setMainBundleInfo(QJsonObject{{"a", 1}});
  setMainBundleInfo(std::nullopt);
  EXPECT_FALSE(mainBundleInfo().has_value());
}

TEST(MainBundle, TellsAnEmptyDictionaryFromNone) {
  setMainBundleInfo(QJsonObject());
  EXPECT_TRUE(mainBundleInfo().has_value());
  setMainBundleInfo(std::nullopt);
}

}  // namespace
}  // namespace orvek::test
