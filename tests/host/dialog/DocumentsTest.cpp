// SPDX-License-Identifier: Apache-2.0
// Documents and page ranges that nothing can be printed of: said before Print, which waits.

#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>

#include "host/dialog/DocumentHeader.h"
#include "host/dialog/DocumentPassword.h"
#include "host/dialog/ElidedLabel.h"
#include "host/preview/JobPreview.h"
#include "tests/driver/DriverKit.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/support/OddDocuments.h"

namespace orvek::test {
namespace {

const QString sample = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
const QString password = QStringLiteral("Grüße 7");

class WindowOverDocuments : public DialogTest {
 protected:
  void openWith(const QStringList &documents) {
    files = documents;
    prepare = [documents](DialogSetup &setup) {
      setup.documentName = QFileInfo(documents.value(0)).fileName();
      setup.document = {};
      if (documents.size() == 1) setup.document.path = documents.first();
    };
    open();
    dialog->lookAround();
  }

  QString write(const QString &name, const QByteArray &content) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  QPushButton *printButton() const { return find<QPushButton>("printButton"); }
  QPushButton *remedy() const { return find<QPushButton>("documentAction"); }

  /// What stands beside Print; null where nothing does.
  QString obstacle() const {
    const auto *words = find<ElidedLabel>("jobWords");
    return words->isVisible() ? words->wholeText() : QString();
  }

  bool waitForObstacle(const QString &words) const {
    return QTest::qWaitFor([&] { return obstacle() == words; }, jobTimeout);
  }

  static DocumentPassword *question() {
    return qobject_cast<DocumentPassword *>(QApplication::activeModalWidget());
  }

  void answer(const QString &typed) {
    ASSERT_TRUE(QTest::qWaitFor([] { return question() != nullptr; }, jobTimeout));
    DocumentPassword *now = question();
    asked << now->findChild<QLabel *>(QStringLiteral("documentPasswordWords"))->text();
    auto *field = now->findChild<QLineEdit *>(QStringLiteral("documentPasswordField"));
    field->insert(typed);
    QTest::keyClick(now, typed.isEmpty() ? Qt::Key_Escape : Qt::Key_Return);
    ASSERT_TRUE(QTest::qWaitFor([&] { return question() != now; }, jobTimeout));
  }

  void typeRanges(const QString &text) {
    clickTab(QStringLiteral("General"));
    auto *field = find<QLineEdit>("pageRanges");
    ASSERT_NE(field, nullptr);
    field->setFocus();
    field->selectAll();
    QTest::keyClick(field, Qt::Key_Delete);
    QTest::keyClicks(field, text);
  }

  void clickTab(const QString &text) {
    auto *tabs = find<QTabWidget>("pages");
    for (int tab = 0; tab < tabs->count(); ++tab) {
      if (tabs->tabText(tab).remove(QLatin1Char('&')) == text) tabs->setCurrentIndex(tab);
    }
    QCoreApplication::processEvents();
  }

  QStringList asked;
};

TEST_F(WindowOverDocuments, AsksForThePasswordOfAProtectedOneAndPrintsIt) {
  if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  const QString locked = folder.filePath("locked.pdf");
  if (!protect(sample, password, locked)) GTEST_SKIP() << "qpdf is not installed";
  openWith({locked});
  answer(QStringLiteral("wrong"));
  answer(password);
  ASSERT_TRUE(QTest::qWaitFor([this] { return printButton()->isEnabled(); }, jobTimeout));
  EXPECT_EQ(asked, (QStringList{"locked.pdf is protected by a password.",
                                "That password does not open locked.pdf."}));
  EXPECT_EQ(dialog->document().pages, 8);
  const QFileInfo copy(dialog->document().path);
  EXPECT_EQ(copy.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_EQ(printed().count("%%Page: "), 8);
  dialog.reset();
  EXPECT_FALSE(QFile::exists(copy.filePath()));
}

TEST_F(WindowOverDocuments, PreviewASampleAndSaySoWhereThereIsNone) {
  openWith({});
  const auto *caption = find<QLabel>("previewCaption");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !caption->text().isEmpty(); }, jobTimeout));
  EXPECT_EQ(caption->text(), "There is no document yet: a sample · A4");
  JobSettings settings = session->job().settings();
  settings.copies = 3;
  session->job().setSettings(settings);
  EXPECT_EQ(caption->text(), "There is no document yet: a sample · A4");
}

TEST_F(WindowOverDocuments, PreviewASampleOfSeveral) {
  openWith({sample, sample});
  const auto *caption = find<QLabel>("previewCaption");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !caption->text().isEmpty(); }, jobTimeout));
  EXPECT_EQ(caption->text(), "The document's pages are not known: a sample · 8 sheets · A4");
}

