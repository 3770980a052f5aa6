// SPDX-License-Identifier: Apache-2.0
// The list of printers as it is searched, and how it follows the print server.

#include <QElapsedTimer>
#include <QLineEdit>
#include <QWheelEvent>

#include "tests/host/dialog/PrinterKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

/// Longer than the print server may be behind.
constexpr int soon = 6500;

class PrinterSearch : public QueuesTest {
 protected:
  void SetUp() override {
    QueuesTest::SetUp();
    if (IsSkipped()) return;
    server->addQueue(QStringLiteral("copier"), printers + "Orvek-4150.ppd",
                     {QStringLiteral("-D"), QStringLiteral("Colour Machine of the Post Room"),
                      QStringLiteral("-L"), QStringLiteral("Basement")});
    recent = std::make_shared<RecentPrinters>(folder.filePath(QStringLiteral("recent")));
    prepare = [this, before = prepare](DialogSetup &setup) {
      before(setup);
      setup.recent = recent;
    };
  }

  void openWithList() {
    open();
    list();
  }

  void openByKey() const {
    find<QWidget>("printerMenu")->setFocus();
    press(Qt::Key_Down);
    ASSERT_NE(shownPrinters(), nullptr);
  }

  void type(const char *text) const { QTest::keyClicks(QApplication::focusWidget(), text); }

  QString marked() const {
    return shownPrinters() == nullptr ? QString()
                                      : shownPrinters()->currentIndex().data().toString();
  }

  QString destination() const { return dialog->session().origin().destination; }
  bool waitFor(const QString &queue) const {
    return QTest::qWaitFor([&] { return destination() == queue; }, jobTimeout);
  }

  static QString words(const char *text) { return QString::fromUtf8(text); }

  std::shared_ptr<RecentPrinters> recent;
};

TEST_F(PrinterSearch, OpensWithTheChosenOneMarkedAndTheKeyboardInTheSearch) {
  openWithList();
  pickPrinter(QStringLiteral("small"));
  openByKey();
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "printerSearch");
  EXPECT_EQ(marked(), "small");
  EXPECT_EQ(listedPrinters(),
            QStringList({"File (Orvek 2120 PostScript)", "big", "copier", "small"}));
}

TEST_F(PrinterSearch, FindsAPrinterByWhereItStands) {
  openWithList();
  openByKey();
  type("second FLOOR");
  EXPECT_EQ(listedPrinters(), QStringList("big"));
  press(Qt::Key_Return);
  EXPECT_EQ(shownPrinters(), nullptr);
  EXPECT_TRUE(waitFor(QStringLiteral("big")));
}

TEST_F(PrinterSearch, FindsAPrinterByWhatItsAdministratorCallsIt) {
  openWithList();
  openByKey();
  type("post machine");
  EXPECT_EQ(listedPrinters(), QStringList("copier"));
  press(Qt::Key_Return);
  EXPECT_TRUE(waitFor(QStringLiteral("copier")));
}

TEST_F(PrinterSearch, SaysWhereNothingIsFoundAndTakesNothing) {
  openWithList();
  openByKey();
  type("nowhere");
  EXPECT_TRUE(listedPrinters().isEmpty());
  press(Qt::Key_Return);
  EXPECT_NE(shownPrinters(), nullptr);
  for (int letters = 0; letters < 7; ++letters) press(Qt::Key_Backspace);
  EXPECT_EQ(listedPrinters().size(), 4);
}

TEST_F(PrinterSearch, BeginsWithTheLetterTypedAndMarksANameThatBeginsWithIt) {
  openWithList();
  find<QWidget>("printerMenu")->setFocus();
  press(Qt::Key_S);
  EXPECT_EQ(find<QLineEdit>("printerSearch")->text(), "s");
  // "File (Orvek 6180 PostScript)" and "big", on the second floor, have the letter as well.
  EXPECT_EQ(listedPrinters().size(), 4);
  EXPECT_EQ(marked(), "small");
}

TEST_F(PrinterSearch, LeavesAllAsItWasAtEscape) {
  openWithList();
  openByKey();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  EXPECT_EQ(marked(), "copier");
  press(Qt::Key_Escape);
  EXPECT_EQ(shownPrinters(), nullptr);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(isAsking());
  EXPECT_EQ(&dialog->session(), session.get());
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "printerMenu");
}

