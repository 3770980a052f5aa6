// SPDX-License-Identifier: Apache-2.0
// Documents imposed without any other filter, and looked at.

#include "driver/Imposer.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>
#include <algorithm>

#include "driver/TemporaryFile.h"
#include "imposition/Booklet.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/Dice.h"

namespace orvek::driver {
namespace {

using imposition::BookletKeys;
using imposition::Size;
using orvek::test::expectedSides;
using orvek::test::expectSeen;
using orvek::test::look;
using orvek::test::markedDocument;
using orvek::test::MarkedPage;
using orvek::test::SeenSide;

constexpr Size a4{595, 842};

class Imposer : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!orvek::test::obstacleToLooking().empty()) GTEST_SKIP() << orvek::test::obstacleToLooking();
  }

  std::vector<SeenSide> imposed(const std::string &document, const BookletRequest &request) {
    const QString in = folder.filePath(QStringLiteral("in.pdf"));
    orvek::test::writeContents(in, QByteArray::fromStdString(document));
    const std::string out = folder.filePath(QStringLiteral("out.pdf")).toStdString();
    const File input(std::fopen(in.toUtf8().constData(), "rb"));
    const File output(std::fopen(out.c_str(), "wb"));
    const auto sides = imposeDocument(input.get(), output.get(), request);
    EXPECT_TRUE(sides) << sides.failure().line().toStdString();
    const auto seen = look(out);
    EXPECT_EQ(sides.value().sides, std::ssize(seen));
    return seen;
  }

  void expectBooklet(const std::vector<MarkedPage> &pages, Size paper, const BookletKeys &keys) {
    std::vector<Size> sizes;
    sizes.reserve(pages.size());
    for (const MarkedPage &page : pages) sizes.push_back(page.size);
    expectSeen(imposed(markedDocument(pages), {keys, paper, false}),
               expectedSides(imposition::imposeBooklet(sizes, paper, keys), paper));
  }

  QTemporaryDir folder;
};

TEST_F(Imposer, PutsPagesWhereTheGeometrySays) {
  expectBooklet(std::vector<MarkedPage>(8), a4, {});
}

TEST_F(Imposer, StandsWidePapersBacksTheRightWayUp) {
  expectBooklet(std::vector<MarkedPage>(4), {842, 595}, {});
}

TEST_F(Imposer, HonoursRotatedPages) {
  expectBooklet({{{595, 842}, 90}, {{595, 842}, 180}, {{595, 842}, 270}, {{842, 595}, 90}}, a4, {});
}

TEST_F(Imposer, ShowsWhatTheCropBoxShows) {
  expectBooklet({{{300, 500}, 0, 60}, {{500, 300}, 90, 25}, {{400, 400}, 270, 100}}, a4, {});
}

TEST_F(Imposer, AgreesWithTheGeometryOfRandomBooklets) {
  for (unsigned seed = 1; seed <= 12; ++seed) {
    SCOPED_TRACE(seed);
    orvek::test::Dice dice(seed);
    const auto between = [&](int least, int most) { return dice.from(least, most); };
    std::vector<MarkedPage> pages(static_cast<std::size_t>(between(1, 12)));
    for (MarkedPage &page : pages) {
      page = {{double(between(200, 1200)), double(between(200, 1200))},
              90 * between(0, 3),
              double(between(0, 50))};
    }
    const BookletKeys keys{true, between(0, 1) == 1, false, between(0, 144), between(-36, 36), 0};
    expectBooklet(pages, {double(between(300, 900)), double(between(300, 900))}, keys);
  }
}

TEST_F(Imposer, TakesItsPaperFromTheFirstPageWhereNothingElseTells) {
  const auto seen = imposed(markedDocument({{{300, 500}, 90}, {}}), {{}, std::nullopt, false});
  EXPECT_EQ(seen.at(0).paper, (Size{300, 500}));
}

TEST_F(Imposer, DropsTheBlankPageThatEvenedAReversedDocumentOut) {
  const std::string document = orvek::test::pdfOf(
      {"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 2/Kids[3 0 R 4 0 R]>>",
       "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]/Contents 5 0 R/Resources<</XObject<<>>>>>>",
       "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]/Contents 6 0 R>>",
       orvek::test::streamOf("q\nQ\n"), orvek::test::streamOf(".3 .3 .3 rg 0 0 100 200 re f")});
  const auto pageOne = [](const std::vector<SeenSide> &sides) { return sides.at(0).pages.size(); };
  EXPECT_EQ(pageOne(imposed(document, {{}, a4, true})), 1U);
  EXPECT_EQ(pageOne(imposed(document, {{}, a4, false})), 0U);
}

