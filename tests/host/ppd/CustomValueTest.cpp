// SPDX-License-Identifier: Apache-2.0
// Custom values: what a PPD asks for, how libcups spells it, and what becomes of it in marks, jobs
// and words.

#include "host/ppd/CustomValue.h"

#include <gmock/gmock.h>

#include <cstdlib>

#include "host/ppd/Constraints.h"
#include "host/ppd/Wording.h"
#include "platform/printing/PPD.h"
#include "tests/host/ppd/TestPrinters.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

using Kind = CustomParameter::Kind;

class CustomValueTest : public testing::Test {
 protected:
  CustomValueTest() { marks.markDefaults(); }

  QList<CustomParameter> parameters(const char *option) {
    return customParameters(*printer, QLatin1String(option));
  }

  // What the printer would be sent.
  QByteArray emitted() {
    char *text = ppdEmitString(printer->lend(), PPD_ORDER_ANY, 0);
    QByteArray code(text);
    std::free(text);
    return code;
  }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("values.ppd"));
  Marks marks{*printer};
};

TEST_F(CustomValueTest, AreAskedForInThePpdsOrder) {
  const auto asked = parameters("Mark");
  ASSERT_EQ(asked.size(), 3);
  EXPECT_EQ(asked[0].text, "Text");
  EXPECT_EQ(asked[0].kind, Kind::Text);
  EXPECT_EQ(asked[1].text, "Angle");
  EXPECT_EQ(asked[1].kind, Kind::Integer);
  EXPECT_EQ(asked[1].most, 360);
  EXPECT_EQ(asked[2].text, "Height");
  EXPECT_EQ(asked[2].kind, Kind::Length);
  EXPECT_EQ(asked[2].least, 1);
}

TEST_F(CustomValueTest, AreNotAskedForWhereThereIsNoCustomChoice) {
  EXPECT_TRUE(parameters("Stamps").isEmpty());
  EXPECT_TRUE(parameters("Missing").isEmpty());
  EXPECT_TRUE(customParameters(PrinterDescription::none(), "Mark").isEmpty());
}

TEST_F(CustomValueTest, ComeBackFromTheirSpelling) {
  const CustomValues given{{"Text", "say \"hi\" {or \\ not}"}, {"Angle", "90"}, {"Size", "56.7"}};
  const QString spelled = customChoice(parameters("Mark"), given);
  EXPECT_EQ(customValues(parameters("Mark"), spelled), given);
  const CustomValues pin{{"Code", "0123"}};
  EXPECT_EQ(customChoice(parameters("Pin"), pin), "Custom.0123");
  EXPECT_EQ(customValues(parameters("Pin"), "Custom.0123"), pin);
}

TEST_F(CustomValueTest, MayHaveUnitsWhereTheyAreLengths) {
  const CustomValues inch = customValues(parameters("Mark"), "{Size=0.5in Angle=x}");
  EXPECT_EQ(inch.value("Size"), "36");
  EXPECT_FALSE(inch.contains("Angle"));
  EXPECT_EQ(customValues(parameters("Mark"), "{size=1IN}").value("Size"), "72");
}

TEST_F(CustomValueTest, ReachThePrinterAsGiven) {
  const CustomValues given{{"Text", "a \"b\" (c)"}, {"Angle", "90"}, {"Size", "20.5"}};
  ASSERT_TRUE(marks.mark("Mark", customChoice(parameters("Mark"), given)));
  ASSERT_TRUE(marks.mark("Gamma", "Custom.1.5"));
  ASSERT_TRUE(marks.mark("Pin", "Custom.0123"));
  const QByteArray code = emitted();
  EXPECT_TRUE(code.contains("(a \"b\" \\050c\\051)\n90\n20.5\n")) << code.toStdString();
  EXPECT_TRUE(code.contains("*CustomGamma True\n1.5\n")) << code.toStdString();
  EXPECT_TRUE(code.contains("*CustomPin True\n(0123)\n")) << code.toStdString();
}

TEST_F(CustomValueTest, AreSaidInWordsWithoutSecrets) {
  const QString mark =
      customChoice(parameters("Mark"), {{"Text", "Draft"}, {"Angle", "90"}, {"Size", "20.5"}});
  EXPECT_EQ(choiceText(*printer, {"Mark", mark}), "Custom: Draft, 90, 20.5 pt");
  EXPECT_EQ(choiceText(*printer, {"Pin", "Custom.0123"}), "With a code: ••••");
}

TEST_F(CustomValueTest, KeepToTheLimitsOfThePpd) {
  const auto mark = parameters("Mark");
  EXPECT_TRUE(customValueProblem(mark[0], "Draft").isNull());
  EXPECT_EQ(customValueProblem(mark[0], ""), "Text: 1 to 20 characters");
  EXPECT_EQ(customValueProblem(mark[1], "361"), "Angle: 0 to 360");
  EXPECT_EQ(customValueProblem(mark[1], "many"), "Angle: 0 to 360");
  const auto pin = parameters("Pin");
  EXPECT_EQ(customValueProblem(pin[0], "12"), "Code: 4 characters");
  EXPECT_EQ(customValueProblem(pin[0], "12a4"), "Code: digits only");
}

TEST_F(CustomValueTest, ObeyConstraintsInEitherSpelling) {
  for (const char *choice : {"{Text=\"x\" Angle=1 Size=2}", "Custom.x"}) {
    marks.markDefaults();
    marks.mark("Gloss", "True");
    const Resolution resolution = markAndResolve(marks, {"Mark", choice});
    EXPECT_TRUE(resolution.marked) << choice;
    EXPECT_EQ(marks.marked("Mark"), choice);
    EXPECT_EQ(marks.marked("Gloss"), QString("False")) << choice;
  }
}

// libcups itself marks such choices side by side, but takes no list of them from a job.
TEST_F(CustomValueTest, OfSeveralAllowedChoicesTheOneThatAJobCanSayIsMarked) {
  ASSERT_TRUE(marks.mark("Stamps", "Date"));
  ASSERT_TRUE(marks.mark("Stamps", "Time"));
  EXPECT_EQ(marks.marked("Stamps"), "Time");
  const QByteArray code = emitted();
  EXPECT_TRUE(code.contains("(time)pop"));
  EXPECT_FALSE(code.contains("(date)pop"));
  EXPECT_FALSE(code.contains("(no stamp)pop"));
  EXPECT_FALSE(marks.mark("Stamps", "Date,Time"));
}

}  // namespace
}  // namespace orvek::test
