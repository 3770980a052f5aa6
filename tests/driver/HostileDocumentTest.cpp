// SPDX-License-Identifier: Apache-2.0
// Documents that are not what they should be.

#include <gtest/gtest.h>

#include <QString>
#include <string>

#include "driver/Imposer.h"
#include "driver/Qpdf.h"
#include "driver/TemporaryFile.h"
#include "tests/driver/MarkedDocument.h"
// Only after Qpdf.h:
#include <qpdf/QPDFWriter.hh>

namespace orvek::driver {
namespace {

using orvek::test::markedDocument;
using orvek::test::pdfOf;

constexpr imposition::Size a4{595, 842};

Result<ImposedSheets> impose(const std::string &document, std::string *sheets = nullptr,
                             const BookletRequest &request = {{}, a4, false}) {
  const File input = namelessFile().take();
  std::fwrite(document.data(), 1, document.size(), input.get());
  std::rewind(input.get());
  const File output = namelessFile().take();
  auto sides = imposeDocument(input.get(), output.get(), request);
  if (sheets == nullptr) return sides;
  std::rewind(output.get());
  for (int byte = std::fgetc(output.get()); byte != EOF; byte = std::fgetc(output.get())) {
    sheets->push_back(static_cast<char>(byte));
  }
  return sides;
}

void expectOneLine(const std::string &document, const char *part) {
  const auto sides = impose(document);
  ASSERT_FALSE(sides);
  const QString line = sides.failure().line();
  EXPECT_TRUE(line.startsWith(QStringLiteral("the document: "))) << line.toStdString();
  EXPECT_TRUE(line.contains(QString::fromLatin1(part))) << line.toStdString();
  EXPECT_FALSE(line.contains(u'\n'));
}

std::string encrypted(const char *userPassword) {
  const std::string plain = markedDocument(4);
  QPDF pdf;
  pdf.processMemoryFile("plain", plain.data(), plain.size());
  QPDFWriter writer(pdf);
  writer.setOutputMemory();
  writer.setR6EncryptionParameters(userPassword, "owner", true, true, true, true, true, true,
                                   qpdf_r3p_full, true);
  writer.write();
  const auto bytes = writer.getBufferSharedPointer();
  return {reinterpret_cast<const char *>(bytes->getBuffer()), bytes->getSize()};
}

TEST(HostileDocument, SaysThatItIsEncrypted) {
  expectOneLine(encrypted("secret"), "it is encrypted with a password");
}

TEST(HostileDocument, IsPrintedWhereItOpensWithoutAPassword) {
  std::string sheets;
  const auto sides = impose(encrypted(""), &sheets);
  ASSERT_TRUE(sides) << sides.failure().line().toStdString();
  EXPECT_EQ(sides.value().sides, 2);
  EXPECT_NE(sheets.find("%%EOF"), std::string::npos);
  EXPECT_EQ(sheets.find("/Encrypt"), std::string::npos);
}

TEST(HostileDocument, IsRepairedWhereItHasLostItsTable) {
  std::string document = markedDocument(5);
  document.replace(document.find("0000000000 65535"), 200, 200, 'x');
  const auto sides = impose(document);
  ASSERT_TRUE(sides) << sides.failure().line().toStdString();
  EXPECT_EQ(sides.value().sides, 4);
}

TEST(HostileDocument, IsRefusedInOneLineWhereItIsNoDocument) {
  expectOneLine("not a PDF\n\n\nat all\n", "damaged beyond repair");
  expectOneLine("%PDF-1.4\n", "damaged beyond repair");
}

TEST(HostileDocument, NeverDoesWorseThanFailCutAnywhere) {
  const std::string document = markedDocument(3);
  for (std::size_t size = 1; size < document.size(); size += 7) {
    const auto sides = impose(document.substr(0, size));
    if (!sides) {
      EXPECT_FALSE(sides.failure().line().contains(u'\n')) << size;
    }
  }
}

TEST(HostileDocument, SaysThatItHasNoPages) {
  expectOneLine(pdfOf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 0/Kids[]>>"}),
                "it has no pages");
}

TEST(HostileDocument, SaysThatItsPagesRunInCircles) {
  expectOneLine(pdfOf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 1/Kids[3 0 R]>>",
                       "<</Type/Pages/Count 1/Kids[2 0 R]>>"}),
                "runs in circles");
}

TEST(HostileDocument, SaysThatItsPagesAreNestedTooDeeply) {
  std::vector<std::string> objects{"<</Type/Catalog/Pages 2 0 R>>"};
  constexpr int levels = 20000;
  for (int level = 0; level < levels; ++level) {
    objects.push_back("<</Type/Pages/Count 1/Kids[" + std::to_string(level + 3) + " 0 R]>>");
  }
  objects.emplace_back("<</Type/Page/MediaBox[0 0 100 200]>>");
  expectOneLine(pdfOf(objects), "nested too deeply");
}

