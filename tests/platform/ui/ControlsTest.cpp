// SPDX-License-Identifier: Apache-2.0
// Views and controls: own flags, titles and mnemonics, states, values kept in range, pictures.

#include "platform/ui/Controls.h"

#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSlider>
#include <QTemporaryDir>

#include "platform/ui/PictureFile.h"
#include "tests/support/LogCapture.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

TEST(Hidden, IsTheViewsOwnFlag) {
  QWidget parent;
  QWidget child(&parent);
  EXPECT_FALSE(isHidden(&child)) << "never shown is not hidden";
  setHidden(&parent, true);
  EXPECT_TRUE(isHidden(&parent));
  EXPECT_FALSE(isHidden(&child));
}

TEST(Hidden, SurvivesThatTheParentIsShownAndHidden) {
  QWidget parent;
  QWidget hiddenChild(&parent);
  QWidget shownChild(&parent);
  setHidden(&hiddenChild, true);
  parent.show();
  EXPECT_TRUE(isHidden(&hiddenChild));
  EXPECT_FALSE(isHidden(&shownChild));
  parent.hide();
  EXPECT_TRUE(isHidden(&hiddenChild));
  EXPECT_FALSE(isHidden(&shownChild));
}

TEST(Hidden, EndsWhenTheViewIsUnhidden) {
  QWidget parent;
  QWidget child(&parent);
  setHidden(&child, true);
  setHidden(&child, false);
  EXPECT_FALSE(isHidden(&child));
}

TEST(Enabled, IsTheControlsOwnFlag) {
  QGroupBox box;
  QCheckBox control(&box);
  setEnabled(&box, false);
  EXPECT_FALSE(isEnabled(&box));
  EXPECT_TRUE(isEnabled(&control));
  setEnabled(&control, false);
  setEnabled(&box, true);
  EXPECT_FALSE(isEnabled(&control));
  setEnabled(&control, true);
  EXPECT_TRUE(isEnabled(&control));
}

// Every kind of control that carries a title.
class Titles : public testing::Test {
 protected:
  Titles() { labelWithBuddy.setBuddy(&field); }

  QLineEdit field;
  QCheckBox checkBox;
  QPushButton button;
  QGroupBox box;
  QLabel label;
  QLabel labelWithBuddy;
  const QList<QWidget *> all{&checkBox, &button, &box, &label, &labelWithBuddy};
};

TEST_F(Titles, ReadBackAsTheyWereSet) {
  for (QWidget *control : all) {
    setTitle(control, QStringLiteral("Folding:"));
    EXPECT_EQ(displayedTitle(control), QStringLiteral("Folding:"));
  }
}

TEST_F(Titles, ShowEachAmpersandOfAPlainTitle) {
  for (QWidget *control : all) {
    for (const char *title : {"Fold & Staple", "a&b", "&&", "ends with &", "&"}) {
      setTitle(control, QString::fromLatin1(title));
      EXPECT_EQ(displayedTitle(control), QString::fromLatin1(title));
    }
  }
}

TEST_F(Titles, HideTheMarkOfAMnemonic) {
  for (QWidget *control : all) {
    setTitleWithMnemonic(control, QStringLiteral("&Gutter && creep"));
    EXPECT_EQ(displayedTitle(control), QStringLiteral("Gutter & creep"));
  }
}

TEST_F(Titles, MakeAShortcutOnlyWhereGivenWithMnemonic) {
  setTitleWithMnemonic(&checkBox, QStringLiteral("&Booklet"));
  EXPECT_EQ(checkBox.shortcut(), QKeySequence(QStringLiteral("Alt+B")));
  setTitle(&checkBox, QStringLiteral("&Booklet"));
  EXPECT_TRUE(checkBox.shortcut().isEmpty());
}

TEST_F(Titles, OfLabelsAreNeverReadAsMarkup) {
  setTitle(&label, QStringLiteral("<b>Bold</b>"));
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(displayedTitle(&label), QStringLiteral("<b>Bold</b>"));
}

TEST_F(Titles, ShowANullTextAsEmpty) {
  for (QWidget *control : all) {
    setTitle(control, QStringLiteral("old"));
    setTitle(control, QString());
    EXPECT_TRUE(displayedTitle(control).isEmpty());
    setTitleWithMnemonic(control, QStringLiteral("old"));
    setTitleWithMnemonic(control, QString());
    EXPECT_TRUE(displayedTitle(control).isEmpty());
  }
}

TEST_F(Titles, AreAbsentOnWidgetsThatCarryNone) {
  QWidget plain;
  setTitle(&plain, QStringLiteral("nowhere"));
  EXPECT_TRUE(displayedTitle(&plain).isNull());
}

TEST(MnemonicMarks, VanishFromWhatIsDisplayed) {
  EXPECT_EQ(withoutMnemonicMarks(QStringLiteral("&Gutter")), QStringLiteral("Gutter"));
  EXPECT_EQ(withoutMnemonicMarks(QStringLiteral("Gutter")), QStringLiteral("Gutter"));
  EXPECT_EQ(withoutMnemonicMarks(QStringLiteral("A && B")), QStringLiteral("A & B"));
  EXPECT_EQ(withoutMnemonicMarks(QStringLiteral("&&&C")), QStringLiteral("&C"));
  EXPECT_EQ(withoutMnemonicMarks(QStringLiteral("trailing &")), QStringLiteral("trailing "));
  EXPECT_EQ(withoutMnemonicMarks(QStringLiteral("&")), QStringLiteral(""));
  EXPECT_EQ(withoutMnemonicMarks(QString()), QString());
}

TEST(CheckBoxState, IsOneZeroOrMinusOne) {
  QCheckBox box;
  for (const int wished : {1, 0, -1, 1, -1, 0}) {
    setState(&box, wished);
    EXPECT_EQ(state(&box), wished);
  }
}

