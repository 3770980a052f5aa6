// SPDX-License-Identifier: Apache-2.0
// What a session's marks, ticket and settings come to as a job of sheets.

#include "host/preview/JobLayout.h"

#include <gtest/gtest.h>

#include "host/session/ActionScope.h"
#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek {
namespace {

using namespace imposition;

class JobLayoutTest : public testing::Test {
 protected:
  void SetUp() override {
    SessionSetup setup;
    setup.printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
            .take();
    session = PrintSession::begin(setup).take();
  }

  void write(const char *key, const QVariant &value) {
    {
      const ActionScope action(*session);
      session->ticket().setValue(QString::fromLatin1(key), value);
    }
  }
  void pick(const char *option, const char *choice) {
    session->pick(QString::fromLatin1(option), QString::fromLatin1(choice));
  }

  std::unique_ptr<PrintSession> session;
};

TEST_F(JobLayoutTest, HasThePapersSizeAndPrintableArea) {
  EXPECT_EQ(sheetJobOf(*session).filters.paper, (Size{595, 842}));
  EXPECT_EQ(sheetJobOf(*session).filters.printable, (Frame{12, 12, 571, 818}));
  pick("PageSize", "Letter");
  EXPECT_EQ(sheetJobOf(*session).filters.paper, (Size{612, 792}));
  pick("PageSize", "Custom.300x200");
  EXPECT_EQ(sheetJobOf(*session).filters.paper, (Size{300, 200}));
}

TEST_F(JobLayoutTest, FollowsMarksForSidesAndFinishing) {
  EXPECT_FALSE(sheetJobOf(*session).twoSided);
  pick("Duplex", "DuplexTumble");
  EXPECT_TRUE(sheetJobOf(*session).twoSided);
  EXPECT_TRUE(sheetJobOf(*session).turnsOverShortEdge);
  pick("Duplex", "DuplexNoTumble");
  EXPECT_FALSE(sheetJobOf(*session).turnsOverShortEdge);
  pick("OVKStapling", "Rear");
  EXPECT_EQ(sheetJobOf(*session).finishing.cornerStaple, Corner::TopLeft);
  pick("OVKFolding", "Saddle");
  EXPECT_EQ(sheetJobOf(*session).finishing.fold, "Saddle");
}

TEST_F(JobLayoutTest, FollowsJobSettings) {
  JobSettings settings;
  settings.pageRanges = QStringLiteral("2-4,7,9-");
  settings.reverse = true;
  settings.orientation = Orientation::ReverseLandscape;
  session->job().setSettings(settings);
  session->job().setPagesPerSheet(6);
  const SheetJob job = sheetJobOf(*session);
  EXPECT_EQ(job.filters.sides.ranges, (std::vector<PageRange>{{2, 4}, {7, 7}, {9, 0}}));
  EXPECT_TRUE(job.filters.sides.reverse);
  EXPECT_EQ(job.filters.turning, Turning::ReverseLandscape);
  EXPECT_EQ(job.filters.pagesPerSide, 6);
}

TEST_F(JobLayoutTest, FollowsThePrintServersWords) {
  write("print-scaling", QStringLiteral("fill"));
  write("number-up-layout", QStringLiteral("tblr"));
  write("page-set", QStringLiteral("even"));
  const SheetJob job = sheetJobOf(*session);
  EXPECT_EQ(job.filters.scaling, Scaling::Fill);
  EXPECT_EQ(job.filters.order, "tblr");
  EXPECT_EQ(job.filters.sides.parity, Parity::Even);
}

TEST_F(JobLayoutTest, ReadsTheBookletAndItsTargetPaper) {
  write("OVKEnableBooklet", QStringLiteral("True"));
  write("OVKGutter", 48);
  write("OVKTargetPaperSize", 1);
  SheetJob job = sheetJobOf(*session);
  EXPECT_TRUE(job.booklet.enabled);
  EXPECT_EQ(job.booklet.gutter, 48);
  EXPECT_EQ(job.bookletPaper, (Size{842, 1191}));
  session->job().setPagesPerSheet(2);
  EXPECT_FALSE(sheetJobOf(*session).booklet.enabled);
}

TEST_F(JobLayoutTest, DoesWithoutAPrinterDescription) {
  session = PrintSession::begin({}).take();
  EXPECT_EQ(sheetJobOf(*session).filters.paper, (Size{595, 842}));
  write("sides", QStringLiteral("two-sided-short-edge"));
  write("media", QStringLiteral("na_letter_8.5x11in"));
  const SheetJob job = sheetJobOf(*session);
  EXPECT_TRUE(job.twoSided);
  EXPECT_TRUE(job.turnsOverShortEdge);
  EXPECT_NEAR(job.filters.paper.width, 612, 0.1);
  EXPECT_NEAR(job.filters.paper.height, 792, 0.1);
}

TEST_F(JobLayoutTest, LeavesPicturesWhereTheFiltersPlacedThem) {
  session->job().setPagesPerSheet(4);
  DocumentPages picture;
  picture.pages = {DocumentPage{QSizeF(595, 842), {0, 0, 1, 1}}};
  picture.isPlaced = true;
  const auto sides = sidesOf(picture, sheetJobOf(*session));
  ASSERT_EQ(sides.size(), 1U);
  EXPECT_EQ(sides[0].pages.at(0).frame, (Frame{0, 0, 595, 842}));
}

TEST_F(JobLayoutTest, FitsSeveralPagesOfPostScriptAsItsFiltersDo) {
  session->job().setPagesPerSheet(4);
  DocumentPages script;
  script.pages = QList<DocumentPage>(4, DocumentPage{QSizeF(595, 842), {0, 0, 1, 1}});
  script.isScript = true;
  const auto sides = sidesOf(script, sheetJobOf(*session));
  ASSERT_EQ(sides.size(), 1U);
  EXPECT_NEAR(sides[0].pages.at(0).frame.x, 12, 1);
  EXPECT_NEAR(sides[0].pages.at(0).frame.width, 285.5, 2);
}

}  // namespace
}  // namespace orvek
