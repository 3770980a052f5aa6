// SPDX-License-Identifier: Apache-2.0
// Choosing among the queues of a private print server, and what becomes of what was entered.

#include <QLabel>
#include <QStandardItemModel>

#include "host/printers/QueuePPD.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/support/PrivateCups.h"

using namespace orvek;
using orvek::testing::PrivateCups;

namespace {

const QString printers = QStringLiteral(ORVEK_SOURCE_DIR "/printers/");

class PrinterChoice : public DialogTest {
 protected:
  void SetUp() override {
    if (const QString obstacle = PrivateCups::obstacle(); !obstacle.isEmpty())
      GTEST_SKIP() << obstacle.toStdString();
    server = std::make_unique<PrivateCups>();
    server->addQueue(QStringLiteral("big"), printers + "Orvek-6180.ppd",
                     {QStringLiteral("-L"), QStringLiteral("Second floor")});
    server->addQueue(QStringLiteral("small"), printers + "Orvek-2120.ppd");
    prepare = [this](DialogSetup &setup) {
      setup.server.server = server->socket();
      setup.openPrinter = [this](const QString &queue) { return openQueue(queue); };
      setup.presets = std::make_shared<PresetStore>(folder.filePath(QStringLiteral("presets")));
    };
  }

  Result<std::unique_ptr<PrintSession>> openQueue(const QString &queue) {
    ServerAccess access;
    access.server = server->socket();
    Result<QString> path = QueuePPD(folder.filePath(QStringLiteral("ppd"))).fetch(access, queue);
    if (!path) return path.failure();
    return openSession(path.value());
  }

  void list() {
    auto *chooser = dialog->findChild<PrinterChooser *>();
    QSignalSpy listed(chooser, &PrinterChooser::listed);
    chooser->refresh();
    ASSERT_TRUE(listed.count() > 0 || listed.wait(jobTimeout));
  }

  QString detail() const { return find<QLabel>("printerDetail")->accessibleName(); }

  std::unique_ptr<PrivateCups> server;
};

TEST_F(PrinterChoice, ShowsStateAndLocationOfAQueue) {
  open();
  list();
  clickItem("printerMenu", QStringLiteral("big"));
  EXPECT_TRUE(detail().contains(QStringLiteral("Second floor"))) << detail().toStdString();
  EXPECT_TRUE(detail().contains(QStringLiteral("Idle"))) << detail().toStdString();
}

TEST_F(PrinterChoice, SendsPicksToTheQueueAndTellsTheJobsNumber) {
  open();
  list();
  clickItem("printerMenu", QStringLiteral("big"));
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  ASSERT_TRUE(dialog->outcome());
  ASSERT_GT(dialog->outcome()->jobId, 0);
  EXPECT_EQ(server->waitForJob(dialog->outcome()->jobId), QStringLiteral("completed"));
  QFile bytes(server->printedBy(QStringLiteral("big")));
  ASSERT_TRUE(bytes.open(QIODevice::ReadOnly));
  EXPECT_TRUE(bytes.readAll().contains("%%BeginFeature: *OVKFolding Saddle"));
}

TEST_F(PrinterChoice, TakesAlongWhatFitsAndSaysWhatDoesNot) {
  open();
  list();
  JobSettings settings;
  settings.copies = 3;
  session->setJobSettings(settings);
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  clickItem("printerMenu", QStringLiteral("small"));
  ASSERT_NE(&dialog->session(), session.get());
  EXPECT_EQ(dialog->session().jobSettings().copies, 3);
  EXPECT_EQ(dialog->session().marks().marked(QStringLiteral("OVKFolding")), QString());
  EXPECT_TRUE(notices().isVisible());
  EXPECT_GE(notices().sentences().size(), 2);
}

TEST_F(PrinterChoice, KeepsEverythingWhenTheServerHasStopped) {
  open();
  list();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  server->stop();
  clickItem("printerMenu", QStringLiteral("small"));
  EXPECT_EQ(&dialog->session(), session.get());
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  EXPECT_TRUE(notices().isVisible());
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_TRUE(printed().contains("%%BeginFeature: *OVKFolding Saddle"));
}

TEST_F(PrinterChoice, SaysWhyThereAreNoPrinters) {
  open();
  server->stop();
  list();
  auto *menu = find<QComboBox>("printerMenu");
  const int last = menu->count() - 2;  // the last one opens a printer description
  EXPECT_TRUE(menu->itemText(last).startsWith(QStringLiteral("No printers")));
  EXPECT_FALSE(qobject_cast<QStandardItemModel *>(menu->model())->item(last)->isEnabled());
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
}

TEST_F(PrinterChoice, WithoutAPrinterSaysWhatToDo) {
  session = PrintSession::begin({}).take();
  showWindow();
  EXPECT_FALSE(find<QPushButton>("printButton")->isEnabled());
  EXPECT_TRUE(detail().contains(QStringLiteral("printer description"))) << detail().toStdString();
  list();
  clickItem("printerMenu", QStringLiteral("big"));
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
  EXPECT_NE(find<QComboBox>("foldingPopup"), nullptr);
}

}  // namespace
