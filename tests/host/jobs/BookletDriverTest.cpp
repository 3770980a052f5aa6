// SPDX-License-Identifier: Apache-2.0
// Where the driver is found, which jobs want it, and what PPD their filters get.

#include "host/jobs/BookletDriver.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QTemporaryDir>

#include "driver/StandardPPD.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

const Options booklet{{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}};

TEST(AsksForBooklet, ReadsTheKeysAsTheDriverDoes) {
  EXPECT_TRUE(asksForBooklet(booklet));
  EXPECT_TRUE(asksForBooklet({{QStringLiteral("ovkenablebooklet"), QString()}}));
  EXPECT_FALSE(asksForBooklet({}));
  EXPECT_FALSE(asksForBooklet({{QStringLiteral("OVKGutter"), QStringLiteral("36")}}));
  EXPECT_FALSE(asksForBooklet({{QStringLiteral("OVKEnableBooklet"), QStringLiteral("False")}}));
  Options several = booklet;
  several.insert(QStringLiteral("number-up"), QStringLiteral("2"));
  EXPECT_FALSE(asksForBooklet(several));
}

/// A prefix, a build tree or a print server's folder, with nothing in it.
class BookletDriver : public ::testing::Test {
 protected:
  QString install(const QString &place) const {
    const QFileInfo driver(folder.filePath(place + QStringLiteral("/orvek-booklet")));
    driver.dir().mkpath(QStringLiteral("."));
    writeContents(driver.filePath(), "#!/bin/sh\n");
    QFile::setPermissions(driver.filePath(), QFile::ReadOwner | QFile::ExeOwner);
    return driver.filePath();
  }

  QString write(const QByteArray &ppd) const {
    writeContents(file, ppd);
    return file;
  }

  QTemporaryDir folder;
  QString file = folder.filePath(QStringLiteral("printer.ppd"));
  DriverPlaces places{folder.filePath(QStringLiteral("bin")),
                      folder.filePath(QStringLiteral("server"))};
  QByteArray own = contentsOf(orvekPPD(QStringLiteral("6180")));
  QByteArray plain = QByteArray::fromStdString(driver::withoutFilterLines(own.toStdString()));
};

TEST_F(BookletDriver, IsTakenFromTheServerThenFromThePrefixThenFromTheBuildTree) {
  EXPECT_TRUE(findBookletDriver(places).isNull());
  for (const char *place : {"server/filter", "lib/cups/filter", "cups/filter"}) {
    const QString driver = install(QLatin1String(place));
    EXPECT_EQ(findBookletDriver(places), driver);
  }
}

TEST_F(BookletDriver, IsNoFileThatCannotBeRun) {
  QFile::setPermissions(install(QStringLiteral("cups/filter")), QFile::ReadOwner);
  EXPECT_TRUE(findBookletDriver(places).isNull());
}

TEST_F(BookletDriver, OfTheBuildTreeIsFoundByItsPrograms) {
  EXPECT_EQ(findBookletDriver(DriverPlaces::ofThisProgram()),
            QStringLiteral(ORVEK_BINARY_DIR "/cups/filter/orvek-booklet"));
}

TEST_F(BookletDriver, IsNamedByItsPathForABooklet) {
  const QByteArray driver = install(QStringLiteral("cups/filter")).toUtf8();
  const QByteArray lines = "*cupsFilter: \"application/vnd.cups-pdf 0 " + driver +
                           "\"\n*cupsFilter: \"application/postscript 0 " + driver + "\"\n";
  const auto ppd = ChainPPD::of(write(own), booklet, places);
  ASSERT_TRUE(ppd);
  EXPECT_EQ(contentsOf(ppd.value().path()), plain + lines);
  EXPECT_EQ(contentsOf(file), own);
}

