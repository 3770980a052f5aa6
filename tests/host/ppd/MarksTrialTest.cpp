// SPDX-License-Identifier: Apache-2.0
// What is only tried leaves nothing behind.

#include "host/ppd/MarksTrial.h"

#include <gtest/gtest.h>

#include <type_traits>

#include "platform/printing/PPD.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

// A copy would move the marks of the same PPD behind the other's back.
static_assert(!std::is_copy_constructible_v<Marks> && !std::is_copy_assignable_v<Marks>);

class MarksTrialTest : public testing::Test {
 protected:
  void open(const char *name) {
    printer = openTestPpd(QLatin1String(name));
    marks = std::make_unique<Marks>(*printer);
    marks->markDefaults();
  }

  float width() { return ppdPageWidth(printer->lend(), nullptr); }

  std::shared_ptr<PrinterDescription> printer;
  std::unique_ptr<Marks> marks;
};

TEST_F(MarksTrialTest, TakesBackWhatWasMarked) {
  open("finisher.ppd");
  marks->mark("OVKFolding", "Saddle");
  const MarksSnapshot before = marks->snapshot();
  {
    const MarksTrial trial(*marks);
    marks->mark("OVKFolding", "None");
    marks->mark("OVKStapling", "Front");
    marks->mark("PageRegion", "Letter");
    ASSERT_NE(marks->snapshot(), before);
  }
  EXPECT_EQ(marks->snapshot(), before);
  EXPECT_EQ(marks->marked("OVKFolding"), "Saddle");
  EXPECT_EQ(marks->marked("PageSize"), "A4");
  EXPECT_TRUE(marks->marked("PageRegion").isNull());
}

TEST_F(MarksTrialTest, KeepsWhatIsToBeKept) {
  open("finisher.ppd");
  {
    MarksTrial trial(*marks);
    marks->mark("OVKFolding", "Saddle");
    trial.keep();
  }
  EXPECT_EQ(marks->marked("OVKFolding"), "Saddle");
}

TEST_F(MarksTrialTest, StandsWithinAnother) {
  open("finisher.ppd");
  const MarksSnapshot before = marks->snapshot();
  {
    const MarksTrial outer(*marks);
    marks->mark("OVKFolding", "Saddle");
    {
      const MarksTrial inner(*marks);
      marks->mark("OVKFolding", "None");
    }
    EXPECT_EQ(marks->marked("OVKFolding"), "Saddle");
  }
  EXPECT_EQ(marks->snapshot(), before);
}

TEST_F(MarksTrialTest, GivesThePaperItsSizeBack) {
  open("custom.ppd");
  marks->mark("PageSize", "Custom.200x300");
  ASSERT_EQ(width(), 200);
  for (const char *tried : {"A4", "Custom.400x500"}) {
    {
      const MarksTrial trial(*marks);
      marks->mark("PageSize", QLatin1String(tried));
      ASSERT_NE(width(), 200) << tried;
    }
    EXPECT_EQ(width(), 200) << tried;
    EXPECT_EQ(marks->marked("PageSize"), "Custom.200x300") << tried;
  }
}

TEST_F(MarksTrialTest, GivesOtherCustomChoicesTheirValuesBack) {
  open("values.ppd");
  marks->mark("Gamma", "Custom.1.5");
  {
    const MarksTrial trial(*marks);
    marks->mark("Gamma", "Custom.2");
  }
  EXPECT_EQ(marks->marked("Gamma"), "Custom.1.5");
  char *text = ppdEmitString(printer->lend(), PPD_ORDER_ANY, 0);
  EXPECT_TRUE(QByteArray(text).contains("*CustomGamma True\n1.5\n")) << text;
  std::free(text);
}

TEST_F(MarksTrialTest, LeavesEachMarkOfAnOptionOfManyChoicesItsOwn) {
  open("values.ppd");
  marks->mark("Stamps", "Date");
  {
    const MarksTrial trial(*marks);
    // As a job does: libcups marks the choice beside the other.
    ppdMarkOption(printer->lend(), "Stamps", "Time");
  }
  EXPECT_NE(ppdIsMarked(printer->lend(), "Stamps", "Date"), 0);
  EXPECT_EQ(ppdIsMarked(printer->lend(), "Stamps", "Time"), 0);
  EXPECT_EQ(marks->marked("Stamps"), "Date");
}

TEST_F(MarksTrialTest, IsInertWithoutAPpd) {
  Marks nothing(PrinterDescription::none());
  { const MarksTrial trial(nothing); }
  EXPECT_TRUE(nothing.all().isEmpty());
}

}  // namespace
}  // namespace orvek::test
