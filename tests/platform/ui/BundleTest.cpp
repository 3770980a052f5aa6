// SPDX-License-Identifier: Apache-2.0
// Bundles: the information dictionary, texts by language with their fall-back, places of resources.

#include "platform/ui/Bundle.h"

#include <gtest/gtest.h>

#include "tests/support/BundleOnDisk.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class BundleTest : public testing::Test {
 protected:
  std::shared_ptr<Bundle> open(const QStringList &languages = {"en"}) const {
    return Bundle::atPath(disk.path(), languages);
  }
  QString problemOf(const QByteArray &info) const {
    disk.write(QStringLiteral("Info.json"), info);
    const auto bundle = open();
    EXPECT_FALSE(bundle->infoDictionary().has_value());
    return bundle->infoProblem();
  }
  void writeTable(const QString &language, const QByteArray &table) const {
    disk.write(language + QStringLiteral(".lproj/Localizable.json"), table);
  }
  QString textIn(const QStringList &languages) const {
    return open(languages)->localizedString(QStringLiteral("key"));
  }

  test::BundleOnDisk disk;
};

TEST_F(BundleTest, IsNullWhereThereIsNoFolder) {
  EXPECT_EQ(Bundle::atPath(disk.file(QStringLiteral("missing")), {}), nullptr);
  EXPECT_EQ(Bundle::atPath(QString(), {}), nullptr);
  disk.write(QStringLiteral("file"), "");
  EXPECT_EQ(Bundle::atPath(disk.file(QStringLiteral("file")), {}), nullptr);
}

TEST_F(BundleTest, ReadsItsInformationDictionary) {
  disk.write(QStringLiteral("Info.json"), R"({"PrincipalClass": "Factory"})");
  const auto bundle = open();
  ASSERT_TRUE(bundle->infoDictionary().has_value());
  EXPECT_EQ(bundle->infoDictionary()->value(QLatin1String("PrincipalClass")).toString(),
            QStringLiteral("Factory"));
  EXPECT_TRUE(bundle->infoProblem().isNull());
  EXPECT_EQ(infoDictionary(bundle.get()), bundle->infoDictionary());
}

TEST_F(BundleTest, HasAnEmptyDictionaryWhereTheFileHoldsAnEmptyObject) {
  disk.write(QStringLiteral("Info.json"), "{}");
  EXPECT_TRUE(open()->infoDictionary().has_value());
}

TEST_F(BundleTest, SaysThatReadingItsDictionaryFailed) {
  // It opens, and has no bytes at its beginning.
  ASSERT_TRUE(
      QFile::link(QStringLiteral("/proc/self/mem"), disk.file(QStringLiteral("Info.json"))));
  const auto bundle = open();
  EXPECT_FALSE(bundle->infoDictionary().has_value());
  EXPECT_EQ(bundle->infoProblem(), QStringLiteral("can't be read (Input/output error)"));
}

TEST_F(BundleTest, SaysThatItsDictionaryIsMissing) {
  const auto bundle = open();
  EXPECT_FALSE(bundle->infoDictionary().has_value());
  EXPECT_TRUE(bundle->infoProblem().startsWith(QLatin1String("can't be read (")))
      << bundle->infoProblem().toStdString();
}

TEST_F(BundleTest, SaysWhereItsDictionaryIsDamaged) {
  EXPECT_TRUE(problemOf(R"({"a": 1,)").startsWith(QLatin1String("is not JSON: ")));
  EXPECT_TRUE(problemOf(R"({"a" 1})").contains(QLatin1String(" at byte 6")))
      << problemOf(R"({"a" 1})").toStdString();
  EXPECT_FALSE(problemOf("").isEmpty());
  EXPECT_FALSE(problemOf(QByteArray("\xFF\xFE{\0}\0", 6)).isEmpty());
}

TEST_F(BundleTest, SaysThatItsDictionaryIsNoObject) {
  EXPECT_EQ(problemOf("[1, 2]"), QStringLiteral("is not a JSON object"));
}

TEST_F(BundleTest, GivesTheTextForAKey) {
  writeTable(QStringLiteral("en"), R"({"key": "Finishing"})");
  EXPECT_EQ(textIn({"en"}), QStringLiteral("Finishing"));
}

TEST_F(BundleTest, GivesTheKeyWhereTheTableLacksIt) {
  writeTable(QStringLiteral("en"), R"({"other": "Finishing"})");
  EXPECT_EQ(textIn({"en"}), QStringLiteral("key"));
}

