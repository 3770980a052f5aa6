// SPDX-License-Identifier: Apache-2.0
// Choosing among the queues of a private print server, and what becomes of what was entered.

#include <QElapsedTimer>
#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>

#include "platform/system/Log.h"
#include "tests/host/dialog/PrinterKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class PrinterChoice : public QueuesTest {};

TEST_F(PrinterChoice, ShowsStateAndLocationOfAQueue) {
  open();
  list();
  pickPrinter(QStringLiteral("big"));
  EXPECT_TRUE(detail().contains(QStringLiteral("Second floor"))) << detail().toStdString();
  EXPECT_TRUE(detail().contains(QStringLiteral("Idle"))) << detail().toStdString();
}

TEST_F(PrinterChoice, SendsPicksToTheQueueAndTellsTheJobsNumber) {
  open();
  list();
  pickPrinter(QStringLiteral("big"));
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

TEST_F(PrinterChoice, HearsTheLogAfterASecondChangeToo) {
  open();
  list();
  pickPrinter(QStringLiteral("small"));
  pickPrinter(QStringLiteral("big"));
  logLine(QStringLiteral("still heard"));
  EXPECT_EQ(dialog->session().record().log().value(0),
            QStringLiteral("initWithCallback: finishing\n"));
  EXPECT_EQ(dialog->session().record().log().last(), QStringLiteral("still heard"));
}

TEST_F(PrinterChoice, TakesAlongWhatFitsAndSaysWhatDoesNot) {
  open();
  list();
  JobSettings settings;
  settings.copies = 3;
  session->job().setSettings(settings);
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  pickPrinter(QStringLiteral("small"));
  ASSERT_NE(&dialog->session(), session.get());
  EXPECT_EQ(dialog->session().job().settings().copies, 3);
  EXPECT_EQ(dialog->session().marks().marked(QStringLiteral("OVKFolding")), QString());
  EXPECT_TRUE(notices().isVisible());
  EXPECT_GE(notices().sentences().size(), 2);
}

TEST_F(PrinterChoice, LeavesABookletBehindWhereThePrinterMakesNone) {
  open();
  list();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  click("bookletChckBox");
  pickPrinter(QStringLiteral("small"));
  const auto options = dialog->session().job().options();
  for (const char *key : {"OVKEnableBooklet", "OVKGutter", "OVKCreep", "OVKTargetPaperSize"}) {
    EXPECT_FALSE(options.contains(QLatin1String(key))) << key;
  }
  const QStringList said = notices().sentences();
  EXPECT_TRUE(said.contains(QStringLiteral("this printer makes no booklets")));
  EXPECT_TRUE(said.contains(QStringLiteral("this printer has no option \"Folding\"")))
      << said.join(u'\n').toStdString();
}

TEST_F(PrinterChoice, KeepsThePaperWhateverTheOtherPrinterUses) {
  server->addQueue(QStringLiteral("american"), printers + "Orvek-4150.ppd");
  open();
  list();
  pickPrinter(QStringLiteral("american"));
  EXPECT_EQ(dialog->session().marks().marked(QStringLiteral("PageSize")), QStringLiteral("A4"));
  EXPECT_EQ(dialog->session().job().options().value(QStringLiteral("PageSize")),
            QStringLiteral("A4"));
  EXPECT_FALSE(notices().isVisible()) << notices().sentences().join(u'\n').toStdString();
}

TEST_F(PrinterChoice, KeepsEverythingWhenTheServerHasStopped) {
  open();
  list();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  server->stop();
  pickPrinter(QStringLiteral("small"));
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
  ASSERT_NE(openPrinters(), nullptr);
  EXPECT_TRUE(find<QLabel>("printerNote")->isVisible());
  EXPECT_TRUE(find<QLabel>("printerNote")->text().startsWith(QStringLiteral("No printers")));
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
}

TEST_F(PrinterChoice, WithoutAPrinterSaysWhatToDo) {
  session = PrintSession::begin({}).take();
  showWindow();
  EXPECT_FALSE(find<QPushButton>("printButton")->isEnabled());
  EXPECT_TRUE(detail().contains(QStringLiteral("printer description"))) << detail().toStdString();
  list();
  pickPrinter(QStringLiteral("big"));
  EXPECT_TRUE(find<QPushButton>("printButton")->isEnabled());
  EXPECT_NE(find<QComboBox>("foldingPopup"), nullptr);
}

TEST_F(PrinterChoice, AsksInTheBackgroundAndSaysSo) {
  open();
  list();
  server->pause();
  clickPrinter(QStringLiteral("small"));
  EXPECT_EQ(detail(), QStringLiteral("Asking small…"));
  EXPECT_EQ(shownPrinter(), QStringLiteral("small"));
  EXPECT_FALSE(canPrint());
  dialog->print();
  EXPECT_FALSE(find<QWidget>("pages")->isHidden() || !find<QWidget>("pages")->isEnabled());
  clickItem("punchPopup", QStringLiteral("2 holes (metric)"));
  EXPECT_NE(session->marks().marked(QStringLiteral("OVKPunching")), QStringLiteral("None"));
  EXPECT_TRUE(isAsking());
  server->resume();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isAsking(); }, jobTimeout));
  EXPECT_NE(&dialog->session(), session.get());
  EXPECT_TRUE(canPrint());
}

