// SPDX-License-Identifier: Apache-2.0
// Presets are kept, whatever they are called and whatever else lies in their folder.

#include "host/presets/PresetStore.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QLocale>
#include <QTemporaryDir>

#include "host/presets/PresetName.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

Preset brochure(const QString &name) {
  return {name,
          QStringLiteral("Orvek 6180"),
          {{QStringLiteral("OVKFolding"), QStringLiteral("Saddle")}},
          {{QStringLiteral("OVKGutter"), QStringLiteral("24")},
           {QStringLiteral("com.apple.print.PrintSettings.PMLayoutNUp"), qint64{4}}}};
}

class PresetStoreTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  PresetStore store{folder.path()};

  QString fileOf(const QString &name) const {
    return folder.filePath(QStringLiteral("presets/") + presetFileName(name));
  }
  void damage(const QString &name, const QByteArray &contents) const {
    QDir(folder.path()).mkpath(QStringLiteral("presets"));
    writeContents(fileOf(name), contents);
  }
};

TEST_F(PresetStoreTest, GivesBackWhatWasSaved) {
  const Preset saved = brochure(QStringLiteral("Brochure"));
  ASSERT_TRUE(store.save(saved));
  const auto loaded = store.load(QStringLiteral("Brochure"));
  ASSERT_TRUE(loaded) << loaded.failure().line().toStdString();
  EXPECT_EQ(loaded.value().name, saved.name);
  EXPECT_EQ(loaded.value().printerModel, saved.printerModel);
  EXPECT_EQ(loaded.value().options, saved.options);
  EXPECT_EQ(loaded.value().ticket, saved.ticket);
}

TEST_F(PresetStoreTest, IsEmptyBeforeAnythingWasSaved) {
  EXPECT_TRUE(store.list().names.isEmpty());
  EXPECT_TRUE(store.list().damaged.isEmpty());
}

TEST_F(PresetStoreTest, ListsNamesAsPeopleSortThem) {
  const QLocale before;
  QLocale::setDefault(QLocale(QLocale::English));
  for (const char *name : {"Set 10", "set 2", "Draft"}) {
    ASSERT_TRUE(store.save(brochure(QString::fromLatin1(name))));
  }
  EXPECT_EQ(store.list().names, (QStringList{QStringLiteral("Draft"), QStringLiteral("set 2"),
                                             QStringLiteral("Set 10")}));
  QLocale::setDefault(before);
}

TEST_F(PresetStoreTest, ReplacesAPresetOfTheSameName) {
  Preset preset = brochure(QStringLiteral("Brochure"));
  ASSERT_TRUE(store.save(preset));
  preset.options.clear();
  ASSERT_TRUE(store.save(preset));
  EXPECT_TRUE(store.load(preset.name).value().options.isEmpty());
  EXPECT_EQ(store.list().names.size(), 1);
}

TEST_F(PresetStoreTest, RenamesWithoutLosingAnything) {
  ASSERT_TRUE(store.save(brochure(QStringLiteral("old"))));
  ASSERT_TRUE(store.rename(QStringLiteral("old"), QStringLiteral("new")));
  EXPECT_EQ(store.list().names, QStringList{QStringLiteral("new")});
  EXPECT_EQ(store.load(QStringLiteral("new")).value().options,
            brochure(QStringLiteral("new")).options);
}

TEST_F(PresetStoreTest, DoesNotRenameOntoAnotherPreset) {
  ASSERT_TRUE(store.save(brochure(QStringLiteral("one"))));
  ASSERT_TRUE(store.save(brochure(QStringLiteral("two"))));
  const auto renamed = store.rename(QStringLiteral("one"), QStringLiteral("two"));
  ASSERT_FALSE(renamed);
  EXPECT_EQ(renamed.failure().line(),
            QStringLiteral("preset \"two\": there is one of that name already"));
  EXPECT_EQ(store.list().names.size(), 2);
}

TEST_F(PresetStoreTest, RemovesAPreset) {
  ASSERT_TRUE(store.save(brochure(QStringLiteral("one"))));
  ASSERT_TRUE(store.remove(QStringLiteral("one")));
  EXPECT_TRUE(store.list().names.isEmpty());
}