TEST_F(BookletDriver, IsNamedWhereAPPDOfABookletPrinterNamesNoFilter) {
  install(QStringLiteral("cups/filter"));
  const auto ppd = ChainPPD::of(write(plain), booklet, places);
  ASSERT_TRUE(ppd);
  EXPECT_TRUE(contentsOf(ppd.value().path()).contains("/orvek-booklet\""));
}

TEST_F(BookletDriver, IsLeftOutOfOtherJobs) {
  const auto ppd = ChainPPD::of(write(own), {}, places);
  ASSERT_TRUE(ppd);
  EXPECT_EQ(contentsOf(ppd.value().path()), plain);
}

TEST_F(BookletDriver, LeavesOtherPrintersAlone) {
  const QByteArray other = plain + "*cupsFilter: \"application/vnd.cups-postscript 0 theirs\"\n";
  const QByteArray byPath = QByteArray(own).replace(" orvek-booklet\"", " /opt/orvek-booklet\"");
  const QByteArray noBooklets = QByteArray(plain).replace("*OVKHasBooklet: \"True\"\n", "");
  for (const QByteArray &text : {other, byPath, noBooklets}) {
    const auto ppd = ChainPPD::of(write(text), booklet, places);
    ASSERT_TRUE(ppd);
    EXPECT_EQ(ppd.value().path(), file);
  }
}

TEST_F(BookletDriver, IsKnownToBeNamedByNameOrByPath) {
  const QByteArray byPath = QByteArray(own).replace(" orvek-booklet\"", " /opt/orvek-booklet\"");
  const QByteArray inTheOldForm =
      plain + "*cupsFilter: \"application/vnd.cups-pdf 0 orvek-booklet\"\n";
  for (const QByteArray &text : {own, byPath, inTheOldForm}) {
    EXPECT_EQ(driverNamedIn(write(text)), NamedDriver::Ours);
  }
}

TEST_F(BookletDriver, IsKnownToBeLeftOutWhereNoOtherFilterIsNamed) {
  const QByteArray formatsAlone =
      plain + "*cupsFilter2: \"application/postscript application/vnd.cups-postscript 0 -\"\n" +
      "*cupsFilter: \"application/vnd.cups-command 0 commandtops\"\n";
  for (const QByteArray &text : {plain, formatsAlone}) {
    EXPECT_EQ(driverNamedIn(write(text)), NamedDriver::NoneForBooklets);
  }
}

TEST_F(BookletDriver, IsNoMatterOfOtherPrinters) {
  const QByteArray other = plain + "*cupsFilter: \"application/vnd.cups-postscript 0 theirs\"\n";
  const QByteArray noBooklets = QByteArray(plain).replace("*OVKHasBooklet: \"True\"\n", "");
  for (const QByteArray &text : {other, noBooklets, QByteArray("no PPD\n")}) {
    EXPECT_EQ(driverNamedIn(write(text)), NamedDriver::Other);
  }
  EXPECT_EQ(driverNamedIn(folder.filePath(QStringLiteral("none.ppd"))), NamedDriver::Other);
}

TEST_F(BookletDriver, IsMissedByABookletOnly) {
  write(own);
  const auto ppd = ChainPPD::of(file, booklet, places);
  ASSERT_FALSE(ppd);
  EXPECT_EQ(ppd.failure().line().toStdString(),
            "orvek-booklet: not found, so no booklet can be made; install this filter, too");
  EXPECT_TRUE(ChainPPD::of(file, {}, places));
}

TEST_F(BookletDriver, LeavesNoCopyOfThePPDBehind) {
  install(QStringLiteral("cups/filter"));
  QString copy;
  {
    const auto ppd = ChainPPD::of(write(own), booklet, places);
    ASSERT_TRUE(ppd);
    copy = ppd.value().path();
    EXPECT_NE(copy, file);
    EXPECT_TRUE(QFile::exists(copy));
  }
  EXPECT_FALSE(QFile::exists(copy));
}

}  // namespace
}  // namespace orvek::test
