// SPDX-License-Identifier: Apache-2.0
// Jobs that are cancelled.

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QThread>
#include <csignal>

#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"

namespace orvek::test {
namespace {

constexpr int patience = 10000;

class Cancel : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  }

  void start(const QString &options, const QString &file) {
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("PPD"), kit.ppd());
    environment.insert(QStringLiteral("TMPDIR"), kit.path(QString()));
    process.setProcessEnvironment(environment);
    QStringList arguments{QStringLiteral("1"), QStringLiteral("me"), QStringLiteral("title"),
                          QStringLiteral("1"), options};
    if (!file.isEmpty()) arguments << file;
    process.start(kit.filter(), arguments);
    ASSERT_TRUE(process.waitForStarted());
  }

  /// Without those that Ghostscript leaves behind by itself.
  QStringList files() const {
    QStringList all = QDir(kit.path(QString())).entryList(QDir::Files);
    all.removeIf([](const QString &name) { return name.startsWith(QStringLiteral("gs_")); });
    return all;
  }

  void expectEndsCleanly(const QStringList &before) {
    QElapsedTimer clock;
    clock.start();
    process.terminate();
    ASSERT_TRUE(process.waitForFinished(patience));
    EXPECT_LT(clock.elapsed(), patience / 2);
    EXPECT_NE(process.exitCode(), 0);
    EXPECT_EQ(files(), before);
  }

  DriverKit kit;
  QProcess process;
};

TEST_F(Cancel, EndsADriverThatWaitsForItsDocument) {
  const QStringList before = files();
  start(QStringLiteral("OVKEnableBooklet"), QString());
  while (files() == before) QThread::msleep(5);
  expectEndsCleanly(before);
}

TEST_F(Cancel, EndsTheFilterThatPrints) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(2000));
  const QStringList before = files();
  start(QStringLiteral("OVKEnableBooklet"), file);
  process.setReadChannel(QProcess::StandardError);
  QByteArray said;
  while (!said.contains("Started filter gs")) {
    ASSERT_TRUE(process.waitForReadyRead(patience)) << said.toStdString();
    said += process.readAllStandardError();
  }
  expectEndsCleanly(before);
}

}  // namespace
}  // namespace orvek::test
