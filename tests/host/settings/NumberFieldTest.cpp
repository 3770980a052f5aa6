// SPDX-License-Identifier: Apache-2.0
// Numbers and lengths as people type them.

#include "host/settings/NumberField.h"

#include <gtest/gtest.h>

#include <QTest>

#include "host/ppd/LengthUnit.h"

namespace orvek::test {
namespace {

TEST(TypedNumber, TakesACommaOrAPointBeforeItsDecimals) {
  EXPECT_EQ(typedNumber("12.7", 0), 12.7);
  EXPECT_EQ(typedNumber("12,7", 0), 12.7);
  EXPECT_EQ(typedNumber(" 12,7 ", 0), 12.7);
  EXPECT_EQ(typedNumber("-3", 0), -3);
  EXPECT_EQ(typedNumber(",5", 0), 0.5);
}

TEST(TypedNumber, KnowsGroupsOfDigitsByTheOtherSign) {
  EXPECT_EQ(typedNumber("1.234,5", 0), 1234.5);
  EXPECT_EQ(typedNumber("1,234.5", 0), 1234.5);
  EXPECT_EQ(typedNumber("1 234,5", 0), 1234.5);
  EXPECT_FALSE(typedNumber("1.2.3", 0));
}

TEST(TypedNumber, TakesTheDigitsOfOtherScripts) {
  EXPECT_EQ(typedNumber(QStringLiteral("\u0661\u0662"), 0), 12);
}

TEST(TypedNumber, GivesALengthInTheUnitOfTheField) {
  EXPECT_DOUBLE_EQ(typedNumber("21,5 cm", pointsPerMillimetre).value(), 215);
  EXPECT_DOUBLE_EQ(typedNumber("1in", pointsPerMillimetre).value(), 25.4);
  EXPECT_DOUBLE_EQ(typedNumber("8.5\"", pointsPerInch).value(), 8.5);
  EXPECT_DOUBLE_EQ(typedNumber("36 PT", pointsPerInch).value(), 0.5);
  EXPECT_DOUBLE_EQ(typedNumber("25.4mm", 1).value(), 72);
  EXPECT_DOUBLE_EQ(typedNumber("210", pointsPerMillimetre).value(), 210);
}

TEST(TypedNumber, IsNothingWhereThereIsNone) {
  for (const char *text : {"", "-", "abc", "mm", "12 miles", ".", "1-2"}) {
    EXPECT_FALSE(typedNumber(text, 1)) << text;
  }
  EXPECT_FALSE(typedNumber("12 mm", 0));
}

class NumberFieldTest : public testing::Test {
 protected:
  void show(double unitPoints) {
    field = std::make_unique<NumberField>(unitPoints);
    field->setKeyboardTracking(false);
    field->setRange(10, 500);
    field->setDecimals(1);
    field->setSuffix(QStringLiteral(" mm"));
    field->setValue(100);
    field->show();
    field->setFocus();
  }

  void type(const QString &text) const {
    QTest::keyClick(field.get(), Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(field.get(), text);
    QTest::keyClick(field.get(), Qt::Key_Return);
  }

  std::unique_ptr<NumberField> field;
};

TEST_F(NumberFieldTest, TakesEitherSignInEveryLanguage) {
  for (const char *language : {"en_US", "de_DE", "fr_FR"}) {
    show(pointsPerMillimetre);
    field->setLocale(QLocale(QLatin1String(language)));
    type("12,7");
    EXPECT_EQ(field->value(), 12.7) << language;
    type("13.4");
    EXPECT_EQ(field->value(), 13.4) << language;
  }
}

TEST_F(NumberFieldTest, TurnsAnotherUnitIntoItsOwn) {
  show(pointsPerMillimetre);
  type("2in");
  EXPECT_EQ(field->value(), 50.8);
  EXPECT_EQ(field->text(), field->textFromValue(50.8) + " mm");
  type("72 pt");
  EXPECT_EQ(field->value(), 25.4);
}

TEST_F(NumberFieldTest, KeepsItsNumberWhereTheTextSaysNoneOrOneOutOfRange) {
  show(pointsPerMillimetre);
  for (const char *text : {"3", "5000", "12 xy", "-"}) {
    type(text);
    EXPECT_EQ(field->value(), 100) << text;
  }
}

TEST_F(NumberFieldTest, TakesNoUnitForAPlainNumber) {
  show(0);
  type("50mm");
  EXPECT_EQ(field->value(), 50);
}

}  // namespace
}  // namespace orvek::test
