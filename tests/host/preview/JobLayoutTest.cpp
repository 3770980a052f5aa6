// SPDX-License-Identifier: Apache-2.0
// What a session's marks, ticket and settings come to as a job of sheets.

#include "host/preview/JobLayout.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "host/session/ActionScope.h"
#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek {
namespace {

using namespace imposition;

SheetJob sheetJobOf(PrintSession &session) {
  return laidOutJobOf(session).sheets;
}

int copiesOf(PrintSession &session) {
  return laidOutJobOf(session).copies;
}

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
      session->setTicketValue(QString::fromLatin1(key), value);
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

TEST_F(JobLayoutTest, KnowsTheOneWordForTheOrderThatTheFilterOfPostScriptKnows) {
  write("page-delivery", QStringLiteral("reverse-order"));
  EXPECT_TRUE(sheetJobOf(*session).filters.sides.reverse);
  EXPECT_FALSE(sheetJobOf(*session).isScriptReversed);
  write("OutputOrder", QStringLiteral("Reverse"));
  EXPECT_TRUE(sheetJobOf(*session).isScriptReversed);
}

TEST_F(JobLayoutTest, KnowsWhichWordsTheFilterOfPostScriptFits) {
  EXPECT_FALSE(sheetJobOf(*session).filters.fitsScripts);
  write("fitplot", QStringLiteral("true"));
  write("print-scaling", QStringLiteral("fit"));
  write("fit-to-page", QStringLiteral("yes"));
  EXPECT_FALSE(sheetJobOf(*session).filters.fitsScripts);
  write("fit-to-page", QStringLiteral("True"));
  EXPECT_TRUE(sheetJobOf(*session).filters.fitsScripts);
  write("fit-to-page", {});
  write("ipp-attribute-fidelity", QStringLiteral("true"));
  EXPECT_TRUE(sheetJobOf(*session).filters.fitsScripts);
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

TEST_F(JobLayoutTest, FollowsTheFiltersOwnBookletPlacesAndMirror) {
  write("booklet", QStringLiteral("on"));
  write("booklet-signature", QStringLiteral("8"));
  write("position", QStringLiteral("Top-Left"));
  write("mirror", QStringLiteral("true"));
  const SheetJob job = sheetJobOf(*session);
  EXPECT_EQ(job.filters.booklet, OwnBooklet::Sides);
  EXPECT_EQ(job.filters.signature, 8);
  EXPECT_EQ(job.filters.position, (Position{Position::Across::Left, Position::Down::Top}));
  EXPECT_TRUE(job.filters.isMirrored);
  write("booklet", QStringLiteral("shuffle-only"));
  EXPECT_EQ(sheetJobOf(*session).filters.booklet, OwnBooklet::Order);
}

TEST_F(JobLayoutTest, ReadsNamesAndWordsInLettersOfEitherCase) {
  write("ovkenablebooklet", QStringLiteral("TRUE"));
  write("OvkGutter", 40);
  write("Print-Scaling", QStringLiteral("Fit"));
  write("PAGE-SET", QStringLiteral("Odd"));
  write("Number-Up-Layout", QStringLiteral("RLTB"));
  const SheetJob job = sheetJobOf(*session);
  EXPECT_TRUE(job.booklet.enabled);
  EXPECT_EQ(job.booklet.gutter, 40);
  EXPECT_EQ(job.filters.scaling, Scaling::Fit);
  EXPECT_EQ(job.filters.sides.parity, Parity::Odd);
  EXPECT_EQ(job.filters.order, "rltb");
}

TEST_F(JobLayoutTest, FollowsJobSettingsThatATicketBrings) {
  write("copies", 3);
  write("page-ranges", QStringLiteral("2"));
  write("outputorder", QStringLiteral("reverse"));
  write("landscape", QStringLiteral("true"));
  write("number-up", 4);
  const SheetJob job = sheetJobOf(*session);
  EXPECT_EQ(copiesOf(*session), 3);
  EXPECT_EQ(job.filters.sides.ranges, (std::vector<PageRange>{{2, 2}}));
  EXPECT_TRUE(job.filters.sides.reverse);
  EXPECT_EQ(job.filters.turning, Turning::Landscape);
  EXPECT_EQ(job.filters.pagesPerSide, 4);
}

TEST_F(JobLayoutTest, FollowsWhatIsSavedForTheQueue) {
  SessionSetup setup;
  setup.printer = PrinterDescription::open(session->origin().printer->path()).take();
  setup.destination = QStringLiteral("queue");
  setup.queueOptions = {{QStringLiteral("number-up"), QStringLiteral("2")},
                        {QStringLiteral("copies"), QStringLiteral("2")},
                        {QStringLiteral("sides"), QStringLiteral("two-sided-short-edge")}};
  session = PrintSession::begin(setup).take();
  EXPECT_EQ(sheetJobOf(*session).filters.pagesPerSide, 2);
  EXPECT_EQ(copiesOf(*session), 2);
  EXPECT_TRUE(sheetJobOf(*session).turnsOverShortEdge);
  session->job().setPagesPerSheet(4);
  pick("Duplex", "None");
  EXPECT_EQ(sheetJobOf(*session).filters.pagesPerSide, 4);
  EXPECT_FALSE(sheetJobOf(*session).twoSided);
}

TEST_F(JobLayoutTest, TurnsOrderRoundAsATrayThatPilesFaceUpWantsIt) {
  const QTemporaryDir folder;
  QFile family(session->origin().printer->path());
  QFile faceUp(folder.filePath(QStringLiteral("face-up.ppd")));
  ASSERT_TRUE(family.open(QIODevice::ReadOnly) && faceUp.open(QIODevice::WriteOnly));
  faceUp.write(family.readAll() + "*DefaultOutputOrder: Reverse\n");
  faceUp.close();
  SessionSetup setup;
  setup.printer = PrinterDescription::open(faceUp.fileName()).take();
  session = PrintSession::begin(setup).take();
  const auto first = [this] {
    DocumentPages document;
    document.pages = QList<DocumentPage>(5, DocumentPage{QSizeF(595, 842)});
    return sidesOf(document, sheetJobOf(*session)).at(0).pages.at(0).page;
  };
  // Two of the standard filters turn it round, each for itself.
  EXPECT_EQ(first(), 1);
  write("outputorder", QStringLiteral("normal"));
  EXPECT_EQ(first(), 5);
  write("outputorder", QStringLiteral("reverse"));
  EXPECT_EQ(first(), 1);
}

TEST_F(JobLayoutTest, TurnsLandscapeAsThePrinterDoesAndNumbersAsTheySay) {
  const QTemporaryDir folder;
  QFile family(session->origin().printer->path());
  QFile turnsRight(folder.filePath(QStringLiteral("turns-right.ppd")));
  ASSERT_TRUE(family.open(QIODevice::ReadOnly) && turnsRight.open(QIODevice::WriteOnly));
  turnsRight.write(
      family.readAll().replace("LandscapeOrientation: Plus90", "LandscapeOrientation: Minus90"));
  turnsRight.close();
  SessionSetup setup;
  setup.printer = PrinterDescription::open(turnsRight.fileName()).take();
  session = PrintSession::begin(setup).take();
  write("landscape", QStringLiteral("true"));
  EXPECT_EQ(sheetJobOf(*session).filters.turning, Turning::ReverseLandscape);
  write("landscape", QStringLiteral("no"));
  EXPECT_EQ(sheetJobOf(*session).filters.turning, Turning::Portrait);
  session = PrintSession::begin(setup).take();
  write("orientation-requested", QStringLiteral("4"));
  EXPECT_EQ(sheetJobOf(*session).filters.turning, Turning::Landscape);
}

TEST_F(JobLayoutTest, KnowsWhatIsPrintedInGray) {
  EXPECT_FALSE(sheetJobOf(*session).inGray);
  pick("ColorModel", "Gray");
  EXPECT_TRUE(sheetJobOf(*session).inGray);
  session = PrintSession::begin({}).take();
  EXPECT_FALSE(sheetJobOf(*session).inGray);
  write("print-color-mode", QStringLiteral("monochrome"));
  EXPECT_TRUE(sheetJobOf(*session).inGray);
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
