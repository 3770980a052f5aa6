// SPDX-License-Identifier: Apache-2.0
// Booklets through the whole chain of filters, looked at.

#include <gtest/gtest.h>

#include <QDir>
#include <algorithm>

#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

using imposition::BookletKeys;
using imposition::Size;

constexpr Size a4{595, 842};
const QString kBooklet = QStringLiteral("OVKEnableBooklet");

std::vector<SeenSide> booklet(int pages, Size paper, const BookletKeys &keys = {}, Size page = a4) {
  const std::vector<Size> sizes(static_cast<std::size_t>(pages), page);
  return expectedSides(imposition::imposeBooklet(sizes, paper, keys), paper);
}

/// The same sides with other numbers on their pages.
std::vector<SeenSide> renumbered(std::vector<SeenSide> sides, int (*number)(int)) {
  for (SeenSide &side : sides) {
    for (SeenPage &page : side.pages) page.page = number(page.page);
    std::sort(side.pages.begin(), side.pages.end(),
              [](const SeenPage &a, const SeenPage &b) { return a.page < b.page; });
  }
  return sides;
}

class BookletPrint : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
  }

  std::vector<SeenSide> print(const QStringList &options, const QString &file) {
    printed = printThrough(kit.ppd(), options, file);
    EXPECT_EQ(printed.exitStatus, 0) << printed.messages.join(u'\n').toStdString();
    return look(kit.write(QStringLiteral("out.ps"), printed.output.toStdString()).toStdString());
  }

  std::vector<SeenSide> printPages(int pages, QStringList options) {
    return print(options << kBooklet, kit.write(QStringLiteral("in.pdf"), markedDocument(pages)));
  }

  int count(const char *text) const { return int(printed.output.count(text)); }

  DriverKit kit;
  Printed printed;
};

TEST_F(BookletPrint, PutsEightPagesOnTwoSheetsTurnedOverAtTheShortEdge) {
  expectSeen(printPages(8, {QStringLiteral("sides=one-sided"), QStringLiteral("Duplex=None")}),
             booklet(8, a4));
  EXPECT_EQ(count("%%BeginFeature: *Duplex DuplexTumble"), 1);
  EXPECT_EQ(printed.lines(QStringLiteral("PAGE: ")).size(), 4);
}

TEST_F(BookletPrint, CarriesOutEveryKey) {
  expectSeen(
      printPages(5, {QStringLiteral("OVKRightToLeft=True"), QStringLiteral("OVKGutter=36"),
                     QStringLiteral("OVKCreep=-12"), QStringLiteral("OVKTargetPaperSize=1")}),
      booklet(5, {842, 1191}, {true, true, false, 36, -12, 1}));
}

TEST_F(BookletPrint, DrawsFramesAroundPages) {
  printPages(1, {QStringLiteral("OVKPrintPageBorders")});
  const QByteArray with = printed.output;
  printPages(1, {QStringLiteral("noOVKPrintPageBorders")});
  EXPECT_NE(withoutDates(with), withoutDates(printed.output));
}

TEST_F(BookletPrint, UsesTheJobsPaper) {
  const std::vector<MarkedPage> pages(4, {{842, 1191}});
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(pages));
  expectSeen(print({kBooklet, QStringLiteral("media=A3")}, file),
             booklet(4, {842, 1191}, {}, {842, 1191}));
}

TEST_F(BookletPrint, ChoosesPagesFirst) {
  expectSeen(printPages(8, {QStringLiteral("page-ranges=3-7")}),
             renumbered(booklet(5, a4), [](int page) { return page + 2; }));
}

TEST_F(BookletPrint, TurnsTheOrderOfPagesRoundFirst) {
  expectSeen(printPages(8, {QStringLiteral("outputorder=reverse")}),
             renumbered(booklet(8, a4), [](int page) { return 9 - page; }));
}

TEST_F(BookletPrint, BeginsAReversedBookletWithTheLastPageThoughThereIsAnOddNumber) {
  expectSeen(printPages(5, {QStringLiteral("outputorder=reverse"),
                            QStringLiteral("sides=two-sided-long-edge")}),
             renumbered(booklet(5, a4), [](int page) { return 6 - page; }));
}

