// SPDX-License-Identifier: Apache-2.0
// Jobs whose document or output would get lost: the driver says so.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <array>

#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

constexpr int patience = 60000;
const QString kSheets = QStringLiteral("\"$D\" --sheets 1 u t 1 '' ");
const QString kJob = QStringLiteral("\"$D\" 1 u t 1 '' ");
const QString kBooklet = QStringLiteral("\"$D\" 1 u t 1 OVKEnableBooklet ");
const QString kError = QStringLiteral("ERROR: ");

class LostOutput : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    file = kit.write(QStringLiteral("in.pdf"), markedDocument(200));
    script = kit.write(QStringLiteral("in.ps"), postScriptDocument(3).toStdString());
    environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("D"), kit.filter());
    environment.insert(QStringLiteral("PDF"), file);
    environment.insert(QStringLiteral("PS"), script);
    environment.insert(QStringLiteral("TMPDIR"), kit.path(QString()));
    environment.insert(QStringLiteral("CUPS_SERVERBIN"), QStringLiteral("/usr/lib/cups"));
  }

  /// Runs commands of a shell; $D is the driver, $PDF and $PS are documents.
  Printed run(const QString &commands) {
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral("/bin/sh"), {QStringLiteral("-c"), commands});
    return ended(process);
  }

  static Printed ended(QProcess &process) {
    Printed printed;
    EXPECT_TRUE(process.waitForFinished(patience));
    printed.exitStatus = process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    printed.output = process.readAllStandardOutput();
    printed.messages = QString::fromUtf8(process.readAllStandardError()).split(u'\n');
    return printed;
  }

  void expectRefused(const QString &commands, const QString &about) {
    const Printed printed = run(commands);
    EXPECT_EQ(printed.exitStatus, 1) << commands.toStdString();
    const QStringList said = printed.lines(kError);
    ASSERT_EQ(said.size(), 1) << commands.toStdString()
                              << printed.messages.join(u'|').toStdString();
    EXPECT_TRUE(said[0].contains(about)) << said[0].toStdString();
    EXPECT_TRUE(printed.output.isEmpty()) << commands.toStdString();
  }

  DriverKit kit;
  QString file;
  QString script;
  QProcessEnvironment environment;
};

TEST_F(LostOutput, IsNoticedWhereThereIsNoRoomForAllOfTheSheets) {
  // Files may grow to so many blocks of half a kilobyte; a write beyond fails as on a full disk.
  for (const int blocks : {1, 20, 80, 120}) {
    expectRefused(QStringLiteral("trap '' XFSZ; ulimit -f %1; ").arg(blocks) + kSheets + "\"$PDF\"",
                  QStringLiteral("its sheets can't be written"));
  }
}

}  // namespace
}  // namespace orvek::test
