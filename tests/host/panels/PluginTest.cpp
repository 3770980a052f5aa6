// SPDX-License-Identifier: Apache-2.0
// Finding plug-in bundles, checking what they say of themselves, and loading their code.

#include <gmock/gmock.h>
#include <pwd.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "host/panels/PluginFinder.h"
#include "host/panels/PluginLoader.h"
#include "host/panels/PluginTrust.h"

namespace orvek::test {
namespace {

using testing::HasSubstr;

/// A folder in which bundles are made.
class PluginTest : public testing::Test {
 protected:
  static QJsonObject soundInfo() {
    return {{"Identifier", "test.plugin"},
            {"PrincipalClass", "TestPlugin"},
            {"Executable", "libTest.so"},
            {"PluginInterface", 1}};
  }

  static void write(const QString &path, const QByteArray &bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    file.write(bytes);
  }

  QString makeBundle(const QString &name, const QJsonObject &info) {
    const QString path = dir.filePath(name);
    QDir().mkpath(path);
    write(path + "/Info.json", QJsonDocument(info).toJson());
    write(path + "/libTest.so", "no code at all");
    return path;
  }

  Failure infoFailure(const QString &key, const QJsonValue &value) {
    QJsonObject info = soundInfo();
    info.insert(key, value);
    const auto read = readPluginInfo(makeBundle(QStringLiteral("a.bundle"), info));
    EXPECT_FALSE(read.ok()) << key.toStdString();
    return read.ok() ? Failure{} : read.failure();
  }

  QTemporaryDir dir;
};

TEST_F(PluginTest, KnowsASoundBundlesClassAndCode) {
  const QString path = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  const auto info = readPluginInfo(path);
  ASSERT_TRUE(info.ok());
  EXPECT_EQ(info.value().principalClass, "TestPlugin");
  EXPECT_EQ(info.value().executable, path + "/libTest.so");
  EXPECT_EQ(info.value().identifier, "test.plugin");
}

Status trustIn(const QString &bundle) {
  return checkNobodyElseWrites(bundle, bundle + "/libTest.so");
}

TEST_F(PluginTest, TrustsWhatNobodyElseCanWrite) {
  const QString path = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  const Status trusted = trustIn(path);
  EXPECT_TRUE(trusted.ok()) << trusted.failure().line().toStdString();
}

TEST_F(PluginTest, RefusesCodeThatOthersCanPutInItsPlace) {
  const QString path = makeBundle(QStringLiteral("deep/a.bundle"), soundInfo());
  for (const QString &open :
       QStringList{path + "/libTest.so", path + "/Info.json", path, dir.filePath("deep")}) {
    const QFile::Permissions before = QFile::permissions(open);
    QFile::setPermissions(open, before | QFile::WriteOther);
    const Status trusted = trustIn(path);
    ASSERT_FALSE(trusted.ok()) << open.toStdString();
    EXPECT_EQ(trusted.failure().what, open);
    EXPECT_THAT(trusted.failure().why.toStdString(), HasSubstr("can be written by others"));
    EXPECT_EQ(loadPlugin(path).failure().line(), trusted.failure().line());
    QFile::setPermissions(open, before);
  }
  EXPECT_TRUE(trustIn(path).ok());
}

TEST_F(PluginTest, RefusesCodeThatAGroupCanWriteUnlessItIsTheUsersOwn) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give files to any group";
  const QString code = makeBundle(QStringLiteral("a.bundle"), soundInfo()) + "/libTest.so";
  QFile::setPermissions(code, QFile::permissions(code) | QFile::WriteGroup);
  constexpr gid_t anotherGroup = 1;
  for (const gid_t group : {::getpwuid(0)->pw_gid, anotherGroup}) {
    ASSERT_EQ(::chown(code.toLocal8Bit(), 0, group), 0);
    EXPECT_EQ(trustIn(dir.filePath("a.bundle")).ok(), group != anotherGroup);
  }
}

TEST_F(PluginTest, RefusesALinkThatStandsWhereOthersCanWrite) {
  const QString path = makeBundle(QStringLiteral("kept/a.bundle"), soundInfo());
  QDir(dir.path()).mkdir("open");
  ASSERT_TRUE(QFile::link(path, dir.filePath("open/a.bundle")));
  EXPECT_TRUE(trustIn(dir.filePath("open/a.bundle")).ok());
  QFile::setPermissions(dir.filePath("open"),
                        QFile::permissions(dir.filePath("open")) | QFile::WriteOther);
  EXPECT_EQ(trustIn(dir.filePath("open/a.bundle")).failure().what, dir.filePath("open"));
}

TEST_F(PluginTest, RefusesCodeOfAnotherUser) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  const QString path = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  constexpr uid_t anotherUser = 65534;
  ASSERT_EQ(::chown((path + "/libTest.so").toLocal8Bit(), anotherUser, 0), 0);
  EXPECT_EQ(trustIn(path).failure().what, path + "/libTest.so");
  EXPECT_THAT(trustIn(path).failure().why.toStdString(), HasSubstr("belongs to another user"));
}

