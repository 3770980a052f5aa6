// SPDX-License-Identifier: Apache-2.0
// How custom choices are spelled, and the names and units that go with them.

#include "host/ppd/CustomChoice.h"

#include <gtest/gtest.h>

#include "host/ppd/LengthUnit.h"
#include "host/ppd/Paper.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

TEST(Keywords, AreTheSameInAnyCase) {
  EXPECT_TRUE(sameKeyword("PageSize", QStringLiteral("pagesize")));
  EXPECT_TRUE(sameKeyword(QString(), ""));
  EXPECT_FALSE(sameKeyword("PageSize", "PageRegion"));
  EXPECT_TRUE(isAnyOf(QStringLiteral("OFF"), {"None", "Off"}));
  EXPECT_FALSE(isAnyOf(QStringLiteral("On"), {"None", "Off"}));
}

TEST(Keywords, AreFoundAmongChoices) {
  const QList<OptionChoice> choices{{"PageSize", "A4"}, {"Duplex", "None"}};
  EXPECT_TRUE(isNamedAmong(choices, "duplex"));
  EXPECT_FALSE(isNamedAmong(choices, "A4"));
}

TEST(CustomChoice, IsReadFromItsThreeSpellingsInAnyCase) {
  for (const char *text : {"Custom", "custom.200x300", "{Angle=90}"}) {
    EXPECT_TRUE(isCustomChoice(QLatin1String(text))) << text;
  }
  for (const char *text : {"", "A4", "Customary", "Custom200"}) {
    EXPECT_FALSE(isCustomChoice(QLatin1String(text))) << text;
  }
}

TEST(CustomChoice, SaysWhetherItHasValues) {
  EXPECT_FALSE(hasCustomValues("Custom"));
  EXPECT_TRUE(hasCustomValues("Custom.1"));
  EXPECT_TRUE(hasCustomValues("{Angle=90}"));
  EXPECT_FALSE(hasCustomValues("A4"));
}

TEST(CustomChoice, GivesItsValues) {
  EXPECT_EQ(CustomChoice::read("CUSTOM.0.5")->value(), "0.5");
  EXPECT_TRUE(CustomChoice::read("Custom")->value().isNull());
  const QString parts =
      CustomChoice::ofParts({"Angle=90", "Text=" + CustomChoice::quoted("a \"b\" \\ c")}).text();
  const auto read = CustomChoice::read(parts);
  EXPECT_TRUE(read->value().isNull());
  EXPECT_EQ(read->values(), (QMap<QString, QString>{{"Angle", "90"}, {"Text", "a \"b\" \\ c"}}));
  EXPECT_TRUE(CustomChoice::read("Custom.Angle=90")->values().isEmpty());
}

TEST(CustomChoice, HasOneNameInConstraintsAndOneInLists) {
  EXPECT_EQ(CustomChoice::read("{Angle=90}")->constrainedName(), "Custom.values");
  EXPECT_EQ(CustomChoice::read("Custom.1x2")->constrainedName(), "Custom.1x2");
  EXPECT_EQ(listedChoice("Custom.1x2"), "Custom");
  EXPECT_EQ(listedChoice("{Angle=90}"), "Custom");
  EXPECT_EQ(listedChoice("A4"), "A4");
}

TEST(LengthUnits, AreThoseOfCupsInAnyCase) {
  EXPECT_EQ(pointsPerUnit(""), 1);
  EXPECT_EQ(pointsPerUnit("in"), 72);
  EXPECT_EQ(pointsPerUnit("FT"), 864);
  EXPECT_DOUBLE_EQ(*pointsPerUnit("m"), *pointsPerUnit("mm") * 1000);
  EXPECT_DOUBLE_EQ(*pointsPerUnit("cm"), 72 / 2.54);
  EXPECT_FALSE(pointsPerUnit("furlong"));
}

TEST(CustomPaper, IsSpelledInAUnitAndReadInAny) {
  EXPECT_EQ(customPaperChoice({72, 144}, {"in", 72, 2}), "Custom.1.00x2.00in");
  EXPECT_EQ(customPaperSize("Custom.1x2IN"), QSizeF(72, 144));
  EXPECT_EQ(customPaperSize("custom.200x300"), QSizeF(200, 300));
  for (const char *text : {"Custom", "Custom.", "Custom.1x", "Custom.0x2", "Custom.1x2yd", "A4"}) {
    EXPECT_FALSE(customPaperSize(QLatin1String(text))) << text;
  }
}

}  // namespace
}  // namespace orvek::test
