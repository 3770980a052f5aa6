// SPDX-License-Identifier: Apache-2.0
// Picks by mouse and keyboard, from the window to the printed bytes.

#include <QCheckBox>
#include <QLineEdit>
#include <QTabWidget>

#include "host/jobs/FilterChain.h"
#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Pick : public DialogTest {
 protected:
  void SetUp() override {
    if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) {
      GTEST_SKIP() << "the filter tool of CUPS is not installed";
    }
  }

  void waitForTheJob() {
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    if (dialog->isVisible()) {
      ASSERT_TRUE(finished.wait(jobTimeout));
    }
    ASSERT_EQ(dialog->result(), QDialog::Accepted)
        << notices().sentences().join(QLatin1Char('\n')).toStdString();
  }
};

TEST_F(Pick, OfAFoldWithTheMouseArrivesAsFeatureCodeInThePrintedFile) {
  open();
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("Saddle"));
  EXPECT_EQ(summaryValue(QStringLiteral("Folding")), QStringLiteral("Saddle fold"));
  click("printButton");
  waitForTheJob();
  EXPECT_TRUE(printed().contains("%%BeginFeature: *OVKFolding Saddle"));
}

TEST_F(Pick, OfAStapleWithTheKeyboardArrivesAsFeatureCodeInThePrintedFile) {
  open();
  auto *menu = find<QComboBox>("staplingPopup");
  menu->setFocus();
  QTest::keyClick(menu, Qt::Key_Down);
  QCoreApplication::processEvents();
  const QString picked = session->marks().marked(QStringLiteral("OVKStapling"));
  ASSERT_NE(picked, QStringLiteral("None"));
  QTest::keyClick(menu, Qt::Key_Return);
  waitForTheJob();
  const QByteArray feature = "%%BeginFeature: *OVKStapling " + picked.toLatin1();
  EXPECT_TRUE(printed().contains(feature));
}

TEST_F(Pick, OfSeveralPagesPerSheetTakesABookletOffAndSaysSo) {
  open();
  click("bookletChckBox");
  ASSERT_TRUE(find<QCheckBox>("bookletChckBox")->isChecked());
  auto *pages = find<QTabWidget>("pages");
  pages->setCurrentIndex(0);
  auto *layout = find<QComboBox>("pagesPerSheet");
  ASSERT_NE(layout, nullptr);
  layout->setFocus();
  QTest::keyClicks(layout, QStringLiteral("4"));
  EXPECT_EQ(session->job().pagesPerSheet(), 4);
  EXPECT_EQ(session->ticket().value(QStringLiteral("OVKEnableBooklet")).toString(),
            QStringLiteral("False"));
  EXPECT_EQ(
      notices().sentences(),
      QStringList{"Booklet was set to Off: it can't be combined with several pages per sheet"});
  EXPECT_TRUE(notices().isVisible());
  EXPECT_FALSE(find<QCheckBox>("bookletChckBox")->isChecked());
  EXPECT_FALSE(find<QCheckBox>("bookletChckBox")->isEnabled());
  QTest::keyClick(layout, Qt::Key_Home);
  EXPECT_TRUE(find<QCheckBox>("bookletChckBox")->isEnabled());
}

TEST_F(Pick, OfAGutterByTypingReachesTheTicket) {
  open();
  click("bookletChckBox");
  ASSERT_TRUE(find<QCheckBox>("bookletChckBox")->isChecked());
  auto *field = find<QLineEdit>("gutterTxtBox");
  field->setFocus();
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral("36"));
  QCoreApplication::processEvents();
  EXPECT_EQ(session->ticket().value(QStringLiteral("OVKGutter")).toString(), QStringLiteral("36"));
  EXPECT_EQ(session->ticket().value(QStringLiteral("OVKEnableBooklet")).toString(),
            QStringLiteral("True"));
}

TEST_F(Pick, ThatConstraintsAnswerIsSaidInWordsAndCanBeTakenBack) {
  open();
  clickItem("punchPopup", find<QComboBox>("punchPopup")->itemText(1));
  const QString punch = session->marks().marked(QStringLiteral("OVKPunching"));
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  ASSERT_FALSE(notices().sentences().isEmpty());
  EXPECT_TRUE(notices().isVisible());
  EXPECT_TRUE(notices().sentences().first().contains(QStringLiteral("Saddle fold")));
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKPunching")), QStringLiteral("None"));
  click("undoButton");
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKPunching")), punch);
  EXPECT_EQ(session->marks().marked(QStringLiteral("OVKFolding")), QStringLiteral("None"));
  EXPECT_EQ(find<QComboBox>("foldingPopup")->currentIndex(), 0);
  EXPECT_FALSE(notices().isVisible());
}

}  // namespace
