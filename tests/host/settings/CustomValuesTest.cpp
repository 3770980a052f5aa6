// SPDX-License-Identifier: Apache-2.0
// Custom values under a user's hands: fields that open with a row, and what they take.

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "host/presets/SessionPreset.h"
#include "tests/host/settings/OptionsPageKit.h"

namespace orvek::test {
namespace {

const QString valuesPpd = QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/values.ppd");

class CustomValuesTest : public OptionsPageOnPpd {
 protected:
  void SetUp() override { open(valuesPpd, {}); }

  void pick(const QString &option, const QString &choice) {
    view->setFocus();
    view->setCurrentIndex(row(option));
    QTest::keyClick(view, Qt::Key_Return);
    ChoiceBox *box = editor();
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(pickText(box, choice));
    QCoreApplication::processEvents();
  }

  void type(const char *field, const QString &text) {
    auto *widget = find<QWidget>(field);
    ASSERT_NE(widget, nullptr) << field;
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(widget, text);
    QTest::keyClick(widget, Qt::Key_Tab);
  }

  bool areFieldsOpen() { return find<QWidget>("customValues")->isVisible(); }
};

TEST_F(CustomValuesTest, OpenWithTheRowAndAreMarkedOnceTheyAreWhole) {
  EXPECT_FALSE(areFieldsOpen());
  pick("Watermark", "Custom…");
  ASSERT_TRUE(areFieldsOpen());
  EXPECT_EQ(marked("Mark"), "None");
  EXPECT_EQ(find<QLabel>("customProblem")->text(), "Text: 1 to 20 characters");
  EXPECT_TRUE(find<QLineEdit>("customText")->hasFocus());
  type("customText", "Top secret");
  EXPECT_EQ(marked("Mark"), "{Text=\"Top secret\" Angle=0 Size=1.00}");
  type("customAngle", "45");
  type("customSize", "20.5");
  EXPECT_EQ(marked("Mark"), "{Text=\"Top secret\" Angle=45 Size=20.50}");
  EXPECT_EQ(choiceOf("Watermark"), "Custom: Top secret, 45, 20.5 pt");
  EXPECT_TRUE(find<QPushButton>("setBack")->hasFocus());
  EXPECT_FALSE(find<QLabel>("customProblem")->isVisible());
}

TEST_F(CustomValuesTest, KeepToTheirLimits) {
  pick("Gamma", "Custom…");
  EXPECT_EQ(marked("Gamma"), "Custom.0.50");
  type("customValue", "9");
  EXPECT_EQ(choiceOf("Gamma"), "Custom: 0.5");
  type("customValue", "1.8");
  EXPECT_EQ(marked("Gamma"), "Custom.1.80");
}

TEST_F(CustomValuesTest, TakeACommaAndALengthInAnotherUnit) {
  pick("Gamma", "Custom…");
  type("customValue", "1,8");
  EXPECT_EQ(marked("Gamma"), "Custom.1.80");
  pick("Watermark", "Custom…");
  type("customText", "Draft");
  type("customSize", "0.5in");
  EXPECT_EQ(marked("Mark"), "{Text=\"Draft\" Angle=0 Size=36.00}");
}

TEST_F(CustomValuesTest, HideASecret) {
  pick("Locked print", "With a code…");
  EXPECT_EQ(find<QLineEdit>("customCode")->echoMode(), QLineEdit::Password);
  type("customCode", "12a4");
  EXPECT_EQ(marked("Pin"), "None");
  EXPECT_EQ(find<QLabel>("customProblem")->text(), "Code: digits only");
  type("customCode", "0123");
  EXPECT_EQ(marked("Pin"), "Custom.0123");
  EXPECT_EQ(choiceOf("Locked print"), "With a code: ••••");
}

TEST_F(CustomValuesTest, CloseWhenTheOptionIsSetBackOrLeft) {
  pick("Gamma", "Custom…");
  ASSERT_TRUE(areFieldsOpen());
  view->setCurrentIndex(row("Gloss"));
  EXPECT_FALSE(areFieldsOpen());
  view->setCurrentIndex(row("Gamma"));
  ASSERT_TRUE(areFieldsOpen());
  QTest::mouseClick(find<QPushButton>("setBack"), Qt::LeftButton);
  EXPECT_EQ(marked("Gamma"), "None");
  EXPECT_FALSE(areFieldsOpen());
  pick("Watermark", "Custom…");
  pick("Watermark", "Off");
  EXPECT_FALSE(areFieldsOpen());
}

TEST_F(CustomValuesTest, ComeBackFromAPresetAndGoBackToTheQueues) {
  pick("Gamma", "Custom…");
  type("customValue", "2.2");
  const Preset saved = presetOf(*session, QStringLiteral("Bright"));
  SessionSetup setup;
  setup.queueOptions = {{"Gamma", "Custom.1.5"}};
  open(valuesPpd, {}, setup);
  EXPECT_TRUE(applyPreset(*session, saved).isEmpty());
  EXPECT_EQ(choiceOf("Gamma"), "Custom: 2.2");
  view->setCurrentIndex(row("Gamma"));
  QTest::mouseClick(find<QPushButton>("setBack"), Qt::LeftButton);
  EXPECT_EQ(marked("Gamma"), "Custom.1.5");
}

TEST_F(CustomValuesTest, OfAPresetThatThisPrinterCanNotTakeAreNamed) {
  Preset preset;
  preset.options.insert("Gamma", "Custom.7");
  const QList<PresetMisfit> misfits = applyPreset(*session, preset);
  ASSERT_EQ(misfits.size(), 1);
  EXPECT_EQ(misfits.first().why, "\"Gamma\" of this printer takes Value: 0.5 to 2.5");
  EXPECT_EQ(marked("Gamma"), "None");
}

}  // namespace
}  // namespace orvek::test
