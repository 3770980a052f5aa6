// SPDX-License-Identifier: Apache-2.0
// A job into a file that the window asks for: proposed, made by its suffix, shown.

#include <QDesktopServices>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTextBrowser>
#include <QTimer>

#include "host/dialog/SavePlace.h"
#include "tests/driver/DriverKit.h"
#include "tests/host/dialog/DialogKit.h"

namespace orvek::test {
namespace {

class WindowIntoFile : public DialogTest {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    const QString document = folder.filePath(QStringLiteral("Report.pdf"));
    ASSERT_TRUE(QFile::copy(files.first(), document));
    files = {document};
    outputFile = QString();
    open();
  }

  // Takes what the chooser proposes, or writes another name. A list of names that opens meanwhile
  // takes the first Return for itself.
  void choose(const QString &name = {}) {
    auto *answer = new QTimer(dialog.get());
    proposed = QString();
    QObject::connect(answer, &QTimer::timeout, answer, [this, name, answer] {
      auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
      if (chooser == nullptr) {
        if (!proposed.isNull()) answer->deleteLater();
        return;
      }
      auto *field = chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
      if (proposed.isNull()) proposed = write(field, *chooser, name);
      QTest::keyClick(field, Qt::Key_Return);
    });
    answer->start(50);
  }

  static QString write(QLineEdit *field, const QFileDialog &chooser, const QString &name) {
    QString proposal = chooser.directory().filePath(field->text());
    field->setFocus();
    if (name.isNull()) return proposal;
    field->selectAll();
    QTest::keyClicks(field, name);
    return proposal;
  }

  static QMessageBox *said() {
    auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
    return box != nullptr && box->objectName() == QLatin1String("printedInto") ? box : nullptr;
  }

  /// Prints, reads what is said at the end, and presses this button of it.
  void printAndAnswer(QMessageBox::ButtonRole role) {
    QTimer reader;
    QObject::connect(&reader, &QTimer::timeout, &reader, [this, role, &reader] {
      QMessageBox *box = said();
      if (box == nullptr) return;
      reader.stop();
      words = box->text();
      for (QAbstractButton *button : box->buttons()) {
        if (box->buttonRole(button) == role) return QTest::mouseClick(button, Qt::LeftButton);
      }
    });
    reader.start(50);
    QSignalSpy finished(dialog.get(), &QDialog::finished);
    click("printButton");
    ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  }

  QByteArray bytesOf(const QString &name) const {
    QFile file(folder.filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  QString proposed;
  QString words;
};

TEST_F(WindowIntoFile, IsProposedAPdfBesideTheDocumentAndMakesIt) {
  click("bookletChckBox");
  choose();
  printAndAnswer(QMessageBox::RejectRole);
  EXPECT_EQ(proposed, folder.filePath("Report-2.pdf"));
  EXPECT_EQ(words, "Printed into Report-2.pdf.");
  EXPECT_TRUE(bytesOf("Report-2.pdf").startsWith("%PDF-"));
  EXPECT_EQ(documentInfo(proposed).pages, 4);
}

TEST_F(WindowIntoFile, MakesWhatThePrinterTakesWhereTheSuffixSaysSo) {
  clickItem("foldingPopup", QStringLiteral("Saddle fold"));
  choose(QStringLiteral("Report.ps"));
  printAndAnswer(QMessageBox::RejectRole);
  EXPECT_TRUE(bytesOf("Report.ps").contains("%%BeginFeature: *OVKFolding Saddle"));
}

TEST_F(WindowIntoFile, JoinsTheSheetsOfSeveralDocuments) {
  files = {files.first(), QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf")};
  open();
  choose(QStringLiteral("both.pdf"));
  printAndAnswer(QMessageBox::RejectRole);
  EXPECT_EQ(documentInfo(folder.filePath("both.pdf")).pages, 16);
}

TEST_F(WindowIntoFile, ShowsTheFileInItsFolder) {
  QTextBrowser shown;
  QDesktopServices::setUrlHandler(QStringLiteral("file"), &shown, "setSource");
  choose(QStringLiteral("here.pdf"));
  printAndAnswer(QMessageBox::ActionRole);
  QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
  EXPECT_EQ(shown.source(), QUrl::fromLocalFile(folder.path()));
}

TEST_F(WindowIntoFile, SaysNothingWhereTheCommandLineNamedIt) {
  outputFile = folder.filePath("named.pdf");
  open();
  printAndAnswer(QMessageBox::RejectRole);
  EXPECT_TRUE(words.isNull());
  EXPECT_TRUE(bytesOf("named.pdf").contains("%!PS"));
}

TEST(PlaceOfAFile, IsAmongTheUsersDocumentsWhereNothingCanBeWrittenBesideTheDocument) {
  EXPECT_FALSE(proposedPlace({QStringLiteral("-")}).startsWith(QLatin1String("/dev")));
  EXPECT_TRUE(proposedPlace({}).endsWith(QLatin1String(".pdf")));
  EXPECT_TRUE(isPdfPlace("a.PDF"));
  EXPECT_FALSE(isPdfPlace("pdf"));
  EXPECT_FALSE(isPdfPlace("a.ps"));
}

}  // namespace
}  // namespace orvek::test
