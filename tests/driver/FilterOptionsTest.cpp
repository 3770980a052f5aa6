// SPDX-License-Identifier: Apache-2.0
// Options as the scheduler writes them.

#include "driver/FilterOptions.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "driver/BookletJob.h"
#include "driver/JobPaper.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::driver {
namespace {

TEST(FilterOptions, ReadBooleansInTheirShortForm) {
  const FilterOptions options("OVKEnableBooklet noOVKRightToLeft OVKGutter=36");
  EXPECT_EQ(options.value("OVKEnableBooklet"), "true");
  EXPECT_EQ(options.value("OVKRightToLeft"), "false");
  EXPECT_EQ(options.value("OVKGutter"), "36");
  EXPECT_EQ(options.value("OVKCreep"), std::nullopt);
}

TEST(FilterOptions, SayOfSheetsOnlyHowABookletsAreTurnedOver) {
  FilterOptions options(
      "JCLDuplex=DuplexNoTumble EFDuplex=True ARDuplex=None KD03Duplex=None Duplex=None "
      "Collate=False "
      "multiple-document-handling=separate-documents-uncollated-copies sides=one-sided copies=2");
  prepareForSheets(&options, {});
  for (const char *name :
       {"JCLDuplex", "EFDuplex", "ARDuplex", "KD03Duplex", "multiple-document-handling"}) {
    EXPECT_EQ(options.value(name), std::nullopt) << name;
  }
  EXPECT_EQ(options.value("Duplex"), "DuplexTumble");
  EXPECT_EQ(options.value("sides"), "two-sided-short-edge");
  EXPECT_EQ(options.value("Collate"), "True");
  EXPECT_EQ(options.value("copies"), "2");
}

TEST(FilterOptions, FindNamesInLettersOfEitherCase) {
  EXPECT_EQ(FilterOptions("ovkgutter=36").value("OVKGutter"), "36");
}

TEST(FilterOptions, AreTheSameOnceWrittenAndReadAgain) {
  const FilterOptions options(
      "title=a\\ b\\'c quoted=\"x y\" empty= media-col={media-size={x-dimension=1 y-dimension=2}} "
      "path=a\\\\b open=\\{x page=a\\{1\\}\\{2\\} feed=a\\\fb flag");
  const FilterOptions again(options.text());
  for (const char *name :
       {"title", "quoted", "empty", "media-col", "path", "open", "page", "feed", "flag"}) {
    EXPECT_EQ(again.value(name), options.value(name)) << name;
  }
}

TEST(SheetOptions, TurnSheetsOverAtTheShortEdgeWhateverTheJobSaid) {
  FilterOptions options(
      "sides=two-sided-long-edge Duplex=None Collate=False collate=false OVKJog=True");
  prepareForSheets(&options, "");
  EXPECT_EQ(options.value("sides"), "two-sided-short-edge");
  EXPECT_EQ(options.value("Duplex"), "DuplexTumble");
  EXPECT_EQ(options.value("Collate"), "True");
  EXPECT_EQ(options.value("OVKJog"), "True");
}

TEST(SheetOptions, DoNothingTwice) {
  FilterOptions options(
      "page-ranges=1-4 outputorder=reverse landscape number-up=1 OVKEnableBooklet");
  prepareForSheets(&options, "");
  for (const char *done : {"page-ranges", "outputorder", "landscape", "number-up"}) {
    EXPECT_EQ(options.value(done), std::nullopt) << done;
  }
}

TEST(SheetOptions, NameTheTargetPaperAndNoOther) {
  FilterOptions options("media=A5 PageRegion=A6 media-col={media-size-name=x}");
  prepareForSheets(&options, "A3");
  EXPECT_EQ(options.value("PageSize"), "A3");
  for (const char *other : {"media", "PageRegion", "media-col"}) {
    EXPECT_EQ(options.value(other), std::nullopt) << other;
  }
}

TEST(SheetOptions, KeepTheJobsPaperWithoutATarget) {
  FilterOptions options("media=A5");
  prepareForSheets(&options, "");
  EXPECT_EQ(options.value("media"), "A5");
}

std::optional<JobPaper> paperWith(const std::string &options, int targetPaper = 0) {
  imposition::BookletKeys keys;
  keys.targetPaper = targetPaper;
  const std::string ppd = orvek::test::orvekPPD(QStringLiteral("6180")).toStdString();
  return sheetFactsIn(ppd, FilterOptions(options), keys).paper;
}

TEST(JobPaper, IsWhatTheJobAsksFor) {
  EXPECT_EQ(paperWith("").value().size, (imposition::Size{595, 842}));
  EXPECT_EQ(paperWith("media=A5").value().size, (imposition::Size{420, 595}));
  EXPECT_EQ(paperWith("PageSize=Letter").value().size, (imposition::Size{612, 792}));
  EXPECT_EQ(paperWith("PageSize=Custom.300x500").value().size, (imposition::Size{300, 500}));
}

TEST(JobPaper, IsTheTargetPaperWhereOneIsChosen) {
  const auto paper = paperWith("media=A5", 1);
  ASSERT_TRUE(paper);
  EXPECT_EQ(paper->pageSize, "A3");
  EXPECT_EQ(paper->size, (imposition::Size{842, 1191}));
  EXPECT_EQ(paperWith("", 15).value().pageSize, "EnvC5");
}

TEST(JobPaper, IsTheJobsOwnForATargetThatIsNone) {
  for (const int target : {-1, 0, 16, 1000}) {
    EXPECT_EQ(paperWith("media=A5", target).value().size, (imposition::Size{420, 595}));
    EXPECT_EQ(paperWith("media=A5", target).value().pageSize, "");
  }
}

TEST(JobPaper, IsUnknownWithoutAPPD) {
  for (const char *ppd : {"", "/nowhere.ppd"}) {
    const SheetFacts facts = sheetFactsIn(ppd, FilterOptions("media=A5"), {});
    EXPECT_FALSE(facts.paper) << ppd;
    EXPECT_FALSE(facts.wantsLastFirst) << ppd;
  }
}

TEST(JobOrder, IsThatOfTheTrayOrElseOfThePrinterUnlessTheJobMarksOne) {
  const QTemporaryDir folder;
  const QByteArray ppd = orvek::test::contentsOf(orvek::test::orvekPPD(QStringLiteral("6180")));
  const auto lastFirst = [&](const QByteArray &lines, const std::string &options) {
    const QString path = folder.filePath(QStringLiteral("printer.ppd"));
    orvek::test::writeContents(path, ppd + lines);
    return sheetFactsIn(path.toStdString(), FilterOptions(options), {}).wantsLastFirst;
  };
  const QByteArray habit = "*DefaultOutputOrder: Reverse\n";
  const QByteArray tray = "*PageStackOrder Standard: REVERSE\n";
  EXPECT_FALSE(lastFirst({}, "OutputBin=Standard"));
  EXPECT_TRUE(lastFirst(tray, "OutputBin=Standard"));
  EXPECT_FALSE(lastFirst(tray, "OutputBin=OffsetBin"));
  EXPECT_TRUE(lastFirst(habit, "OutputBin=OffsetBin"));
  EXPECT_FALSE(lastFirst(habit + "*PageStackOrder Standard: Normal\n", "OutputBin=Standard"));
  const QByteArray option =
      "*OpenUI *OutputOrder/Order: PickOne\n*DefaultOutputOrder: Reverse\n"
      "*OutputOrder Normal/First: \"\"\n*OutputOrder Reverse/Last: \"\"\n*CloseUI: *OutputOrder\n";
  EXPECT_TRUE(lastFirst(option, {}));
  EXPECT_FALSE(lastFirst(option, "OutputOrder=Normal"));
}

}  // namespace
}  // namespace orvek::driver