/// One page with these objects from number 4 on; what lies before them is written here.
std::string onePage(const std::string &pageEntries, std::vector<std::string> objects) {
  objects.insert(objects.begin(),
                 {"<</Type/Catalog/Pages 2 0 R/AcroForm<</Fields[5 0 R]/NeedAppearances true"
                  "/DA(/Helv 12 Tf)/DR<</Font<</Helv 6 0 R>>>>>>>>",
                  "<</Type/Pages/Count 1/Kids[3 0 R]/MediaBox[0 0 595 842]>>",
                  "<</Type/Page/Parent 2 0 R" + pageEntries + ">>"});
  return orvek::test::pdfOf(objects);
}

const std::string filled = ".2745098 .2745098 .2745098 rg 0 0 595 842 re f";

TEST_F(Imposer, JoinsContentsThatComeInPieces) {
  const auto seen =
      imposed(onePage("/Contents[4 0 R 5 0 R]", {orvek::test::streamOf(filled.substr(0, 30)),
                                                 orvek::test::streamOf(filled.substr(30))}),
              {{}, a4, false});
  ASSERT_EQ(seen.at(0).pages.size(), 1U);
  EXPECT_EQ(seen[0].pages[0].page, 1);
}

TEST_F(Imposer, LeavesOutLayersThatAreHidden) {
  const auto pagesSeen = [this](const std::string &hidden) {
    const auto seen = imposed(
        orvek::test::pdfOf(
            {"<</Type/Catalog/Pages 2 0 R/OCProperties<</OCGs[5 0 R]/D<<" + hidden + ">>>>>>",
             "<</Type/Pages/Count 1/Kids[3 0 R]/MediaBox[0 0 595 842]>>",
             "<</Type/Page/Parent 2 0 R/Contents 4 0 R/Resources<</Properties<</L 5 0 R>>>>>>",
             orvek::test::streamOf("/OC /L BDC " + filled + " EMC"), "<</Type/OCG/Name(Layer)>>"}),
        {{}, a4, false});
    return seen.at(0).pages.size();
  };
  EXPECT_EQ(pagesSeen({}), 1U);
  EXPECT_EQ(pagesSeen("/OFF[5 0 R]"), 0U);
}

TEST_F(Imposer, KeepsWhatAPageSaysOfItsTransparency) {
  imposed(onePage("/Contents 4 0 R/Group<</S/Transparency/I true>>",
                  {orvek::test::streamOf(filled), "null"}),
          {{}, a4, false});
  const QByteArray sheets = orvek::test::contentsOf(folder.filePath(QStringLiteral("out.pdf")));
  EXPECT_EQ(sheets.count("/S /Transparency"), 1);
}

TEST_F(Imposer, KeepsAnnotationsThatPrintingShows) {
  const std::string appearance =
      orvek::test::streamOf(filled, "/Type/XObject/Subtype/Form/BBox[0 0 595 842]");
  const auto seen =
      imposed(onePage("/Annots[4 0 R]", {"<</Type/Annot/Subtype/Square/F 4/Rect[0 0 595 842]"
                                         "/AP<</N 5 0 R>>>>",
                                         appearance}),
              {{}, a4, false});
  ASSERT_EQ(seen.at(0).pages.size(), 1U);
  EXPECT_EQ(seen[0].pages[0].page, 1);
}

TEST_F(Imposer, DrawsTheValuesOfFormFields) {
  const std::vector<std::string> objects{
      orvek::test::streamOf(""),
      "<</Type/Annot/Subtype/Widget/FT/Tx/T(a)/V(WWWWWWWW)/F 4/Rect[100 100 500 700]"
      "/DA(/Helv 200 Tf 0.2745 g)/MK<<>>>>",
      "<</Type/Font/Subtype/Type1/BaseFont/Helvetica/Encoding/WinAnsiEncoding>>"};
  const auto seen = imposed(onePage("/Contents 4 0 R/Annots[5 0 R]", objects), {{}, a4, false});
  ASSERT_EQ(seen.at(0).pages.size(), 1U) << "no letters in the field's colour";
}

TEST_F(Imposer, FramesPagesWhereAskedTo) {
  // Blank pages: what is seen is the frame alone.
  const std::string document = onePage("", {});
  BookletKeys keys;
  keys.pageBorders = true;
  const QString out = folder.filePath(QStringLiteral("out.pdf"));
  imposed(document, {keys, a4, false});
  EXPECT_TRUE(orvek::test::contentsOf(out).contains(" re S"));
  keys.pageBorders = false;
  imposed(document, {keys, a4, false});
  EXPECT_FALSE(orvek::test::contentsOf(out).contains(" re S"));
}

}  // namespace
}  // namespace orvek::driver
