// SPDX-License-Identifier: Apache-2.0
// The real program on an accessibility bus of the test's own.
#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>
#include <memory>

#include "tests/access/AccessBus.h"
#include "tests/support/EndsWithTest.h"

namespace orvek::test {

/// Runs orvek-print with a window and listens to it.
class AccessTest : public testing::Test {
 protected:
  /// Milliseconds.
  static constexpr int openingTime = 400;

  void SetUp() override {
    if (!AccessBus::obstacle().isEmpty()) GTEST_SKIP() << AccessBus::obstacle().toStdString();
    bus = std::make_unique<AccessBus>();
    ASSERT_TRUE(bus->start()) << bus->problem().toStdString();
  }

  void TearDown() override {
    if (program.state() != QProcess::NotRunning) {
      program.kill();
      program.waitForFinished();
    }
    bus.reset();
  }

  /// On a printer description of the project, or what else the arguments say.
  void run(const QStringList &arguments) {
    QProcessEnvironment environment = bus->environment();
    for (auto each = surroundings.begin(); each != surroundings.end(); ++each) {
      environment.insert(each.key(), each.value());
    }
    endWithTest(program);
    program.setProcessEnvironment(environment);
    program.setProcessChannelMode(QProcess::MergedChannels);
    program.start(QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print"),
                  QStringList{"--plugin", QStringLiteral(ORVEK_BUNDLE_DIR)} + arguments);
    ASSERT_TRUE(program.waitForStarted());
    const AccessNode print = bus->waitFor(QStringLiteral("push button"), QStringLiteral("Print"));
    ASSERT_FALSE(print.isNull()) << program.readAll().toStdString() << whatShows();
  }

  void runOnPpd(const QStringList &options = {}) {
    run(QStringList{"--ppd", QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"),
                    "--output", output} +
        options + QStringList{document});
  }

  std::string whatShows() const {
    QString all;
    for (const AccessNode &window : bus->windows()) all += bus->tree(window);
    return all.toStdString();
  }

  AccessNode find(const char *role, const char *name) const {
    return bus->waitFor(QLatin1String(role), QLatin1String(name));
  }

  /// Opens the pop-up, steps through its list with the key, and takes what is there then.
  void step(const char *popUp, const char *key) const {
    const AccessNode node = find("combo box", popUp);
    ASSERT_FALSE(node.isNull()) << popUp << '\n' << whatShows();
    const QString before = bus->name(node);
    ASSERT_TRUE(bus->act(node, QStringLiteral("ShowMenu"))) << popUp;
    // It takes the keyboard when it shows, which nothing tells.
    QTest::qWait(openingTime);
    bus->press(QLatin1String(key));
    QTest::qWait(openingTime);
    bus->press(QStringLiteral("Return"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return bus->name(node) != before; }))
        << popUp << " is still " << before.toStdString();
  }

  void press(const char *role, const char *name) const {
    const AccessNode node = find(role, name);
    ASSERT_FALSE(node.isNull()) << name << '\n' << whatShows();
    const bool acted =
        bus->act(node, QStringLiteral("Press")) || bus->act(node, QStringLiteral("Toggle"));
    ASSERT_TRUE(acted) << name;
  }

  std::unique_ptr<AccessBus> bus;
  QProcess program;
  QMap<QString, QString> surroundings;
  QTemporaryDir folder;
  QString output = folder.filePath(QStringLiteral("out.ps"));
  QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
};

}  // namespace orvek::test
