// SPDX-License-Identifier: Apache-2.0
// Booklets printed into a file, looked at; and other jobs, which no driver may touch.

#include <gtest/gtest.h>

#include <QFileInfo>

#include "host/jobs/FilterChain.h"
#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/support/CapturingFilter.h"

namespace orvek::test {
namespace {

using imposition::Size;

constexpr Size a4{595, 842};

std::vector<SeenSide> bookletOf(std::size_t pages, const imposition::BookletKeys &keys = {}) {
  const std::vector<Size> sizes(pages, a4);
  return expectedSides(imposition::imposeBooklet(sizes, a4, keys), a4);
}

class BookletOutput : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
    request.ppdFile = orvekPPD(QStringLiteral("6180"));
    request.outputFile = kit.path(QStringLiteral("out.ps"));
  }

  QString document(const char *name, int pages) const {
    return kit.write(QLatin1String(name), markedDocument(pages));
  }

  QByteArray print() {
    const auto result = printThroughFilters(request, control);
    EXPECT_TRUE(result) << result.failure().line().toStdString();
    return contentsOf(request.outputFile);
  }

  std::vector<SeenSide> seen() const { return look(request.outputFile.toStdString()); }

  /// What the filter tool alone makes of the same job by a PPD that names no filter.
  QByteArray printPlain() const {
    const QString &file = request.files.constFirst();
    QStringList options{QStringLiteral("-t ") + QFileInfo(file).fileName()};
    for (auto option = request.options.cbegin(); option != request.options.cend(); ++option) {
      options << option.key() + u'=' + option.value();
    }
    return printThrough(kit.plainPPD(), options, file).output;
  }

  DriverKit kit;
  JobRequest request;
  JobControl control;
};

TEST_F(BookletOutput, HoldsTheSheetsOfABooklet) {
  request.files = {document("in.pdf", 8)};
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")},
                     {QStringLiteral("OVKGutter"), QStringLiteral("36")},
                     {QStringLiteral("OVKFolding"), QStringLiteral("Saddle")}};
  const QByteArray printed = print();
  imposition::BookletKeys keys;
  keys.gutter = 36;
  expectSeen(seen(), bookletOf(8, keys));
  EXPECT_EQ(printed.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
  EXPECT_EQ(printed.count("%%BeginFeature: *OVKFolding Saddle"), 1);
}

TEST_F(BookletOutput, CountsTheSidesOfSheets) {
  request.files = {document("in.pdf", 5)};
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}};
  int pages = 0;
  control.progress = [&pages](const JobProgress &now) { pages = now.pages; };
  print();
  EXPECT_EQ(pages, 4);
}

TEST_F(BookletOutput, MakesEachDocumentOfAJobABookletOfItsOwn) {
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}};
  request.files = {document("first.pdf", 5)};
  const QByteArray first = print();
  expectSeen(seen(), bookletOf(5));
  request.files = {document("second.pdf", 3)};
  const QByteArray second = print();
  expectSeen(seen(), bookletOf(3));
  request.title = QStringLiteral("both");
  request.files.prepend(kit.path(QStringLiteral("first.pdf")));
  const QByteArray both = print();
  EXPECT_EQ(both.count("%!PS-Adobe"), 2);
  EXPECT_EQ(both.count("%%Page: "), first.count("%%Page: ") + second.count("%%Page: "));
  const auto secondBegins = both.lastIndexOf("%!PS-Adobe");
  writeContents(request.outputFile, both.left(secondBegins));
  expectSeen(seen(), bookletOf(5));
  writeContents(request.outputFile, both.mid(secondBegins));
  expectSeen(seen(), bookletOf(3));
}

TEST_F(BookletOutput, ChoosesPagesFirst) {
  request.files = {document("in.pdf", 8)};
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")},
                     {QStringLiteral("page-ranges"), QStringLiteral("1-3")}};
  print();
  expectSeen(seen(), bookletOf(3));
}

TEST_F(BookletOutput, TakesPostScriptAndText) {
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}};
  request.files = {kit.write(QStringLiteral("in.ps"), postScriptDocument(6).toStdString())};
  EXPECT_EQ(print().count("%%Page: "), 4);
  request.files = {kit.write(QStringLiteral("in.txt"), "A text\nof two lines\n")};
  const QByteArray text = print();
  EXPECT_EQ(text.count("%%Page: "), 2);
  EXPECT_EQ(text.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
}

TEST_F(BookletOutput, OfAPPDThatNamesNoFilterIsABookletAllTheSame) {
  request.files = {document("in.pdf", 4)};
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}};
  request.ppdFile = kit.plainPPD();
  print();
  expectSeen(seen(), bookletOf(4));
}

TEST_F(BookletOutput, OfADamagedDocumentIsRefusedInOneLine) {
  request.files = {kit.write(QStringLiteral("in.pdf"), "%PDF-1.4\nno more than a beginning\n")};
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}};
  const auto result = printThroughFilters(request, control);
  ASSERT_FALSE(result);
  EXPECT_FALSE(result.failure().line().contains(u'\n'));
}

TEST_F(BookletOutput, OfOtherJobsIsToTheByteWhatNoDriverMakes) {
  const QString text = kit.write(QStringLiteral("in.txt"), "A text\nof two lines\n");
  const QString postScript =
      kit.write(QStringLiteral("in.ps"), postScriptDocument(3).toStdString());
  const QList<QMap<QString, QString>> jobs{
      {},
      {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("False")}},
      {{QStringLiteral("OVKFolding"), QStringLiteral("Saddle")},
       {QStringLiteral("OVKGutter"), QStringLiteral("12")},
       {QStringLiteral("sides"), QStringLiteral("two-sided-long-edge")}},
      {{QStringLiteral("number-up"), QStringLiteral("2")},
       {QStringLiteral("OVKEnableBooklet"), QStringLiteral("true")}}};
  for (const auto &options : jobs) {
    request.options = options;
    for (const QString &file : {document("in.pdf", 5), postScript, text}) {
      request.files = {file};
      const QByteArray plain = withoutDates(printPlain());
      EXPECT_FALSE(plain.isEmpty());
      EXPECT_TRUE(withoutDates(print()) == plain) << file.toStdString();
    }
  }
}

}  // namespace
}  // namespace orvek::test