TEST(HostileDocument, HasPagesOfUsualSizeWhereTheirBoxesAreUseless) {
  for (const char *box :
       {"0 0 0 0", "5 5 5 700", "0 0 1e9 5", "0 0 99999999999999999999 1", "1 2 3", "(a) 1 2 3"}) {
    const auto sides =
        impose(pdfOf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 1/Kids[3 0 R]>>",
                      std::string("<</Type/Page/Parent 2 0 R/MediaBox[") + box + "]/CropBox[" +
                          box + "]/Rotate 99999999999>>"}));
    ASSERT_TRUE(sides) << box << ": " << sides.failure().line().toStdString();
    EXPECT_EQ(sides.value().sides, 2);
  }
}

TEST(HostileDocument, HasNoPagesSoLargeThatPlacesOnThemAreLost) {
  for (const char *box : {"0 0 2000000000 2000000000", "2000000000 0 2000000100 100"}) {
    std::string sheets;
    const auto sides = impose(
        pdfOf({"<</Type/Catalog/Pages 2 0 R>>", "<</Type/Pages/Count 1/Kids[3 0 R]>>",
               std::string("<</Type/Page/Parent 2 0 R/Contents 4 0 R/MediaBox[") + box + "]>>",
               orvek::test::streamOf("0 0 9 9 re f")}),
        &sheets);
    ASSERT_TRUE(sides) << sides.failure().line().toStdString();
    EXPECT_NE(sheets.find("/BBox [ 0 0 595 842 ]"), std::string::npos) << box;
  }
}

/// So many pages, all of them the same pieces one behind the other, which few bytes say.
std::string inflating(int pages, int pieces) {
  std::string contents;
  for (int piece = 0; piece < pieces; ++piece) contents += "4 0 R ";
  std::string kids;
  for (int page = 0; page < pages; ++page) kids += "3 0 R ";
  return pdfOf({"<</Type/Catalog/Pages 2 0 R>>",
                "<</Type/Pages/Count " + std::to_string(pages) + "/Kids[" + kids + "]>>",
                "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]/Contents[" + contents + "]>>",
                orvek::test::streamOf(std::string(1000, ' '))});
}

TEST(HostileDocument, IsRefusedInOneLineWhereItWouldFillTheDisk) {
  BookletRequest request{{}, a4, false};
  request.mostBytes = std::uintmax_t{2} << 20;
  const std::string document = inflating(100, 100);
  ASSERT_LT(document.size() * 64, request.mostBytes);
  std::string sheets;
  const auto sides = impose(document, &sheets, request);
  ASSERT_FALSE(sides);
  EXPECT_EQ(sides.failure().line(),
            QStringLiteral("the document: its sheets would take more than 2 MB, far more than the "
                           "document itself; print some of its pages at a time"));
  EXPECT_LE(sheets.size(), request.mostBytes);
  EXPECT_TRUE(impose(document)) << "there is room for any usual document";
}

TEST(HostileDocument, MayMakeSheetsOfManyTimesItsOwnSize) {
  BookletRequest request{{}, a4, false};
  request.mostBytes = 0;
  std::string sheets;
  const std::string document = inflating(4, 10);
  EXPECT_TRUE(impose(document, &sheets, request));
  EXPECT_GT(sheets.size(), 10 * document.size());
}

TEST(HostileDocument, CountsPagesThatItLacksAndKeepsTheirPlaces) {
  for (const char *lost : {"null", "17", "[1 2]", "(page)"}) {
    const std::string page = "<</Type/Page/Parent 2 0 R/MediaBox[0 0 100 200]>>";
    const auto sides =
        impose(pdfOf({"<</Type/Catalog/Pages 2 0 R>>",
                      "<</Type/Pages/Count 5/Kids[3 0 R 4 0 R 3 0 R 9 0 R 3 0 R]>>", page, lost}));
    ASSERT_TRUE(sides) << lost << ": " << sides.failure().line().toStdString();
    EXPECT_EQ(sides.value().sides, 4) << lost;
    EXPECT_EQ(sides.value().missingPages, 2) << lost;
  }
  EXPECT_EQ(impose(markedDocument(5)).value().missingPages, 0);
}

TEST(HostileDocument, MayHaveThousandsOfPages) {
  const auto sides = impose(markedDocument(10001));
  ASSERT_TRUE(sides) << sides.failure().line().toStdString();
  EXPECT_EQ(sides.value().sides, 2 * 2501);
}

}  // namespace
}  // namespace orvek::driver
