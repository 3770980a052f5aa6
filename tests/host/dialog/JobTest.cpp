// SPDX-License-Identifier: Apache-2.0
// A job's way through the window: warned of, stopped, and tried again.

#include <QMessageBox>
#include <QTimer>

#include "host/jobs/FilterChain.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class WindowJob : public DialogTest {
 protected:
  void SetUp() override {
    if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) {
      GTEST_SKIP() << "the filter tool of CUPS is not installed";
    }
  }

  void printAndWait() {
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    click("printButton");
    ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  }

  // Answers the question that comes up with this button, and keeps its words.
  void answer(QMessageBox::ButtonRole role) {
    QTimer::singleShot(50, qApp, [this, role] {
      auto *question = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
      ASSERT_NE(question, nullptr);
      asked = question->text();
      for (QAbstractButton *button : question->buttons()) {
        if (question->buttonRole(button) == role) return QTest::mouseClick(button, Qt::LeftButton);
      }
    });
  }

  void stapleUncollatedCopies() {
    JobSettings settings;
    settings.copies = 3;
    settings.collate = false;
    session->job().setSettings(settings);
    clickItem("staplingPopup", QStringLiteral("Two staples"));
  }

  QString asked;
};

TEST_F(WindowJob, AsksBeforeItStaplesCopiesThatAreNotCollated) {
  open();
  stapleUncollatedCopies();
  answer(QMessageBox::RejectRole);
  click("printButton");
  EXPECT_FALSE(asked.isEmpty());
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(QFile::exists(outputFile));
}

TEST_F(WindowJob, PrintsWhatWasWarnedOfWhereTheUserSaysSo) {
  open();
  stapleUncollatedCopies();
  answer(QMessageBox::AcceptRole);
  printAndWait();
  EXPECT_FALSE(asked.isEmpty());
  EXPECT_TRUE(printed().contains("*OVKStapling Dual"));
}

TEST_F(WindowJob, PrintsOddPagesWhereTheGeneralPageSaysSo) {
  open();
  find<QTabWidget>("pages")->setCurrentIndex(0);
  QCoreApplication::processEvents();
  clickItem("pageSet", QStringLiteral("Odd pages only"));
  EXPECT_EQ(summaryValue(QStringLiteral("Odd and even pages")), QStringLiteral("Odd pages only"));
  printAndWait();
  EXPECT_EQ(printed().count("%%Page: "), 4);
}

TEST_F(WindowJob, CanBeStoppedAndTriedAgain) {
  open();
  dialog->print();
  ASSERT_FALSE(find<QPushButton>("printButton")->isEnabled());
  click("cancelButton");
  ASSERT_TRUE(QTest::qWaitFor([&] { return notices().isVisible(); }, jobTimeout));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(QFile::exists(outputFile));
  printAndWait();
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_FALSE(printed().isEmpty());
}

}  // namespace