TEST_F(WindowOverDocuments, WaitForAPasswordThatWasNotGivenAndAskForItAgain) {
  const QString locked = folder.filePath("locked.pdf");
  if (!protect(sample, password, locked)) GTEST_SKIP() << "qpdf is not installed";
  openWith({sample, locked});
  answer({});
  EXPECT_TRUE(waitForObstacle("locked.pdf needs its password"));
  EXPECT_FALSE(printButton()->isEnabled());
  EXPECT_EQ(printButton()->accessibleDescription(), "locked.pdf needs its password");
  EXPECT_TRUE(printButton()->toolTip().contains("locked.pdf needs its password"));
  dialog->print();
  EXPECT_FALSE(QFile::exists(outputFile));
  ASSERT_TRUE(remedy()->isVisible());
  click("documentAction");
  answer(password);
  EXPECT_TRUE(QTest::qWaitFor([this] { return printButton()->isEnabled(); }, jobTimeout));
  EXPECT_FALSE(remedy()->isVisible());
  EXPECT_TRUE(obstacle().isNull());
}

TEST_F(WindowOverDocuments, SayWhyNothingOfThemCanBePrinted) {
  openWith({write("broken.pdf", pdfBeyondRepair())});
  EXPECT_TRUE(waitForObstacle("broken.pdf is damaged beyond repair")) << obstacle().toStdString();
  EXPECT_FALSE(printButton()->isEnabled());
  openWith({write("blank.pdf", pdfWithoutPages())});
  EXPECT_TRUE(waitForObstacle("blank.pdf has no pages")) << obstacle().toStdString();
  openWith({sample, write("nothing.pdf", {})});
  EXPECT_TRUE(waitForObstacle("nothing.pdf is empty")) << obstacle().toStdString();
}

TEST_F(WindowOverDocuments, TakeADamagedOneThatTheFiltersRepair) {
  QFile whole(sample);
  ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
  const QByteArray bytes = whole.readAll();
  openWith({write("cut.pdf", bytes.left(bytes.size() - 20))});
  ASSERT_TRUE(QTest::qWaitFor([this] { return dialog->document().pages > 0; }, jobTimeout));
  EXPECT_TRUE(printButton()->isEnabled());
}

TEST_F(WindowOverDocuments, HoldPrintBackForRangesThatTheyLack) {
  openWith({sample});
  ASSERT_TRUE(QTest::qWaitFor([this] { return dialog->document().pages == 8; }, jobTimeout));
  typeRanges("12-20");
  const QString lacks = "The document has no page 12-20: the number of its pages is 8";
  EXPECT_EQ(obstacle(), lacks);
  EXPECT_FALSE(printButton()->isEnabled());
  QTest::keyClick(find<QLineEdit>("pageRanges"), Qt::Key_Tab);
  EXPECT_TRUE(find<QLabel>("pageRangesProblem")->isVisible());
  EXPECT_EQ(find<QLabel>("pageRangesProblem")->text(), lacks);
  EXPECT_EQ(find<QLineEdit>("pageRanges")->accessibleDescription(), lacks);
  typeRanges("5-20");
  EXPECT_TRUE(obstacle().isNull());
  EXPECT_TRUE(printButton()->isEnabled());
}

TEST_F(WindowOverDocuments, HoldPrintBackForRangesThatMakeNoSense) {
  openWith({sample});
  for (const char *text : {"abc", "999999999999", "3-x", "0"}) {
    typeRanges(QLatin1String(text));
    EXPECT_TRUE(obstacle().startsWith(QLatin1String(text))) << text;
    EXPECT_FALSE(printButton()->isEnabled()) << text;
    EXPECT_EQ(find<QLineEdit>("pageRanges")->text(), text);
  }
}

TEST_F(WindowOverDocuments, HoldPrintBackForARangeThatIsYetToBeWritten) {
  openWith({sample});
  clickTab(QStringLiteral("General"));
  click("somePages");
  EXPECT_EQ(obstacle(), "Write which pages to print, for example 1-3, 7");
  EXPECT_FALSE(printButton()->isEnabled());
  EXPECT_FALSE(find<QLabel>("pageRangesProblem")->isVisible());
  QTest::keyClick(find<QLineEdit>("pageRanges"), Qt::Key_Tab);
  EXPECT_TRUE(find<QLabel>("pageRangesProblem")->isVisible());
  click("allPages");
  EXPECT_TRUE(printButton()->isEnabled());
  EXPECT_TRUE(obstacle().isNull());
}

class WindowWithoutDocument : public WindowOverDocuments {
 protected:
  void SetUp() override { openWith({}); }

  bool drop(const QList<QUrl> &urls) {
    QMimeData data;
    data.setUrls(urls);
    const QPoint place = dialog->rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &enter);
    if (!enter.isAccepted()) return false;
    QDropEvent event(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(dialog.get(), &event);
    return event.isAccepted();
  }

  bool waitForPages(int pages) const {
    return QTest::qWaitFor([&] { return dialog->document().pages == pages; }, jobTimeout);
  }
};

