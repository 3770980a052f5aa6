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

Result<int> impose(const std::string &document, std::string *sheets = nullptr) {
  const File input = namelessFile().take();
  std::fwrite(document.data(), 1, document.size(), input.get());
  std::rewind(input.get());
  const File output = namelessFile().take();
  auto sides = imposeDocument(input.get(), output.get(), {{}, imposition::Size{595, 842}, false});
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
  EXPECT_EQ(sides.value(), 2);
  EXPECT_NE(sheets.find("%%EOF"), std::string::npos);
  EXPECT_EQ(sheets.find("/Encrypt"), std::string::npos);
}

TEST(HostileDocument, IsRepairedWhereItHasLostItsTable) {
  std::string document = markedDocument(5);
  document.replace(document.find("0000000000 65535"), 200, 200, 'x');
  const auto sides = impose(document);
  ASSERT_TRUE(sides) << sides.failure().line().toStdString();
  EXPECT_EQ(sides.value(), 4);
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
    EXPECT_EQ(sides.value(), 2);
  }
}

TEST(HostileDocument, MayHaveThousandsOfPages) {
  const auto sides = impose(markedDocument(10001));
  ASSERT_TRUE(sides) << sides.failure().line().toStdString();
  EXPECT_EQ(sides.value(), 2 * 2501);
}

}  // namespace
}  // namespace orvek::driver
