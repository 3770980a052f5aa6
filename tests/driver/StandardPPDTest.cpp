// SPDX-License-Identifier: Apache-2.0
// PPDs as the standard filters are to see them.

#include "driver/StandardPPD.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>
#include <cstdlib>

#include "tests/support/CapturingFilter.h"

namespace orvek::driver {
namespace {

using orvek::test::contentsOf;
using orvek::test::writeContents;

class StandardPPDs : public ::testing::Test {
 protected:
  void SetUp() override {
    qputenv("TMPDIR", folder.path().toUtf8());
    qputenv("PPD", file.toUtf8());
  }
  void TearDown() override {
    qunsetenv("TMPDIR");
    qunsetenv("PPD");
  }

  QTemporaryDir folder;
  QString file = folder.filePath(QStringLiteral("printer.ppd"));
};

TEST(FilterLines, AreLeftOutAndNothingElse) {
  EXPECT_EQ(withoutFilterLines("*A: 1\n*cupsFilter2: \"a b 0 c\"\n*B: 2\n"), "*A: 1\n*B: 2\n");
  EXPECT_EQ(withoutFilterLines("*A: 1\r\n*cupsFilter: \"a 0 c\"\r\n*B: 2"), "*A: 1\r\n*B: 2");
  EXPECT_EQ(withoutFilterLines("*cupsFilter2: \"a b 0 c\""), "");
  EXPECT_EQ(withoutFilterLines("*% *cupsFilter2:\n"), "*% *cupsFilter2:\n");
  EXPECT_EQ(withoutFilterLines(""), "");
}

TEST_F(StandardPPDs, AreCopiesThatGoWithTheJob) {
  writeContents(file, "*PPD-Adobe: \"4.3\"\n*cupsFilter2: \"a b 0 c\"\n");
  {
    const auto ppd = StandardPPD::of(file.toStdString());
    ASSERT_TRUE(ppd);
    const QString copy = qEnvironmentVariable("PPD");
    EXPECT_NE(copy, file);
    EXPECT_EQ(contentsOf(copy), "*PPD-Adobe: \"4.3\"\n");
  }
  EXPECT_EQ(qEnvironmentVariable("PPD"), file);
  EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{QStringLiteral("printer.ppd")});
}

TEST_F(StandardPPDs, AreTheFileItselfWhereItNamesNoFilters) {
  writeContents(file, "*PPD-Adobe: \"4.3\"\n");
  const auto ppd = StandardPPD::of(file.toStdString());
  ASSERT_TRUE(ppd);
  EXPECT_EQ(qEnvironmentVariable("PPD"), file);
}

TEST_F(StandardPPDs, FailWithTheNameOfAFileThatCanNotBeRead) {
  const auto ppd = StandardPPD::of(file.toStdString());
  ASSERT_FALSE(ppd);
  EXPECT_EQ(ppd.failure().what, file);
}

}  // namespace
}  // namespace orvek::driver
