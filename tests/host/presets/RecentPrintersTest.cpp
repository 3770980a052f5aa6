// SPDX-License-Identifier: Apache-2.0
// The printers used last, whatever lies in their place.

#include "host/presets/RecentPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

class RecentPrintersTest : public ::testing::Test {
 protected:
  QTemporaryDir folder;
  RecentPrinters recent{folder.filePath(QStringLiteral("data"))};

  void write(const QByteArray &contents) const {
    QDir(folder.path()).mkpath(QStringLiteral("data"));
    writeContents(folder.filePath(QStringLiteral("data/recent-printers.json")), contents);
  }
  static QStringList names(const char *text) { return QString::fromUtf8(text).split(u' '); }
};

TEST_F(RecentPrintersTest, NameTheLastOneFirst) {
  EXPECT_TRUE(recent.destinations().isEmpty());
  for (const char *name : {"office", "office/draft", "Büro", "office"}) {
    ASSERT_TRUE(recent.add(QString::fromUtf8(name)));
  }
  EXPECT_EQ(recent.destinations(), names("office Büro office/draft"));
}

TEST_F(RecentPrintersTest, ForgetTheOldest) {
  for (int i = 0; i < 30; ++i) ASSERT_TRUE(recent.add(QStringLiteral("queue-%1").arg(i)));
  EXPECT_EQ(recent.destinations().size(), 10);
  EXPECT_EQ(recent.destinations().first(), QStringLiteral("queue-29"));
}

TEST_F(RecentPrintersTest, AreNoneInAFileThatIsDamagedAndComeBack) {
  for (const char *contents : {"", "{", "[1, 2]", "{\"printers\": 5}", "{\"printers\": [5, \"\"]}",
                               "\xff\xfe\x00", "null"}) {
    write(contents);
    EXPECT_TRUE(recent.destinations().isEmpty()) << contents;
    ASSERT_TRUE(recent.add(QStringLiteral("office"))) << contents;
    EXPECT_EQ(recent.destinations(), names("office")) << contents;
  }
}

TEST_F(RecentPrintersTest, TakeWhatIsANameFromAFileOfSomebodyElse) {
  write(R"({"printers": [7, "one", "one", {}, "two"]})");
  EXPECT_EQ(recent.destinations(), names("one two"));
}

TEST_F(RecentPrintersTest, AreNoneWhereAFolderStandsInTheirPlace) {
  QDir(folder.path()).mkpath(QStringLiteral("data/recent-printers.json"));
  EXPECT_TRUE(recent.destinations().isEmpty());
  EXPECT_FALSE(recent.add(QStringLiteral("office")));
}

}  // namespace
}  // namespace orvek::test