TEST(CheckBoxState, TakesEveryOtherNumberAsOn) {
  QCheckBox box;
  setState(&box, 2);
  EXPECT_EQ(state(&box), stateOn);
}

TEST(CheckBoxState, FollowsTheUsersClicks) {
  QCheckBox box;
  box.click();
  EXPECT_EQ(state(&box), stateOn);
  box.click();
  EXPECT_EQ(state(&box), stateOff);
}

TEST(CheckBoxState, OffersNoMixedStateToUsersOnceItIsOnOrOff) {
  QCheckBox box;
  setState(&box, stateMixed);
  setState(&box, stateOff);
  box.click();
  EXPECT_EQ(state(&box), stateOn);
}

TEST(CheckBoxState, IsOffForOtherWidgets) {
  QPushButton button;
  setState(&button, stateOn);
  EXPECT_EQ(state(&button), stateOff);
}

TEST(Slider, KeepsToItsRange) {
  QSlider slider;
  slider.setRange(-36, 36);
  for (const auto &[wished, kept] : {std::pair(12, 12), {37, 36}, {1 << 30, 36}, {-100, -36}}) {
    setIntValue(&slider, wished);
    EXPECT_EQ(intValue(&slider), kept);
  }
}

TEST(Slider, ShowsItsValueAsAWholeNumber) {
  QSlider slider;
  slider.setRange(-36, 144);
  setIntValue(&slider, 24);
  EXPECT_EQ(stringValue(&slider), QStringLiteral("24"));
  setIntValue(&slider, -7);
  EXPECT_EQ(stringValue(&slider), QStringLiteral("-7"));
}

TEST(TextField, ReadsBackTextAndNumbers) {
  QLineEdit field;
  setStringValue(&field, QStringLiteral("24pt"));
  EXPECT_EQ(stringValue(&field), QStringLiteral("24pt"));
  setIntValue(&field, -36);
  EXPECT_EQ(stringValue(&field), QStringLiteral("-36"));
  setStringValue(&field, QString());
  EXPECT_TRUE(stringValue(&field).isEmpty());
}

TEST(TextField, KeepsTheCursorWhenItsTextStaysTheSame) {
  QLineEdit field;
  setStringValue(&field, QStringLiteral("123"));
  field.setCursorPosition(1);
  setStringValue(&field, QStringLiteral("123"));
  EXPECT_EQ(field.cursorPosition(), 1);
  setStringValue(&field, QStringLiteral("124"));
  EXPECT_EQ(field.cursorPosition(), 3);
}

TEST(Controls, SignalNothingWhenCodeSetsThem) {
  QCheckBox box;
  QSlider slider;
  QLineEdit field;
  const QSignalSpy toggled(&box, &QCheckBox::stateChanged);
  const QSignalSpy moved(&slider, &QSlider::valueChanged);
  const QSignalSpy typed(&field, &QLineEdit::textChanged);
  setState(&box, stateOn);
  setIntValue(&slider, 12);
  setStringValue(&field, QStringLiteral("12"));
  EXPECT_EQ(toggled.count() + moved.count() + typed.count(), 0);
}

class ImageView : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QImage(8, 6, QImage::Format_RGB32).save(path()));
    setImage(&view, path());
  }
  QString path() const { return folder.filePath(QStringLiteral("Stapling_None.png")); }

  QTemporaryDir folder;
  QLabel view;
};

TEST_F(ImageView, ShowsThePictureAndKnowsItsFile) {
  EXPECT_EQ(view.pixmap(Qt::ReturnByValue).size(), QSize(8, 6));
  EXPECT_EQ(imageName(&view), QStringLiteral("Stapling_None.png"));
}

TEST_F(ImageView, IsEmptiedByANullPath) {
  setImage(&view, QString());
  EXPECT_TRUE(view.pixmap(Qt::ReturnByValue).isNull());
  EXPECT_TRUE(imageName(&view).isNull());
}

TEST_F(ImageView, IsEmptiedByAMissingFile) {
  setImage(&view, folder.filePath(QStringLiteral("missing.png")));
  EXPECT_TRUE(view.pixmap(Qt::ReturnByValue).isNull());
  EXPECT_TRUE(imageName(&view).isNull());
}

TEST_F(ImageView, IsEmptiedByAFileThatHoldsNoPicture) {
  QFile damaged(path());
  ASSERT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write("no picture") > 0);
  damaged.close();
  setImage(&view, path());
  EXPECT_TRUE(imageName(&view).isNull());
}

TEST_F(ImageView, IsEmptiedByADamagedPictureWhichIsToldOnce) {
  QFile damaged(path());
  ASSERT_TRUE(damaged.open(QIODevice::ReadWrite) && damaged.resize(damaged.size() - 1));
  damaged.close();
  const LogCapture log;
  setImage(&view, path());
  setImage(&view, path());
  EXPECT_TRUE(imageName(&view).isNull());
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines().first().startsWith(path() + ": is no PNG picture, or a damaged one"));
}

TEST_F(ImageView, ShowsNoPictureThatIsCutOffOrHasAWrongBit) {
  QFile file(path());
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  EXPECT_TRUE(isWholePng(whole));
  for (qsizetype i = 0; i < whole.size(); ++i) {
    EXPECT_FALSE(isWholePng(whole.left(i))) << i;
    QByteArray other = whole;
    other[i] = static_cast<char>(other[i] ^ 0x10);
    EXPECT_FALSE(isWholePng(other)) << i;
  }
}

TEST(EmptyImageView, HasNoName) {
  const QLabel view;
  EXPECT_TRUE(imageName(&view).isNull());
}

}  // namespace
}  // namespace orvek::test