TEST_F(PluginTest, RefusesWhatIsNoBundle) {
  EXPECT_EQ(readPluginInfo(dir.filePath("none.bundle")).failure().kind, FailureKind::Invalid);
  QDir(dir.path()).mkdir("empty.bundle");
  EXPECT_THAT(readPluginInfo(dir.filePath("empty.bundle")).failure().what.toStdString(),
              HasSubstr("empty.bundle/Info.json"));
}

TEST_F(PluginTest, RefusesDamagedMetadata) {
  const QString path = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  write(path + "/Info.json", "{\"Identifier\": ");
  EXPECT_EQ(readPluginInfo(path).failure().kind, FailureKind::Invalid);
}

TEST_F(PluginTest, RefusesAnotherInterfaceVersion) {
  EXPECT_THAT(infoFailure("PluginInterface", 2).why.toStdString(), HasSubstr("interface 2"));
  EXPECT_EQ(infoFailure("PluginInterface", "1").kind, FailureKind::Invalid);
  EXPECT_EQ(infoFailure("PluginInterface", QJsonValue()).kind, FailureKind::Invalid);
}

TEST_F(PluginTest, RefusesAClassThatIsNoIdentifier) {
  for (const char *name : {"", "9Lives", "A B", "A;B", "A\n"}) {
    EXPECT_THAT(infoFailure("PrincipalClass", name).why.toStdString(), HasSubstr("PrincipalClass"));
  }
}

TEST_F(PluginTest, RefusesCodeOutsideTheBundle) {
  write(dir.filePath("outside.so"), "");
  for (const char *name : {"", "../outside.so", "/bin/true", "sub/../libTest.so", "..", "."}) {
    EXPECT_EQ(infoFailure("Executable", name).kind, FailureKind::Invalid) << name;
  }
}

TEST_F(PluginTest, RefusesALinkThatLeavesTheBundle) {
  const QString path = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  write(dir.filePath("outside.so"), "");
  QFile::remove(path + "/libTest.so");
  QFile::link(dir.filePath("outside.so"), path + "/libTest.so");
  EXPECT_THAT(readPluginInfo(path).failure().why.toStdString(), HasSubstr("inside the bundle"));
}

TEST_F(PluginTest, NamesCodeThatIsMissing) {
  EXPECT_THAT(infoFailure("Executable", "libGone.so").what.toStdString(), HasSubstr("libGone.so"));
}

TEST_F(PluginTest, NamesCodeThatDoesNotLoad) {
  const auto plugin = loadPlugin(makeBundle(QStringLiteral("a.bundle"), soundInfo()));
  ASSERT_FALSE(plugin.ok());
  EXPECT_EQ(plugin.failure().kind, FailureKind::Invalid);
  EXPECT_THAT(plugin.failure().what.toStdString(), HasSubstr("a.bundle/libTest.so"));
  EXPECT_FALSE(plugin.failure().why.contains('\n'));
}

TEST_F(PluginTest, NamesAClassThatTheCodeLacks) {
  const QString path = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  QFile::remove(path + "/libTest.so");
  ASSERT_TRUE(
      QFile::copy(QStringLiteral(ORVEK_BUNDLE_DIR "/libOrvekFinishing.so"), path + "/libTest.so"));
  const auto plugin = loadPlugin(path);
  ASSERT_FALSE(plugin.ok());
  EXPECT_THAT(plugin.failure().why.toStdString(), HasSubstr("TestPlugin"));
}