TEST_F(BookletPrint, ReadsInTheDocumentsOrderThoughTheTrayWantsTheLastSideFirst) {
  kit.addToPPD("*DefaultOutputOrder: Reverse\n");
  std::vector<SeenSide> sides = booklet(5, a4);
  std::reverse(sides.begin(), sides.end());
  expectSeen(printPages(5, {QStringLiteral("sides=two-sided-long-edge")}), sides);
  sides = renumbered(booklet(8, a4), [](int page) { return 9 - page; });
  std::reverse(sides.begin(), sides.end());
  expectSeen(printPages(8, {QStringLiteral("outputorder=reverse")}), sides);
}

TEST_F(BookletPrint, SaysThatNoPageIsLeftToPrint) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(3));
  printed = printThrough(kit.ppd(), {kBooklet, QStringLiteral("page-ranges=7-9")}, file);
  EXPECT_NE(printed.exitStatus, 0);
  const QStringList said = printed.lines(QStringLiteral("ERROR: the document: "));
  ASSERT_EQ(said.size(), 1);
  EXPECT_TRUE(said[0].contains(QStringLiteral("page ranges"))) << said[0].toStdString();
}

TEST_F(BookletPrint, MakesEachCopyABooklet) {
  printPages(4, {QStringLiteral("-n 2"), QStringLiteral("Collate=False")});
  EXPECT_EQ(count("%%Page: "), 2);
  EXPECT_EQ(count("%RBINumCopies: 2"), 1);
  EXPECT_EQ(count("%%BeginFeature: *Collate True"), 1);
  EXPECT_EQ(printed.lines(QStringLiteral("PAGE: ")),
            (QStringList{QStringLiteral("1 2"), QStringLiteral("2 2")}));
}

TEST_F(BookletPrint, KeepsTheOtherFeatures) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(4));
  const QStringList options{QStringLiteral("OVKFolding=Saddle"),
                            QStringLiteral("Duplex=DuplexTumble"),
                            QStringLiteral("OutputBin=Booklet"), QStringLiteral("InputSlot=Tray2")};
  const auto features = [](const QByteArray &postScript) {
    QList<QByteArray> found;
    for (const QByteArray &line : postScript.split('\n')) {
      if (line.startsWith("%%BeginFeature")) found << line;
    }
    return found;
  };
  const Printed plain = printThrough(kit.plainPPD(), options, file);
  print(QStringList(options) << kBooklet, file);
  EXPECT_EQ(features(printed.output), features(plain.output));
}

/// A page from a marked one of A4 size, by way of another format.
const char *const kPostScript =
    "%%!PS-Adobe-3.0\n%%%%Pages: 4\n%%%%EndComments\n"
    "1 1 4 { /n exch def\n"
    "%% a page's colour: its number in the red part\n"
    "70 n 1 sub 40 mul add 255 div 70 255 div 70 255 div setrgbcolor 0 0 595 842 rectfill\n"
    "0 setgray 1 setlinewidth .5 .5 594 841 rectstroke\n"
    "595 4 div 842 .9 mul 595 2 div 842 20 div rectfill showpage } for\n%%%%EOF\n";

std::string postScript() {
  return QString::asprintf("%s", kPostScript)
      .replace(QStringLiteral("%%"), QStringLiteral("%"))
      .toStdString();
}

TEST_F(BookletPrint, TakesPostScript) {
  const QString file = kit.write(QStringLiteral("in.ps"), postScript());
  expectSeen(print({kBooklet}, file), booklet(4, a4));
}

TEST_F(BookletPrint, FitsPagesOntoPaperOnceInWhicheverWordsItIsAskedFor) {
  const QString file = kit.write(QStringLiteral("in.ps"), postScript());
  const std::vector<SeenSide> fitted = print({kBooklet, QStringLiteral("fit-to-page")}, file);
  expectSeen(print({kBooklet, QStringLiteral("ipp-attribute-fidelity")}, file), fitted);
}

TEST_F(BookletPrint, TakesTextAndImages) {
  const auto sidesOf = [&](const QString &file) {
    print({kBooklet}, file);
    return printed.lines(QStringLiteral("PAGE: ")).size();
  };
  EXPECT_EQ(sidesOf(kit.write(QStringLiteral("in.txt"), "text\n")), 2);
  EXPECT_EQ(sidesOf(kit.write(QStringLiteral("in.ppm"), "P6 2 1 255\nabcdef")), 2);
  EXPECT_EQ(count("%%BeginFeature: *Duplex DuplexTumble"), 1);
}