TEST_F(PresetStoreTest, SaysThatThereIsNoneOfAName) {
  for (const Status &status :
       {store.remove(QStringLiteral("none")), Status(store.load(QStringLiteral("none")).failure()),
        store.rename(QStringLiteral("none"), QStringLiteral("other"))}) {
    ASSERT_FALSE(status);
    EXPECT_EQ(status.failure().kind, FailureKind::Io);
    EXPECT_TRUE(status.failure().line().startsWith(
        QStringLiteral("preset \"none\": there is none of that name")));
  }
}

TEST_F(PresetStoreTest, ReportsADamagedPresetAndLeavesItUntouched) {
  const QString name = QStringLiteral("broken");
  const QByteArray contents = "{\n\"name\": \"broken\",\n oops";
  damage(name, contents);
  ASSERT_TRUE(store.save(brochure(QStringLiteral("whole"))));
  const auto listing = store.list();
  EXPECT_EQ(listing.names, QStringList{QStringLiteral("whole")});
  ASSERT_EQ(listing.damaged.size(), 1);
  EXPECT_TRUE(listing.damaged[0].what.endsWith(QStringLiteral("broken.json:3")))
      << listing.damaged[0].what.toStdString();
  EXPECT_EQ(store.load(name).failure().kind, FailureKind::Invalid);
  EXPECT_FALSE(store.save(brochure(name)));
  EXPECT_EQ(contentsOf(fileOf(name)), contents);
}

TEST_F(PresetStoreTest, RemovesADamagedPresetWhenToldTo) {
  damage(QStringLiteral("broken"), "nonsense");
  ASSERT_TRUE(store.remove(QStringLiteral("broken")));
  EXPECT_TRUE(store.list().damaged.isEmpty());
}

TEST_F(PresetStoreTest, SaysWhichPartOfAPresetIsWrong) {
  const QString name = QStringLiteral("broken");
  const QMap<QByteArray, QString> reasons{
      {"[]", QStringLiteral("not a preset: one JSON object expected")},
      {R"({"name": 3})", QStringLiteral("\"name\" must be text")},
      {R"({"options": []})", QStringLiteral("\"options\" must be an object")},
      {R"({"options": {"Duplex": 1}})",
       QStringLiteral("option \"Duplex\" must have a choice as text")},
      {R"({"ticket": {"OVKGutter": true}})",
       QStringLiteral("key \"OVKGutter\" must be text or an integer, not true or false")}};
  for (auto reason = reasons.cbegin(); reason != reasons.cend(); ++reason) {
    damage(name, reason.key());
    const auto loaded = store.load(name);
    ASSERT_FALSE(loaded);
    EXPECT_EQ(loaded.failure().why, reason.value());
  }
}

TEST_F(PresetStoreTest, RemembersWhatWasLastUsedOnEachQueue) {
  EXPECT_FALSE(store.lastUsed(QStringLiteral("office")).value().has_value());
  ASSERT_TRUE(store.saveLastUsed(QStringLiteral("office"), brochure(QString())));
  const auto last = store.lastUsed(QStringLiteral("office"));
  ASSERT_TRUE(last);
  ASSERT_TRUE(last.value().has_value());
  EXPECT_EQ(last.value()->ticket, brochure(QString()).ticket);
  EXPECT_FALSE(store.lastUsed(QStringLiteral("hall")).value().has_value());
  EXPECT_TRUE(store.list().names.isEmpty());
}

TEST_F(PresetStoreTest, ForgetsWhatWasLastUsedForThoseWhoWantNothingRemembered) {
  EXPECT_TRUE(store.remembers());
  for (const char *queue : {"office", "hall"}) {
    ASSERT_TRUE(store.saveLastUsed(QString::fromLatin1(queue), brochure(QString())));
  }
  writeContents(folder.filePath(QStringLiteral("last-used/cellar.json")), "{");
  ASSERT_TRUE(store.save(brochure(QStringLiteral("Brochure"))));
  ASSERT_TRUE(store.setRemembers(false));
  EXPECT_FALSE(PresetStore(folder.path()).remembers());
  for (const char *queue : {"office", "hall", "cellar"}) {
    const auto last = store.lastUsed(QString::fromLatin1(queue));
    ASSERT_TRUE(last) << queue;
    EXPECT_FALSE(last.value().has_value()) << queue;
  }
  EXPECT_EQ(store.list().names, QStringList(QStringLiteral("Brochure")));
  ASSERT_TRUE(store.setRemembers(true));
  EXPECT_TRUE(store.remembers());
}