TEST_F(BundleTest, GivesTheKeyWithoutATableOrWithADamagedOne) {
  EXPECT_EQ(textIn({"en"}), QStringLiteral("key"));
  writeTable(QStringLiteral("en"), R"({"key": )");
  EXPECT_EQ(textIn({"en"}), QStringLiteral("key"));
  writeTable(QStringLiteral("en"), R"({"key": 7})");
  EXPECT_EQ(textIn({"en"}), QStringLiteral("key"));
}

TEST_F(BundleTest, KeepsAnEmptyTextAndTextOfEveryLanguage) {
  writeTable(QStringLiteral("en"), R"({"key": ""})");
  EXPECT_EQ(textIn({"en"}), QStringLiteral(""));
  writeTable(QStringLiteral("ja"), R"({"key": "仕上げ"})");
  EXPECT_EQ(textIn({"ja"}), QStringLiteral("仕上げ"));
}

TEST_F(BundleTest, TakesTheFirstLanguageThatItHas) {
  writeTable(QStringLiteral("en"), R"({"key": "english"})");
  writeTable(QStringLiteral("de"), R"({"key": "deutsch"})");
  EXPECT_EQ(textIn({"de", "en"}), QStringLiteral("deutsch"));
  EXPECT_EQ(textIn({"sv", "de", "en"}), QStringLiteral("deutsch"));
  EXPECT_EQ(textIn({"en", "de"}), QStringLiteral("english"));
}

TEST_F(BundleTest, ServesARegionByItsLanguage) {
  writeTable(QStringLiteral("en"), R"({"key": "english"})");
  writeTable(QStringLiteral("de"), R"({"key": "deutsch"})");
  EXPECT_EQ(textIn({"de-AT"}), QStringLiteral("deutsch"));
  EXPECT_EQ(textIn({"de_AT"}), QStringLiteral("deutsch"));
  writeTable(QStringLiteral("de-AT"), R"({"key": "österreichisch"})");
  EXPECT_EQ(textIn({"de-AT"}), QStringLiteral("österreichisch"));
}

TEST_F(BundleTest, FallsBackToEnglish) {
  writeTable(QStringLiteral("en"), R"({"key": "english"})");
  EXPECT_EQ(textIn({"sv"}), QStringLiteral("english"));
}

TEST_F(BundleTest, TakesTheUsersLanguagesWhereNoneAreGiven) {
  writeTable(QStringLiteral("en"), R"({"key": "english"})");
  writeTable(QStringLiteral("fr"), R"({"key": "français"})");
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::French));
  EXPECT_EQ(textIn({}), QStringLiteral("français"));
  QLocale::setDefault(before);
}

TEST_F(BundleTest, FindsResourcesInTheLanguageThenInEnglishThenInItself) {
  disk.write(QStringLiteral("Finishing.ui"), "");
  EXPECT_EQ(open({"de"})->pathForResource("Finishing", "ui"), disk.file("Finishing.ui"));
  disk.write(QStringLiteral("en.lproj/Finishing.ui"), "");
  EXPECT_EQ(open({"de"})->pathForResource("Finishing", "ui"), disk.file("en.lproj/Finishing.ui"));
  disk.write(QStringLiteral("de.lproj/Finishing.ui"), "");
  EXPECT_EQ(open({"de"})->pathForResource("Finishing", "ui"), disk.file("de.lproj/Finishing.ui"));
}

TEST_F(BundleTest, HasNoPathForAMissingResourceOrAFolder) {
  QDir(disk.path()).mkdir(QStringLiteral("folder.png"));
  EXPECT_TRUE(open()->pathForResource("missing", "png").isNull());
  EXPECT_TRUE(open()->pathForResource("folder", "png").isNull());
  EXPECT_TRUE(pathForResource(open().get(), "missing", "png").isNull());
}

TEST_F(BundleTest, TakesTheNameAloneWhereNoTypeIsGiven) {
  disk.write(QStringLiteral("Stapling.png"), "");
  EXPECT_EQ(open()->pathForResource("Stapling.png", QString()), disk.file("Stapling.png"));
}

TEST_F(BundleTest, GivesAbsolutePaths) {
  disk.write(QStringLiteral("Finishing.ui"), "");
  const QString before = QDir::currentPath();
  ASSERT_TRUE(QDir::setCurrent(disk.path()));
  const auto bundle = Bundle::atPath(QStringLiteral("."), {"en"});
  QDir::setCurrent(before);
  EXPECT_TRUE(QFileInfo(bundle->path()).isAbsolute());
  EXPECT_TRUE(QFileInfo::exists(bundle->pathForResource("Finishing", "ui")));
}

TEST_F(BundleTest, IsQuietOnStandardErrorWhereThereIsNoTable) {
  testing::internal::CaptureStderr();
  EXPECT_EQ(textIn({"en"}), QStringLiteral("key"));
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

}  // namespace
}  // namespace orvek::test