TEST_F(BookletPrint, LeavesNothingBehind) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(3));
  const QStringList before = QDir(kit.path(QString())).entryList(QDir::Files);
  EXPECT_EQ(runDriverAlone(kit, kBooklet, file).exitStatus, 0);
  EXPECT_EQ(QDir(kit.path(QString())).entryList(QDir::Files), before);
}

TEST_F(BookletPrint, KeepsItsFilesWhereItIsToldTo) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(3));
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("PPD"), kit.ppd());
  environment.insert(QStringLiteral("TMPDIR"), kit.path(QStringLiteral("no-such-folder")));
  const Printed refused = runDriverIn(environment, kit, kBooklet, file);
  EXPECT_EQ(refused.exitStatus, 1);
  ASSERT_EQ(refused.lines(QStringLiteral("ERROR: ")).size(), 1);
  EXPECT_TRUE(refused.lines(QStringLiteral("ERROR: "))[0].contains("no-such-folder"));
}

TEST_F(BookletPrint, FailsWhereTheDiskIsFull) {
  const QString document = kit.write(QStringLiteral("in.pdf"), markedDocument(3));
  const QString script = kit.write(QStringLiteral("in.ps"), "%!PS\nshowpage\n");
  auto environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("PPD"), kit.ppd());
  environment.insert(QStringLiteral("CUPS_SERVERBIN"), QStringLiteral("/usr/lib/cups"));
  for (const QString &options : {kBooklet, QString()}) {
    for (const QString &file : {document, script}) {
      const Printed full =
          runDriverIn(environment, kit, options, file, QStringLiteral("/dev/full"));
      EXPECT_EQ(full.exitStatus, 1) << options.toStdString() << file.toStdString();
      EXPECT_EQ(full.lines(QStringLiteral("ERROR: ")),
                QStringList{QStringLiteral("what is printed: No space left on device")});
    }
  }
}

TEST_F(BookletPrint, WritesSheetsInsteadOfPrintingThem) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(6));
  const Printed sheets =
      runDriverAlone(kit, QStringLiteral("OVKGutter=0"), file, {}, {QStringLiteral("--sheets")});
  const QString out = kit.write(QStringLiteral("sheets.pdf"), sheets.output.toStdString());
  BookletKeys keys;
  keys.gutter = 0;
  expectSeen(look(out.toStdString()), booklet(6, a4, keys));
}

TEST_F(BookletPrint, SaysInOneLineThatADocumentLacksPages) {
  const QString file = kit.write(
      QStringLiteral("in.pdf"),
      pdfOf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 3/Kids[3 0 R 4 0 R 5 0 R]>>",
             "<</Type/Page/Parent 2 0 R/MediaBox[0 0 595 842]>>", "null"}));
  const QStringList sheets{QStringLiteral("--sheets")};
  const Printed lacking = runDriverAlone(kit, kBooklet, file, {}, sheets);
  EXPECT_EQ(lacking.exitStatus, 0);
  const QString warning = QStringLiteral("WARNING: ");
  EXPECT_EQ(lacking.lines(warning),
            QStringList{"the document: it lacks 2 of its pages, which stay blank"});
  const QString whole = kit.write(QStringLiteral("whole.pdf"), markedDocument(3));
  EXPECT_EQ(runDriverAlone(kit, kBooklet, whole, {}, sheets).lines(warning), QStringList());
}

TEST_F(BookletPrint, SaysInOneLineWhatIsWrongWithADocument) {
  const QString file = kit.write(QStringLiteral("in.pdf"), "no document\n");
  printed = runDriverAlone(kit, kBooklet, file);
  EXPECT_EQ(printed.exitStatus, 1);
  ASSERT_EQ(printed.lines(QStringLiteral("ERROR: ")).size(), 1);
  EXPECT_TRUE(
      printed.lines(QStringLiteral("ERROR: "))[0].startsWith(QStringLiteral("the document: ")));
  EXPECT_TRUE(printed.output.isEmpty());
}

}  // namespace
}  // namespace orvek::test