TEST_F(PresetStoreTest, GivesNoPresetANameThatListsHaveForThemselves) {
  for (const char *name : {"None", "none", " Last Used "}) {
    const Status saved = store.save(brochure(QString::fromLatin1(name)));
    ASSERT_FALSE(saved) << name;
    EXPECT_EQ(saved.failure().kind, FailureKind::Usage);
  }
  ASSERT_TRUE(store.save(brochure(QStringLiteral("Brochure"))));
  EXPECT_FALSE(store.rename(QStringLiteral("Brochure"), QStringLiteral("None")));
  EXPECT_EQ(store.list().names, QStringList(QStringLiteral("Brochure")));
}

TEST_F(PresetStoreTest, StillHasAPresetThatGotSuchANameBefore) {
  damage(QStringLiteral("None"), presetToJson(brochure(QStringLiteral("None"))));
  EXPECT_TRUE(store.load(QStringLiteral("None")));
  EXPECT_TRUE(store.rename(QStringLiteral("None"), QStringLiteral("Brochure")));
}

TEST_F(PresetStoreTest, SaysWhyItCannotBeWritten) {
  writeContents(folder.filePath(QStringLiteral("presets")), "a file where the folder should be");
  const auto saved = store.save(brochure(QStringLiteral("one")));
  ASSERT_FALSE(saved);
  EXPECT_EQ(saved.failure().kind, FailureKind::Io);
  EXPECT_EQ(saved.failure().what, folder.filePath(QStringLiteral("presets")));
}

TEST_F(PresetStoreTest, LiesInTheUsersDataFolder) {
  const QByteArray before = qgetenv("XDG_DATA_HOME");
  qputenv("XDG_DATA_HOME", folder.path().toUtf8());
  EXPECT_EQ(PresetStore::standardFolder(), folder.filePath(QStringLiteral("orvek-print")));
  if (before.isNull()) {
    qunsetenv("XDG_DATA_HOME");
  } else {
    qputenv("XDG_DATA_HOME", before);
  }
}

class OddNames : public PresetStoreTest, public ::testing::WithParamInterface<QString> {};

TEST_P(OddNames, AreKeptInsideTheFolder) {
  ASSERT_TRUE(store.save(brochure(GetParam())));
  EXPECT_EQ(store.list().names, QStringList{GetParam()});
  EXPECT_TRUE(store.load(GetParam()));
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{QStringLiteral("presets")});
  ASSERT_TRUE(store.remove(GetParam()));
  EXPECT_TRUE(store.list().names.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Names, OddNames,
    ::testing::Values(QStringLiteral("."), QStringLiteral(".."), QStringLiteral("../../etc/passwd"),
                      QStringLiteral("/absolute"), QStringLiteral(".hidden"),
                      QStringLiteral("a/b\\c"), QStringLiteral("100 % \"best\" *?"),
                      QStringLiteral("Broschüre 日本語 🙂"), QStringLiteral("-n"),
                      QString(5000, u'x'), QString(300, u'日')));

TEST(PresetName, TellsLongNamesApartThatDifferAtTheirEnd) {
  const QString longName(1000, u'x');
  EXPECT_NE(presetFileName(longName + u'1'), presetFileName(longName + u'2'));
}

TEST(PresetName, IsTheSameHoweverItsAccentsAreWritten) {
  EXPECT_EQ(presetFileName(QStringLiteral("\u00e9")), presetFileName(QStringLiteral("e\u0301")));
}

TEST(PresetName, CannotBeEmptyOrHoldControlCharacters) {
  for (const QString &name : {QString(), QStringLiteral("  "), QStringLiteral("two\nlines"),
                              QStringLiteral("bell\a"), QString(QChar(0))}) {
    const auto checked = checkPresetName(name);
    ASSERT_FALSE(checked);
    EXPECT_EQ(checked.failure().kind, FailureKind::Usage);
  }
}

}  // namespace
}  // namespace orvek::test
