// SPDX-License-Identifier: Apache-2.0
// Opening PPD files, sound and unsound.

#include "host/session/PrinterDescription.h"

#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>

#include "tests/host/session/SessionKit.h"

namespace orvek::test {
namespace {

Failure failureOf(const QString &path) {
  const auto printer = PrinterDescription::open(path);
  EXPECT_FALSE(printer.ok());
  return printer.ok() ? Failure{} : printer.failure();
}

TEST(PrinterDescription, KnowsItsModelAndFile) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_EQ(printer->modelName(), "Orvek Test 6180, 1.0");
  EXPECT_EQ(printer->path(), testPpd(QStringLiteral("finisher.ppd")));
}

TEST(PrinterDescription, TellsAFileThatCannotBeReadFromOneThatIsNoPpd) {
  EXPECT_EQ(failureOf(QStringLiteral("/nowhere/p.ppd")).kind, FailureKind::Io);
  EXPECT_EQ(failureOf(QStringLiteral("/")).kind, FailureKind::Io);
  EXPECT_EQ(failureOf(QStringLiteral("/dev/null")).kind, FailureKind::Invalid);
  EXPECT_EQ(failureOf(QString()).kind, FailureKind::Io);
}

TEST(PrinterDescription, NamesTheLineThatIsWrong) {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("broken.ppd"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("*PPD-Adobe: \"4.3\"\n*OpenGroup: A\n*OpenGroup: B\n");
  file.close();
  const Failure failure = failureOf(path);
  EXPECT_EQ(failure.kind, FailureKind::Invalid);
  EXPECT_EQ(failure.what, path + ":3");
}

}  // namespace
}  // namespace orvek::test
