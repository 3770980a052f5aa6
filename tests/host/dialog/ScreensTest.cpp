// SPDX-License-Identifier: Apache-2.0
// The window in every language, with text of several sizes, on screens of several sizes: every
// button can be reached, and every text fits its control.

#include <QAbstractButton>
#include <QLocale>
#include <QScrollArea>
#include <QTabWidget>
#include <optional>

#include "tests/host/dialog/Languages.h"
#include "tests/host/dialog/ScreenKit.h"
#include "tests/host/dialog/TextFit.h"

using namespace orvek;
using namespace orvek::test;

namespace {

constexpr std::array textScales{1.0, 1.25, 1.5, 2.0};
constexpr int titleBar = 40;
constexpr int patience = 2000;  // milliseconds

class Screens : public ScreenTest, public ::testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override {
    ScreenTest::SetUp();
    if (IsSkipped()) return;
    language.emplace(GetParam());
    QLocale::setDefault(QLocale(QLatin1String(GetParam())));
    usualFont = QApplication::font();
  }

  void TearDown() override {
    dialog.reset();
    session.reset();
    QApplication::setFont(usualFont);
    QLocale::setDefault(QLocale::system());
  }

  void openWith(double scale) {
    QFont font = usualFont;
    font.setPointSizeF(usualFont.pointSizeF() * scale);
    QApplication::setFont(font);
    dialog.reset();
    open();
    click("bookletChckBox");
  }

  // One part after the other finds its place.
  static bool becomesWhole(const QWidget *widget) {
    return QTest::qWaitFor([=] { return widget->visibleRegion().boundingRect() == widget->rect(); },
                           patience);
  }

  bool hasAllTextsWhole() const {
    return QTest::qWaitFor([this] { return tooNarrow(dialog.get()).isEmpty(); }, patience);
  }

  // As the Tab key does when it gets there.
  static void reveal(QWidget *widget) {
    for (QWidget *each = widget->parentWidget(); each != nullptr; each = each->parentWidget()) {
      if (auto *area = qobject_cast<QScrollArea *>(each)) area->ensureWidgetVisible(widget, 0, 0);
    }
  }

  void expectButtonsOnScreen() {
    EXPECT_TRUE(becomesWhole(find<QWidget>("printButton")));
    EXPECT_TRUE(becomesWhole(find<QWidget>("cancelButton")));
    for (auto *button : dialog->findChildren<QAbstractButton *>()) {
      if (!button->isVisible() || button->parentWidget()->inherits("QTabBar")) continue;
      reveal(button);
      EXPECT_TRUE(becomesWhole(button))
          << button->objectName().toStdString() << ' ' << button->text().toStdString();
    }
  }

  std::optional<SpokenLanguage> language;
  QFont usualFont;
};

TEST_P(Screens, HaveEveryButtonAndEveryTextWhole) {
  for (QScreen *each : QGuiApplication::screens()) {
    screen = each;
    for (const double scale : textScales) {
      SCOPED_TRACE(QStringLiteral("%1, text at %2").arg(each->name()).arg(scale).toStdString());
      openWith(scale);
      EXPECT_LE(dialog->width(), each->size().width());
      EXPECT_LE(dialog->height(), each->size().height() - titleBar);
      auto *pages = find<QTabWidget>("pages");
      for (int page = 0; page < pages->count(); ++page) {
        pages->setCurrentIndex(page);
        settle();
        expectButtonsOnScreen();
        EXPECT_TRUE(hasAllTextsWhole())
            << page << ": " << tooNarrow(dialog.get()).join(u'\n').toStdString();
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, Screens, allLanguages);

}  // namespace