TEST_F(PrinterSearch, ChangesNothingWhileTheListIsClosed) {
  openWithList();
  auto *menu = find<QComboBox>("printerMenu");
  menu->setFocus();
  for (const Qt::Key key : {Qt::Key_End, Qt::Key_PageDown, Qt::Key_Home}) press(key);
  const QPointF place = menu->rect().center();
  QWheelEvent wheel(place, menu->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  QCoreApplication::sendEvent(menu, &wheel);
  EXPECT_EQ(shownPrinters(), nullptr);
  EXPECT_FALSE(isAsking());
  EXPECT_EQ(menu->currentIndex(), 0);
}

TEST_F(PrinterSearch, ClosesAtASecondClickOnTheMenu) {
  openWithList();
  ASSERT_NE(openPrinters(), nullptr);
  QTest::mouseClick(find<QComboBox>("printerMenu"), Qt::LeftButton);
  EXPECT_EQ(shownPrinters(), nullptr);
}

TEST_F(PrinterSearch, PutsThePrintersUsedLatelyFirst) {
  ASSERT_TRUE(recent->add(QStringLiteral("gone")));
  ASSERT_TRUE(recent->add(QStringLiteral("small")));
  openWithList();
  ASSERT_NE(openPrinters(), nullptr);
  EXPECT_EQ(listedPrinters().mid(1), QStringList({"small", "big", "copier"}));
  const QModelIndex first = shownPrinters()->model()->index(1, 0);
  EXPECT_TRUE(first.data(Qt::AccessibleTextRole).toString().contains("used lately"));
}

TEST_F(PrinterSearch, RemembersWhereAJobWentTo) {
  openWithList();
  pickPrinter(QStringLiteral("small"));
  QSignalSpy finished(dialog.get(), &QDialog::finished);
  click("printButton");
  ASSERT_TRUE(finished.count() > 0 || finished.wait(jobTimeout));
  EXPECT_EQ(recent->destinations(), QStringList("small"));
}

TEST_F(PrinterSearch, ShortensLongNamesInTheMiddle) {
  const QString same(90, u'n');
  for (const char *end : {"-one", "-two"}) {
    server->addQueue(QLatin1String("a-") + same + QLatin1String(end), {});
  }
  openWithList();
  auto *view = openPrinters();
  ASSERT_NE(view, nullptr);
  const auto pictureOf = [view](int row) {
    return view->viewport()->grab(view->visualRect(view->model()->index(row, 0))).toImage();
  };
  ASSERT_TRUE(listedPrinters().value(1).endsWith("-one"));
  ASSERT_TRUE(listedPrinters().value(2).endsWith("-two"));
  EXPECT_NE(pictureOf(1), pictureOf(2));
  EXPECT_TRUE(view->model()->index(1, 0).data(Qt::ToolTipRole).toString().contains(same + "-one"));
}

TEST_F(PrinterSearch, SaysWhyAPrinterStoppedBeforeWhereItStands) {
  openWithList();
  pickPrinter(QStringLiteral("big"));
  server->run(QStringLiteral("cupsdisable"), {QStringLiteral("big")});
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return detail() == words("Stopped · Paused · Second floor"); }, soon))
      << detail().toStdString();
  server->run(QStringLiteral("cupsenable"), {QStringLiteral("big")});
  EXPECT_TRUE(QTest::qWaitFor([&] { return detail() == words("Idle · Second floor"); }, soon))
      << detail().toStdString();
}

TEST_F(PrinterSearch, GetsNewPrintersWhileItIsOpenAndKeepsWhatIsMarked) {
  openWithList();
  openByKey();
  press(Qt::Key_Down);
  press(Qt::Key_Down);
  ASSERT_EQ(marked(), "copier");
  server->addQueue(QStringLiteral("another"), printers + "Orvek-2120.ppd");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return listedPrinters().contains(QStringLiteral("another")); }, soon));
  EXPECT_EQ(marked(), "copier");
  press(Qt::Key_Escape);
}

TEST_F(PrinterSearch, SaysThatTheChosenPrinterIsGoneAndWaitsForAnother) {
  openWithList();
  pickPrinter(QStringLiteral("small"));
  ASSERT_TRUE(canPrint());
  server->run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("small")});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !canPrint(); }, soon));
  EXPECT_EQ(notices().sentences(),
            QStringList("small is no longer on the print server. Choose another printer."));
  EXPECT_EQ(find<QPushButton>("printButton")->accessibleDescription(),
            "The printer is no longer there");
  EXPECT_EQ(shownPrinter(), "small");
  EXPECT_EQ(destination(), "small");
  server->addQueue(QStringLiteral("small"), printers + "Orvek-2120.ppd");
  ASSERT_TRUE(QTest::qWaitFor([&] { return canPrint(); }, soon));
  EXPECT_FALSE(notices().isVisible()) << notices().sentences().join(u'\n').toStdString();
}

TEST_F(PrinterSearch, PrintsOnAnotherOneOnceTheChosenPrinterIsGone) {
  openWithList();
  pickPrinter(QStringLiteral("small"));
  server->run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), QStringLiteral("small")});
  ASSERT_TRUE(QTest::qWaitFor([&] { return !canPrint(); }, soon));
  pickPrinter(QStringLiteral("big"));
  EXPECT_TRUE(canPrint());
  ASSERT_NE(openPrinters(), nullptr);
  EXPECT_FALSE(listedPrinters().contains(QStringLiteral("small")));
}

TEST_F(PrinterSearch, AsksForTheListOnceMoreAtTheButtonForThat) {
  open();
  server->stop();
  list();
  ASSERT_NE(openPrinters(), nullptr);
  ASSERT_TRUE(find<QWidget>("printerAgain")->isVisible());
  server->start();
  QElapsedTimer clock;
  clock.start();
  click("printerAgain");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return listedPrinters().contains(QStringLiteral("big")); }, soon));
  EXPECT_LT(clock.elapsed(), 3500) << "that was the next look at the server";
  EXPECT_FALSE(find<QWidget>("printerAgain")->isVisible());
}

}  // namespace
