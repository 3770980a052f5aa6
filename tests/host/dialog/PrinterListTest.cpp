// SPDX-License-Identifier: Apache-2.0
// The list of printers, and the button beside it.

#include <QFileDialog>
#include <QLineEdit>
#include <QTimer>
#include <QWheelEvent>

#include "tests/host/dialog/PrinterKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class PrinterButton : public QueuesTest {};

TEST_F(PrinterButton, StandsBesideAListThatHasNothingButPrintersAtItsEnd) {
  open();
  list();
  bool hasAsked = false;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, qApp, [&hasAsked] {
    if (QWidget *question = QApplication::activeModalWidget(); question != nullptr) {
      hasAsked = true;
      question->close();
    }
  });
  watch.start(20);
  auto *menu = find<QComboBox>("printerMenu");
  menu->setFocus();
  press(Qt::Key_Down);
  press(Qt::Key_End);
  for (int presses = 0; presses < 3; ++presses) press(Qt::Key_Down);
  press(Qt::Key_Return);
  const QPointF place = menu->rect().center();
  QWheelEvent wheel(place, menu->mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                    Qt::NoScrollPhase, false);
  for (int turns = 0; turns < 3; ++turns) QCoreApplication::sendEvent(menu, &wheel);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !isAsking(); }, jobTimeout));
  EXPECT_FALSE(hasAsked);
  EXPECT_EQ(menu->currentData().toString(), QStringLiteral("small"));
  EXPECT_EQ(menu->currentIndex(), menu->count() - 1);
}

TEST_F(PrinterButton, OpensAPrinterDescription) {
  open();
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, qApp, [&answer] {
    auto *question = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (question == nullptr) return;  // not yet
    answer.stop();
    question->findChild<QLineEdit *>()->setText(printers + "Orvek-2120.ppd");
    QTest::keyClick(question->findChild<QLineEdit *>(), Qt::Key_Return);
  });
  answer.start(50);
  click("openDescription");
  ASSERT_TRUE(QTest::qWaitFor([&] { return &dialog->session() != session.get(); }, jobTimeout));
  EXPECT_EQ(shownPrinter(), QStringLiteral("File (Orvek 2120 PostScript)"));
}

}  // namespace
