// SPDX-License-Identifier: Apache-2.0
// The wheel over controls that nobody works with: it scrolls, and changes nothing.

#include <QScrollArea>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>
#include <QWheelEvent>

#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Wheel : public DialogTest {
 protected:
  /// As the window system sends it: the toolkit gives the focus to what takes it by wheel first.
  static void turn(QWidget *widget, int notches = -1) {
    const QPointF middle = QRectF(widget->rect()).center();
    QWheelEvent event(middle, widget->mapToGlobal(middle), {}, {0, 120 * notches}, Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QApplication::instance()->notify(widget, &event);
    QCoreApplication::processEvents();
  }

  QTabWidget *showPage(int page) const {
    auto *pages = find<QTabWidget>("pages");
    pages->setCurrentIndex(page);
    QCoreApplication::processEvents();
    find<QWidget>("printButton")->setFocus();
    return pages;
  }
};

TEST_F(Wheel, OverAControlOfThePanelChangesNothing) {
  open();
  click("bookletChckBox");
  find<QWidget>("printButton")->setFocus();
  const TicketValues before = session->ticket().values();
  const int gutter = find<QSlider>("gutterSlider")->value();
  for (const char *name : {"staplingPopup", "foldingPopup", "punchPopup", "paperDestPopup",
                           "gutterSlider", "creepSlider", "paperSizePopup"}) {
    turn(find<QWidget>(name));
    EXPECT_FALSE(find<QWidget>(name)->hasFocus()) << name;
  }
  EXPECT_EQ(session->ticket().values(), before);
  EXPECT_EQ(find<QSlider>("gutterSlider")->value(), gutter);
  EXPECT_FALSE(notices().isVisible());
}

TEST_F(Wheel, OverASettingOfTheHostChangesNothing) {
  open();
  auto *pages = showPage(0);
  const TicketValues before = session->ticket().values();
  const MarksSnapshot marks = session->marks().snapshot();
  for (const char *name : {"copies", "paperSize", "orientation", "sides", "pagesPerSheet"}) {
    turn(find<QWidget>(name));
    EXPECT_FALSE(find<QWidget>(name)->hasFocus()) << name;
  }
  EXPECT_EQ(session->job().settings(), JobSettings());
  EXPECT_EQ(session->ticket().values(), before);
  EXPECT_EQ(session->marks().snapshot(), marks);
  turn(pages->tabBar());
  EXPECT_EQ(pages->currentIndex(), 0);
}

TEST_F(Wheel, OverAControlScrollsThePage) {
  open();
  QTabWidget *pages = showPage(0);
  auto *area = pages->currentWidget()->findChild<QScrollArea *>();
  ASSERT_NE(area, nullptr);
  area->setFixedHeight(160);
  QCoreApplication::processEvents();
  const QScrollBar *bar = area->verticalScrollBar();
  ASSERT_GT(bar->maximum(), 0);
  turn(find<QWidget>("paperSize"));
  EXPECT_GT(bar->value(), 0);
  const int place = bar->value();
  turn(find<QWidget>("orientation"));
  EXPECT_GT(bar->value(), place);
}

TEST_F(Wheel, StillWorksOnTheControlThatHasTheKeyboard) {
  open();
  auto *folding = find<QComboBox>("foldingPopup");
  folding->setFocus();
  turn(folding);
  EXPECT_EQ(folding->currentIndex(), 1);
}

}  // namespace
