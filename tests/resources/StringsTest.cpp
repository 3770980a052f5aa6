// SPDX-License-Identifier: Apache-2.0
// The tables of texts: every key in every language, and texts that fit where they are shown.

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "tests/resources/BundleFolder.h"

namespace orvek::test {
namespace {

const char *const panelKeys[] = {"_PDE_Finishing_Options",
                                 "_PDE_Finishing_Enable_Booklet",
                                 "_PDE_Finishing_Booklet_Box_Title",
                                 "_PDE_Finishing_Right_To_Left",
                                 "_PDE_Finishing_Print_Page_Borders",
                                 "_PDE_Finishing_Gutter",
                                 "_PDE_Finishing_Creep",
                                 "_PDE_Finishing_Target_Paper_Size",
                                 "_PDE_Finishing_Fit_Current_Job",
                                 "_PDE_On",
                                 "_PDE_Off"};

class EveryLanguage : public ::testing::TestWithParam<QString> {
 protected:
  QJsonObject strings = bundleStrings(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Bundle, EveryLanguage, ::testing::ValuesIn(bundleLanguages),
                         nameOfLanguage);

TEST_P(EveryLanguage, HasATextForEveryKeyOfThePanel) {
  for (const char *key : panelKeys) {
    EXPECT_FALSE(strings.value(QLatin1String(key)).toString().isEmpty()) << key;
  }
}

TEST_P(EveryLanguage, HasTheKeysOfTheEnglishTable) {
  EXPECT_EQ(strings.keys(), bundleStrings(QStringLiteral("en")).keys());
}

TEST_P(EveryLanguage, HasEveryKeyThatTheInterfaceNames) {
  QFile file(bundleFile(QStringLiteral("en.lproj/Finishing.ui")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString interface = QString::fromUtf8(file.readAll());
  auto keys = QRegularExpression(QStringLiteral(">(_PDE_\\w+)<")).globalMatch(interface);
  EXPECT_TRUE(keys.hasNext());
  while (keys.hasNext()) {
    const QString key = keys.next().captured(1);
    EXPECT_TRUE(strings.contains(key)) << key.toStdString();
  }
}

// The same texts are titles in the summary, where neither mark belongs.
TEST_P(EveryLanguage, HasNoMnemonicMarksNorTrailingColons) {
  for (auto text = strings.begin(); text != strings.end(); ++text) {
    const QString value = text.value().toString();
    EXPECT_FALSE(value.contains(QLatin1Char('&'))) << text.key().toStdString();
    EXPECT_FALSE(value.endsWith(QLatin1Char(':'))) << text.key().toStdString();
    EXPECT_EQ(value, value.trimmed()) << text.key().toStdString();
  }
}

TEST_P(EveryLanguage, TellsTheTitlesOfTheSummaryApart) {
  QStringList titles;
  for (const char *key : panelKeys) titles << strings.value(QLatin1String(key)).toString();
  EXPECT_EQ(titles.removeDuplicates(), 0);
}

TEST(English, CallsThePanelFinishing) {
  const QJsonObject strings = bundleStrings(QStringLiteral("en"));
  EXPECT_EQ(strings.value(QStringLiteral("_PDE_Finishing_Options")).toString(), "Finishing");
}

}  // namespace
}  // namespace orvek::test