TEST_F(WindowWithoutDocument, SaysSoAndPrintsNothing) {
  EXPECT_EQ(obstacle(), "There is no document yet");
  EXPECT_FALSE(printButton()->isEnabled());
  const auto *header = dialog->findChild<DocumentHeader *>();
  EXPECT_EQ(header->findChild<ElidedLabel *>()->wholeText(), "No document");
  EXPECT_EQ(remedy()->text(), "Choose File…");
  EXPECT_TRUE(remedy()->isVisible());
  dialog->print();
  EXPECT_FALSE(QFile::exists(outputFile));
}

TEST_F(WindowWithoutDocument, TakesTheOneThatIsDroppedOnIt) {
  EXPECT_TRUE(drop({QUrl::fromLocalFile(sample)}));
  ASSERT_TRUE(waitForPages(8));
  EXPECT_EQ(dialog->files(), QStringList{sample});
  EXPECT_TRUE(printButton()->isEnabled());
  EXPECT_FALSE(remedy()->isVisible());
  const auto *preview = dialog->findChild<JobPreview *>();
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview->isComplete(); }, jobTimeout));
  if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_EQ(printed().count("%%Page: "), 8);
}

TEST_F(WindowWithoutDocument, TakesNothingThatIsNoFile) {
  EXPECT_FALSE(drop({QUrl(QStringLiteral("https://example.org/a.pdf"))}));
  EXPECT_FALSE(printButton()->isEnabled());
}

TEST_F(WindowWithoutDocument, TakesTheOneThatIsChosen) {
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QTimer::singleShot(100, dialog.get(), [] {
    auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    ASSERT_NE(chooser, nullptr);
    auto *name = chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    name->setText(sample);
    QTest::keyClick(name, Qt::Key_Return);
  });
  click("documentAction");
  ASSERT_TRUE(waitForPages(8));
  EXPECT_TRUE(printButton()->isEnabled());
}

class WindowOfSeveralDocuments : public WindowOverDocuments {
 protected:
  // Opens the menu beside the documents' name with the mouse; its entry that begins so.
  QAction *entry(const QString &words) {
    click("documentMenu");
    const auto menus = dialog->findChildren<QMenu *>(QStringLiteral("documentActions"));
    EXPECT_EQ(menus.size(), 1);
    for (QAction *action : menus.constLast()->actions()) {
      if (action->text().startsWith(words)) return action;
    }
    return nullptr;
  }

  void chooseEntry(const QString &words) {
    QAction *found = entry(words);
    ASSERT_NE(found, nullptr) << words.toStdString();
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(found).center());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  QString name() const { return dialog->findChild<ElidedLabel *>()->wholeText(); }
};

TEST_F(WindowOfSeveralDocuments, AddsFilesBehindTheOnesThatAreThere) {
  openWith({sample});
  ASSERT_TRUE(QTest::qWaitFor([this] { return dialog->document().pages == 8; }, jobTimeout));
  EXPECT_EQ(entry(QStringLiteral("Remove")), nullptr);
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  const QString second = folder.filePath("second.pdf");
  ASSERT_TRUE(QFile::copy(sample, second));
  QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
  QTimer::singleShot(100, dialog.get(), [second] {
    auto *chooser = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    ASSERT_NE(chooser, nullptr);
    auto *field = chooser->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    field->setText(second);
    QTest::keyClick(field, Qt::Key_Return);
  });
  chooseEntry(QStringLiteral("&Add Files"));
  EXPECT_EQ(dialog->files(), QStringList({sample, second}));
  const auto *header = dialog->findChild<DocumentHeader *>();
  ASSERT_NE(header, nullptr);
  EXPECT_TRUE(QTest::qWaitFor(
      [header] {
        for (const QLabel *label : header->findChildren<QLabel *>()) {
          if (label->text() == QStringLiteral("16 pages")) return true;
        }
        return false;
      },
      jobTimeout));
}

TEST_F(WindowOfSeveralDocuments, TakesEachOfThemOutAndPrintsTheRest) {
  if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
  const QString damaged = write("damaged & more.pdf", "%PDF-1.4 and nothing else");
  openWith({damaged, sample});
  EXPECT_TRUE(waitForObstacle("damaged & more.pdf is damaged beyond repair"));
  chooseEntry(QStringLiteral("Remove 1. damaged && more.pdf"));
  EXPECT_EQ(dialog->files(), QStringList(sample));
  ASSERT_TRUE(QTest::qWaitFor([this] { return printButton()->isEnabled(); }, jobTimeout));
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  EXPECT_FALSE(find<QWidget>("documentMenu")->isEnabled());
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_EQ(printed().count("%%Page: "), 8);
}

TEST_F(WindowWithoutDocument, SaysThatAnEmptyFileIsEmpty) {
  EXPECT_TRUE(drop({QUrl::fromLocalFile(write("nothing.pdf", {}))}));
  EXPECT_TRUE(waitForObstacle("nothing.pdf is empty"));
  EXPECT_FALSE(printButton()->isEnabled());
  EXPECT_EQ(remedy()->text(), "Choose File…");
}

}  // namespace
}  // namespace orvek::test
