// SPDX-License-Identifier: Apache-2.0
// Jobs that ask for no booklet: as if there were no driver.

#include <gtest/gtest.h>

#include <QDir>

#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

class PassOn : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  }

  void expectSame(const QStringList &options, const QString &file) const {
    const Printed with = printThrough(kit.ppd(), options, file);
    const Printed without = printThrough(kit.plainPPD(), options, file);
    EXPECT_EQ(with.exitStatus, 0) << with.messages.join(u'\n').toStdString();
    EXPECT_FALSE(without.output.isEmpty());
    EXPECT_TRUE(withoutDates(with.output) == withoutDates(without.output))
        << options.join(u' ').toStdString();
    EXPECT_EQ(with.lines(QStringLiteral("PAGE: ")), without.lines(QStringLiteral("PAGE: ")));
  }

  DriverKit kit;
};

TEST_F(PassOn, ChangesNoByteOfPDF) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(5));
  expectSame({}, file);
  expectSame({QStringLiteral("-n 2"), QStringLiteral("outputorder=reverse"),
              QStringLiteral("sides=two-sided-long-edge"), QStringLiteral("page-ranges=2-4")},
             file);
  expectSame({QStringLiteral("number-up=2"), QStringLiteral("media=A3"),
              QStringLiteral("OVKStapling=Dual"), QStringLiteral("OVKGutter=12")},
             file);
  expectSame({QStringLiteral("OVKEnableBooklet=False"), QStringLiteral("landscape")}, file);
}

TEST_F(PassOn, ChangesNoByteOfPostScript) {
  const QString file = kit.write(QStringLiteral("in.ps"), postScriptDocument(3).toStdString());
  expectSame({}, file);
  expectSame({QStringLiteral("-n 3"), QStringLiteral("number-up=2")}, file);
}

TEST_F(PassOn, ChangesNoByteOfText) {
  expectSame({}, kit.write(QStringLiteral("in.txt"), "A text\nof two lines\n"));
}

TEST_F(PassOn, LeavesABookletOutWhereSeveralPagesGoOnASheet) {
  expectSame({QStringLiteral("OVKEnableBooklet"), QStringLiteral("number-up=2")},
             kit.write(QStringLiteral("in.pdf"), markedDocument(5)));
}

TEST_F(PassOn, LeavesBannersAsTheyAre) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(1));
  qputenv("CONTENT_TYPE", "application/vnd.cups-pdf-banner");
  const Printed banner = runDriverAlone(kit, QStringLiteral("OVKEnableBooklet"), file);
  qunsetenv("CONTENT_TYPE");
  EXPECT_EQ(banner.lines(QStringLiteral("PAGE: ")).size(), 1);
}

TEST_F(PassOn, TakesTheDocumentByStandardInputAndLeavesNothingBehind) {
  const QStringList before = QDir(kit.path(QString())).entryList(QDir::Files);
  const QByteArray document = QByteArray::fromStdString(markedDocument(2));
  const Printed printed = runDriverAlone(kit, QString(), QString(), document);
  EXPECT_EQ(printed.exitStatus, 0);
  EXPECT_EQ(printed.lines(QStringLiteral("PAGE: ")).size(), 2);
  EXPECT_EQ(QDir(kit.path(QString())).entryList(QDir::Files), before);
}

}  // namespace
}  // namespace orvek::test
