// SPDX-License-Identifier: Apache-2.0
// Booklets out of the window, looked at: into a file, and on print servers that can't make them.

#include <QMessageBox>
#include <QTimer>

#include "driver/StandardPPD.h"
#include "host/jobs/FilterChain.h"
#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

const QString queueName = QStringLiteral("office");

std::vector<SeenSide> bookletOf(std::size_t pages) {
  constexpr imposition::Size a4{595, 842};
  const std::vector<imposition::Size> sizes(pages, a4);
  return expectedSides(imposition::imposeBooklet(sizes, a4, {}), a4);
}

class WindowBooklet : public DialogTest {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
    files = {kit.write(QStringLiteral("in.pdf"), markedDocument(8))};
  }

  void printAndWait() {
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    click("printButton");
    ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
    EXPECT_EQ(dialog->result(), QDialog::Accepted);
  }

  DriverKit kit;
};

TEST_F(WindowBooklet, ComesOutOfAFileAsItsSheets) {
  open();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  click("bookletChckBox");
  printAndWait();
  expectSeen(look(outputFile.toStdString()), bookletOf(8));
  EXPECT_EQ(printed().count("%%BeginFeature: *Duplex DuplexTumble"), 1);
}

/// The window over a queue of a server that lacks the driver.
class WindowSheets : public WindowBooklet {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    WindowBooklet::SetUp();
    if (IsSkipped()) return;
    PrivateCupsSetup setup;
    setup.hasDriver = false;
    server = std::make_unique<PrivateCups>(setup);
    prepare = [](DialogSetup &dialogSetup) { dialogSetup.destination = queueName; };
  }

  void addQueue(const QString &ppd) {
    const auto made = server->addQueue(queueName, ppd, server->keepingBackend(queueName));
    ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
  }

  void addOldQueue() {
    const auto own = contentsOf(orvekPPD(QStringLiteral("6180"))).toStdString();
    addQueue(kit.write(QStringLiteral("old.ppd"), driver::withoutFilterLines(own)));
  }

  static void accept(QMessageBox *question) {
    for (QAbstractButton *button : question->buttons()) {
      if (question->buttonRole(button) == QMessageBox::AcceptRole) button->click();
    }
  }

  static void escape(QMessageBox *question) { QTest::keyClick(question, Qt::Key_Escape); }

  /// Clicks on Print and answers the question.
  void printAndAnswer(void (*answer)(QMessageBox *)) {
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, &waiting, [&] {
      auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      if (question == nullptr) return;
      waiting.stop();
      asked = question->text();
      offered = question->informativeText();
      for (const QAbstractButton *button : question->buttons()) buttons << button->text();
      answer(question);
    });
    waiting.start(10);
    click("printButton");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !waiting.isActive(); }, jobTimeout));
  }

  void expectPrinted(int sides) {
    ASSERT_TRUE(dialog->outcome());
    EXPECT_EQ(server->waitForJob(dialog->outcome()->jobId), QStringLiteral("completed"));
    const auto seen = look(server->printedBy(queueName).toStdString());
    EXPECT_EQ(seen.size(), static_cast<std::size_t>(sides));
    if (sides < 8) expectSeen(seen, bookletOf(8));
  }

  std::unique_ptr<PrivateCups> server;
  QString asked;
  QString offered;
  QStringList buttons;
};

TEST_F(WindowSheets, AreOfferedWhereTheServersDriverMakesNoBooklets) {
  addOldQueue();
  open();
  click("bookletChckBox");
  printAndAnswer(accept);
  EXPECT_EQ(asked, QStringLiteral("office: the server's driver can't make booklets."));
  EXPECT_TRUE(buttons.contains(QStringLiteral("&Impose here and print")));
  ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->outcome().has_value(); }, jobTimeout));
  expectPrinted(4);
}

TEST_F(WindowSheets, AreOfferedForEveryJobWhereTheServerStopsThemAll) {
  addQueue(orvekPPD(QStringLiteral("6180")));
  open();
  printAndAnswer(accept);
  EXPECT_TRUE(asked.startsWith(QStringLiteral("office: the server lacks the printer's driver")));
  ASSERT_TRUE(QTest::qWaitFor([&] { return dialog->outcome().has_value(); }, jobTimeout));
  expectPrinted(8);
}

TEST_F(WindowSheets, AreOfferedWithAWordOnBannersThatAreLeftOut) {
  const QString leftOut = QStringLiteral("Banner pages would be left out.");
  addQueue(orvekPPD(QStringLiteral("6180")));
  open();
  printAndAnswer(escape);
  EXPECT_FALSE(offered.isEmpty());
  EXPECT_FALSE(offered.contains(leftOut));
  const auto saved = server->run(QStringLiteral("lpoptions"),
                                 {QStringLiteral("-p"), queueName, QStringLiteral("-o"),
                                  QStringLiteral("job-sheets=standard")});
  ASSERT_EQ(saved.exitStatus, 0) << saved.errors.toStdString();
  printAndAnswer(escape);
  EXPECT_TRUE(offered.contains(leftOut)) << offered.toStdString();
}

TEST_F(WindowSheets, AreNotMadeWhereTheUserEscapes) {
  addOldQueue();
  open();
  click("bookletChckBox");
  printAndAnswer(escape);
  EXPECT_FALSE(asked.isEmpty());
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_TRUE(find<QWidget>("printButton")->isEnabled());
  EXPECT_FALSE(dialog->outcome());
  EXPECT_TRUE(server->jobAttributes(1).isEmpty());
}

TEST_F(WindowSheets, AreNotSpokenOfWhereTheJobIsNoBooklet) {
  addOldQueue();
  open();
  printAndWait();
  expectPrinted(8);
}

}  // namespace
}  // namespace orvek::test