TEST_F(PluginTest, LoadsTheFinishingPlugin) {
  const auto plugin = loadPlugin(QStringLiteral(ORVEK_BUNDLE_DIR));
  ASSERT_TRUE(plugin.ok()) << plugin.failure().line().toStdString();
  EXPECT_EQ(plugin.value().factory->PDEPanelsForType_withHostInfo("another type", nullptr).size(),
            0);
}

TEST_F(PluginTest, LeavesBrokenPluginsOutAndTakesEachIdentifierOnce) {
  const QString broken = makeBundle(QStringLiteral("a.bundle"), soundInfo());
  const PluginHarvest harvest = loadPlugins({broken, ORVEK_BUNDLE_DIR, ORVEK_BUNDLE_DIR});
  EXPECT_EQ(harvest.plugins.size(), 1);
  EXPECT_EQ(harvest.failures.size(), 1);
}

TEST_F(PluginTest, IsFoundInTheFoldersOfTheEnvironmentInOrder) {
  QDir root(dir.path());
  for (const char *path : {"one/b.bundle", "one/a.bundle", "two/c.bundle", "two/plain"}) {
    root.mkpath(path);
  }
  root.mkpath("program");
  const PluginPlaces places{
      dir.filePath("program"),
      dir.filePath("two") + "::" + dir.filePath("one") + ":" + dir.filePath("two/c.bundle")};
  EXPECT_EQ(findPluginBundles(places),
            (QStringList{dir.filePath("two/c.bundle"), dir.filePath("one/a.bundle"),
                         dir.filePath("one/b.bundle")}));
}

TEST_F(PluginTest, IsFoundWhereItIsInstalledBesideTheProgram) {
  QDir(dir.path()).mkpath("p/bin");
  QDir(dir.path()).mkpath("p/lib/orvek-print/plugins/x.bundle");
  EXPECT_EQ(findPluginBundles({dir.filePath("p/bin"), {}}),
            QStringList{dir.filePath("p/lib/orvek-print/plugins/x.bundle")});
}

/// A build tree whose own plug-in is sound.
class PluginInABuildTree : public PluginTest {
 protected:
  PluginInABuildTree() {
    QDir(dir.path()).mkpath("p/bin");
    QFile::link(QStringLiteral(ORVEK_BUNDLE_DIR), dir.filePath("p/OrvekFinishing.bundle"));
  }

  PluginHarvest harvest() const {
    return loadInstalledPlugins({dir.filePath("p/bin"), environmentPath});
  }

  QString environmentPath;
};

TEST_F(PluginInABuildTree, IsTakenWhereNoneIsInstalled) {
  EXPECT_EQ(harvest().plugins.size(), 1);
  EXPECT_TRUE(harvest().failures.isEmpty());
}

TEST_F(PluginInABuildTree, IsLeftWhereOneIsInstalled) {
  QDir(dir.path()).mkpath("installed");
  const QString installed = dir.filePath("installed/Other.bundle");
  ASSERT_TRUE(QFile::link(QStringLiteral(ORVEK_BUNDLE_DIR), installed));
  environmentPath = dir.filePath("installed");
  const PluginHarvest found = harvest();
  ASSERT_EQ(found.plugins.size(), 1);
  EXPECT_THAT(found.plugins.first()->info.executable.toStdString(), HasSubstr("Other.bundle"));
}

TEST_F(PluginInABuildTree, StandsInForInstalledOnesThatAreAllDamaged) {
  environmentPath = makeBundle(QStringLiteral("damaged.bundle"), soundInfo());
  const PluginHarvest found = harvest();
  EXPECT_EQ(found.plugins.size(), 1);
  ASSERT_EQ(found.failures.size(), 1);
  EXPECT_THAT(found.failures.first().what.toStdString(), HasSubstr("damaged.bundle"));
}

TEST_F(PluginTest, IsNeverFoundInTheCurrentFolder) {
  QDir(dir.path()).mkpath("x.bundle");
  QDir(dir.path()).mkpath("program");
  const QString before = QDir::currentPath();
  QDir::setCurrent(dir.path());
  EXPECT_EQ(findPluginBundles({dir.filePath("program"), ".::x.bundle:"}), QStringList());
  QDir::setCurrent(before);
}

}  // namespace
}  // namespace orvek::test