TEST_F(PrinterChoice, GoesToTheLastPickOnly) {
  open();
  list();
  server->pause();
  clickPrinter(QStringLiteral("small"));
  clickPrinter(QStringLiteral("big"));
  EXPECT_EQ(detail(), QStringLiteral("Asking big…"));
  server->resume();
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isAsking(); }, jobTimeout));
  EXPECT_EQ(shownPrinter(), QStringLiteral("big"));
  dialog.reset();  // every answer is in
  EXPECT_EQ(begun, QStringList(QStringLiteral("big")));
}

TEST_F(PrinterChoice, ComesBackToTheFormerPrinterWhileAnotherIsAsked) {
  open();
  list();
  pickPrinter(QStringLiteral("big"));
  const PrintSession *before = &dialog->session();
  silentQueue = QStringLiteral("small");
  clickPrinter(QStringLiteral("small"));
  ASSERT_TRUE(isAsking());
  clickPrinter(QStringLiteral("big"));
  EXPECT_FALSE(isAsking());
  EXPECT_EQ(&dialog->session(), before);
  EXPECT_TRUE(canPrint());
}

TEST_F(PrinterChoice, StaysWithWhatWasEnteredWhenAServerNeverAnswers) {
  patience = std::chrono::seconds(1);
  open();
  list();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  silentQueue = QStringLiteral("small");
  pickPrinter(QStringLiteral("small"));
  EXPECT_EQ(&dialog->session(), session.get());
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  EXPECT_TRUE(shownPrinter().startsWith(QStringLiteral("File"))) << shownPrinter().toStdString();
  ASSERT_TRUE(notices().isVisible());
  EXPECT_TRUE(notices().sentences().first().contains(QStringLiteral("stopped answering")))
      << notices().sentences().first().toStdString();
  EXPECT_TRUE(canPrint());
}

TEST_F(PrinterChoice, GoesOnWhereAServerAnswersAtAnotherTry) {
  patience = std::chrono::seconds(1);
  open();
  list();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  silentQueue = QStringLiteral("small");
  pickPrinter(QStringLiteral("small"));
  ASSERT_TRUE(notices().isVisible());
  silentQueue = QString();
  patience = serverPatience();
  click("noticeAgain");
  EXPECT_TRUE(isAsking());
  EXPECT_EQ(shownPrinter(), QStringLiteral("small"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isAsking(); }, jobTimeout));
  EXPECT_EQ(begun, QStringList(QStringLiteral("small")));
  EXPECT_TRUE(canPrint());
  EXPECT_FALSE(notices().sentences().join(u'\n').contains(QStringLiteral("stopped answering")));
}

TEST_F(PrinterChoice, SendsAJobAtAnotherTryThatCouldNotBeSent) {
  open();
  list();
  pickPrinter(QStringLiteral("big"));
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  server->stop();
  click("printButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notices().isVisible(); }, jobTimeout));
  EXPECT_FALSE(dialog->outcome());
  server->start();
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("noticeAgain");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  ASSERT_TRUE(dialog->outcome());
  EXPECT_EQ(server->waitForJob(dialog->outcome()->jobId), QStringLiteral("completed"));
  EXPECT_EQ(server->jobAttributes(dialog->outcome()->jobId).value(QStringLiteral("OVKFolding")),
            QStringLiteral("Saddle"));
}

TEST_F(PrinterChoice, OffersNoOtherTryForAFileThatIsNoDescription) {
  open();
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, qApp, [&answer] {
    auto *question = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (question == nullptr) return;  // not yet
    answer.stop();
    question->findChild<QLineEdit *>()->setText(QStringLiteral(ORVEK_SOURCE_DIR "/README.md"));
    QTest::keyClick(question->findChild<QLineEdit *>(), Qt::Key_Return);
  });
  answer.start(50);
  click("openDescription");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notices().isVisible(); }, jobTimeout));
  EXPECT_FALSE(find<QPushButton>("noticeAgain")->isVisible());
}

TEST_F(PrinterChoice, MayBeClosedWhileAPrinterIsAsked) {
  constexpr int soon = 3000;  // milliseconds; far less than a server's patience
  open();
  list();
  silentQueue = QStringLiteral("small");
  clickPrinter(QStringLiteral("small"));
  ASSERT_TRUE(isAsking());
  QElapsedTimer clock;
  clock.start();
  click("cancelButton");
  EXPECT_FALSE(dialog->isVisible());
  dialog.reset();
  EXPECT_LT(clock.elapsed(), soon);
  EXPECT_TRUE(begun.isEmpty());
}

TEST_F(PrinterChoice, AndAFoldedBookletWorkByKeysAlone) {
  open();
  list();
  tabTo("printerMenu");
  press(Qt::Key_B);
  press(Qt::Key_Return);
  ASSERT_TRUE(
      QTest::qWaitFor([&] { return dialog->session().origin().destination == "big"; }, jobTimeout));
  tabTo("foldingPopup");
  press(Qt::Key_End);
  tabTo("bookletChckBox");
  press(Qt::Key_Space);
  const auto options = dialog->session().job().options();
  EXPECT_EQ(options.value(QStringLiteral("OVKFolding")), "Saddle");
  EXPECT_EQ(options.value(QStringLiteral("OVKEnableBooklet")), "True");
  tabTo("printButton");
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  press(Qt::Key_Space);
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  ASSERT_TRUE(dialog->outcome());
  EXPECT_GT(dialog->outcome()->jobId, 0);
  EXPECT_EQ(dialog->request().queue, "big");
}

}  // namespace
