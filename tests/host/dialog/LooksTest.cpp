// SPDX-License-Identifier: Apache-2.0
// No text of the window is cut off or covered, in any language. tests/looks/run.sh looks at more
// themes and sizes of letters, and draws what it sees.

#include <QCheckBox>
#include <QLabel>
#include <QLocale>
#include <QTabWidget>

#include "tests/host/dialog/DialogKit.h"
#include "tests/host/dialog/Languages.h"
#include "tests/looks/Clipped.h"
#include "tests/support/UserLanguage.h"

using namespace orvek;
using namespace orvek::test;

namespace {

class LooksIn : public DialogTest, public ::testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override {
    QLocale::setDefault(QLocale(QLatin1String(GetParam())));
    speech = std::make_unique<SpokenLanguage>(GetParam());
    open();
  }
  void TearDown() override {
    speech.reset();
    QLocale::setDefault(QLocale::c());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  }

  std::unique_ptr<SpokenLanguage> speech;
};

TEST_P(LooksIn, NoTextIsCutOffOrCovered) {
  session->pick(QStringLiteral("OVKPunching"), QStringLiteral("2Hole"));
  session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  find<QCheckBox>("bookletChckBox")->click();
  auto *pages = find<QTabWidget>("pages");
  for (int page = 0; page < pages->count(); ++page) {
    pages->setCurrentIndex(page);
    // Letters for the keyboard are given out, and the page is laid out again.
    static_cast<void>(QTest::qWaitFor([&] { return clippedTexts(*dialog).isEmpty(); }, 2000));
    EXPECT_EQ(clippedTexts(*dialog).join(u'\n').toStdString(), "") << page;
  }
}

INSTANTIATE_TEST_SUITE_P(Each, LooksIn, allLanguages);

class LargeText : public DialogTest {
 protected:
  void SetUp() override {
    QFont font = usual;
    font.setPointSizeF(usual.pointSizeF() * 1.5);
    QApplication::setFont(font);
  }
  void TearDown() override {
    dialog.reset();
    QApplication::setFont(usual);
  }

 private:
  const QFont usual = QApplication::font();
};

TEST_F(LargeText, ShowsAllOfTheChoiceOfSidesWhereThereIsRoom) {
  const UserLanguage german("de");
  open();
  dialog->resize(800, 600);
  session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexTumble"));
  ASSERT_EQ(find<QComboBox>("sides")->currentText(), "Bindung an der kurzen Seite");
  static_cast<void>(QTest::qWaitFor([&] { return clippedTexts(*dialog).isEmpty(); }, 2000));
  EXPECT_EQ(clippedTexts(*dialog).join(u'\n').toStdString(), "");
}

class Clipped : public ::testing::Test {
 protected:
  Clipped() {
    window.resize(400, 100);
    label.setText(QStringLiteral("a text of some length"));
    label.move(10, 10);
    label.resize(label.sizeHint());
    button.setText(QStringLiteral("another text"));
    button.move(200, 50);
    button.resize(button.sizeHint());
    window.show();
  }

  QWidget window;
  QLabel label{&window};
  QPushButton button{&window};
};

TEST_F(Clipped, IsNothingThatHasRoom) {
  EXPECT_EQ(clippedTexts(window), QStringList());
}

TEST_F(Clipped, IsATextThatIsWiderThanItsPlace) {
  label.resize(label.width() / 2, label.height());
  ASSERT_EQ(clippedTexts(window).size(), 1);
  EXPECT_TRUE(clippedTexts(window).first().contains(QStringLiteral("is cut off")));
}

TEST_F(Clipped, IsATextThatAnotherOneCovers) {
  button.move(label.pos());
  ASSERT_EQ(clippedTexts(window).size(), 1);
  EXPECT_TRUE(clippedTexts(window).first().contains(QStringLiteral("overlap")));
}

}  // namespace
