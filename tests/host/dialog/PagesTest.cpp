// SPDX-License-Identifier: Apache-2.0
// Which pages a window has, which one it opens with, and what stands above all of them.

#include <QRadioButton>
#include <QSpinBox>
#include <QTabBar>
#include <QTabWidget>

#include "tests/host/dialog/DialogKit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class Pages : public DialogTest {
 protected:
  void openPpd(const char *file) {
    auto begun = openSession(QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/") +
                             QLatin1String(file));
    ASSERT_TRUE(begun) << begun.failure().line().toStdString();
    session = begun.take();
    showWindow();
  }

  QTabWidget &pages() const { return *find<QTabWidget>("pages"); }

  QStringList titles() const {
    QStringList all;
    for (int page = 0; page < pages().count(); ++page) {
      all << pages().tabText(page).remove(u'&');
    }
    return all;
  }
};

TEST_F(Pages, OpenWithFinishingWhereThePrinterFinishes) {
  open();
  EXPECT_EQ(titles(), (QStringList{"General", "Finishing", "More Options"}));
  EXPECT_EQ(pages().currentIndex(), 1);
}

TEST_F(Pages, AreWithoutFinishingWhereThePrinterHasNothingForIt) {
  openPpd("values.ppd");
  ASSERT_NE(session->panels().first(), nullptr);
  EXPECT_EQ(titles(), (QStringList{"General", "More Options"}));
  EXPECT_EQ(pages().currentIndex(), 0);
  EXPECT_TRUE(find<QWidget>("orientation")->isVisible());
}

TEST_F(Pages, HaveCopiesPagesAndSidesAboveThemWhicheverIsShown) {
  open();
  for (int page = 0; page < pages().count(); ++page) {
    pages().setCurrentIndex(page);
    QCoreApplication::processEvents();
    for (const char *name : {"copies", "collate", "allPages", "somePages", "pageRanges", "sides"}) {
      auto *control = find<QWidget>(name);
      ASSERT_NE(control, nullptr) << name;
      EXPECT_FALSE(control->visibleRegion().isEmpty()) << name << " on page " << page;
    }
  }
}

TEST_F(Pages, TakeTheCommonestJobWithoutTurningOne) {
  open();
  auto *copies = find<QSpinBox>("copies");
  copies->setFocus();
  copies->selectAll();
  QTest::keyClicks(copies, "3");
  QTest::keyClicks(find<QWidget>("pageRanges"), "2-4");
  clickItem("sides", QStringLiteral("Long-edge binding"));
  EXPECT_EQ(session->job().settings().copies, 3);
  EXPECT_EQ(session->job().settings().pageRanges, QStringLiteral("2-4"));
  EXPECT_EQ(session->marks().marked(QStringLiteral("Duplex")), QStringLiteral("DuplexNoTumble"));
}

}  // namespace
