// SPDX-License-Identifier: Apache-2.0
// Whole sessions by the accessibility bus alone: what is there is found by its names, worked by its
// actions and by keys sent over the bus, and what happens is heard.

#include "tests/access/AccessKit.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

class SessionByTheBus : public AccessTest {
 protected:
  bool waitForEnd() { return program.waitForFinished(30000) && program.exitCode() == 0; }

  void savePreset(const QString &name, const QString &mark) const {
    QProcess saver;
    saver.setProcessEnvironment(bus->environment());
    saver.start(QStringLiteral(ORVEK_BINARY_DIR "/bin/orvek-print"),
                {"--headless", "--plugin", QStringLiteral(ORVEK_BUNDLE_DIR), "--ppd",
                 QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"), "--mark", mark,
                 "--save-preset", name});
    ASSERT_TRUE(saver.waitForFinished());
    ASSERT_EQ(saver.exitCode(), 0) << saver.readAllStandardError().toStdString();
  }

  QByteArray printed() const {
    QFile file(output);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
};

TEST_F(SessionByTheBus, LoadsAPresetResolvesAConflictAndPrintsIntoAFile) {
  savePreset(QStringLiteral("Folded"), QStringLiteral("OVKFolding=Saddle"));
  runOnPpd();
  step("Preset", "Down");
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return bus->name(find("combo box", "Folding")) == "Saddle fold"; }));
  step("Stapling", "Down");
  ASSERT_TRUE(bus->waitForWords("can't be combined with")) << whatShows();
  press("push button", "Undo");
  ASSERT_TRUE(QTest::qWaitFor([&] { return bus->find("notification", {}).isNull(); }));
  press("check box", "Print as booklet");
  press("push button", "Print");
  ASSERT_TRUE(waitForEnd()) << program.readAll().toStdString();
  EXPECT_TRUE(bus->waitForWords("Printed into out.ps"))
      << bus->announced().join(u'\n').toStdString();
  EXPECT_TRUE(printed().contains("%%BeginFeature: *OVKFolding Saddle"));
}

TEST_F(SessionByTheBus, ChoosesAPrinterFoldsABookletAndPrints) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  PrivateCups server;
  const QString printers = QStringLiteral(ORVEK_SOURCE_DIR "/printers/");
  server.addQueue(QStringLiteral("first"), printers + "Orvek-2120.ppd");
  server.addQueue(QStringLiteral("second"), printers + "Orvek-6180.ppd");
  surroundings.insert(QStringLiteral("CUPS_SERVER"), server.socket());
  run({QStringLiteral("-d"), QStringLiteral("first"), document});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !find("combo box", "Printer").isNull(); }));
  step("Printer", "Down");
  ASSERT_FALSE(find("combo box", "Folding").isNull()) << whatShows();
  step("Folding", "End");
  press("check box", "Print as booklet");
  press("push button", "Print");
  ASSERT_TRUE(waitForEnd()) << program.readAll().toStdString();
  EXPECT_TRUE(bus->waitForWords("Sent to second, job"))
      << bus->announced().join(u'\n').toStdString();
}

TEST_F(SessionByTheBus, FindsPrintersInTheListByNameStateAndPlace) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  PrivateCups server;
  const QString printers = QStringLiteral(ORVEK_SOURCE_DIR "/printers/");
  server.addQueue(QStringLiteral("first"), printers + "Orvek-2120.ppd");
  server.addQueue(QStringLiteral("second"), printers + "Orvek-6180.ppd",
                  {QStringLiteral("-D"), QStringLiteral("Copier"), QStringLiteral("-L"),
                   QStringLiteral("Basement")});
  surroundings.insert(QStringLiteral("CUPS_SERVER"), server.socket());
  run({QStringLiteral("-d"), QStringLiteral("first"), document});
  const QString place = QStringLiteral("second, Copier, Idle · Basement");
  const AccessNode menu = find("combo box", "Printer");
  ASSERT_FALSE(menu.isNull()) << whatShows();
  ASSERT_TRUE(bus->act(menu, QStringLiteral("ShowMenu")));
  EXPECT_FALSE(find("text", "Search for name, description or location").isNull()) << whatShows();
  EXPECT_FALSE(bus->waitFor(QStringLiteral("list item"), place).isNull()) << whatShows();
  QTest::qWait(openingTime);
  bus->press(QStringLiteral("Down"));
  EXPECT_TRUE(bus->waitForWords("second, Copier, Idle"))
      << bus->announced().join(u'\n').toStdString();
}

}  // namespace
}  // namespace orvek::test
