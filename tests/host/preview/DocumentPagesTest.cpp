// SPDX-License-Identifier: Apache-2.0
// Pages are read from real documents by the real tools; tools that misbehave are ended.

#include "host/preview/DocumentPages.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <thread>

#include "host/jobs/BoundedTool.h"
#include "host/jobs/FilterChain.h"
#include "tests/support/Descendants.h"
#include "tests/support/NumberedPages.h"

namespace orvek {
namespace {

using namespace std::chrono_literals;

const std::atomic<bool> never = false;
const QString sampleFolder = QStringLiteral(ORVEK_SOURCE_DIR "/samples/");
const PrintedWith onFamilyPrinter{QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"), {}};

class DocumentPagesTest : public testing::Test {
 protected:
  QString write(const QString &name, const QByteArray &bytes) {
    const QString path = m_folder.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path;
  }

  QTemporaryDir m_folder;
};

TEST(PageReport, TakesBoxesAndTurnsOfEachPage) {
  const auto pages = pagesInReport(
      "Pages:           2\n"
      "Page    1 size:  595 x 842 pts (A4)\n"
      "Page    1 rot:   0\n"
      "Page    2 size:  842 x 595 pts\n"
      "Page    2 rot:   90\n"
      "Page    1 CropBox:      0.00     0.00   595.00   842.00\n"
      "Page    1 TrimBox:      0.00     0.00   595.00   842.00\n"
      "Page    2 CropBox:      0.00     0.00   400.00   800.00\n"
      "Page    2 TrimBox:      0.00   400.00   200.00   800.00\n");
  ASSERT_EQ(pages.size(), 2);
  EXPECT_EQ(pages[0], (DocumentPage{QSizeF(595, 842), QRectF(0, 0, 1, 1)}));
  EXPECT_EQ(pages[1].size, QSizeF(400, 200));
  // The upper left quarter of the page lies at the upper right once it is turned.
  EXPECT_EQ(pages[1].part, QRectF(0.5, 0, 0.5, 0.5));
}

TEST(PageReport, PassesOverWhatIsNoPage) {
  EXPECT_TRUE(pagesInReport("").isEmpty());
  EXPECT_TRUE(pagesInReport("Page x CropBox: 0 0 1 1\nPage 0 rot: 0\nPage -1 rot: 0\n").isEmpty());
  EXPECT_TRUE(pagesInReport("Page 999999 rot: 0\n").isEmpty());
  const auto pages = pagesInReport("Page 1 CropBox: nan nan inf 0\nPage 1 rot: 12345678901\n");
  ASSERT_EQ(pages.size(), 1);
  EXPECT_EQ(pages[0].size, QSizeF(0, 0));
}

TEST(PageReport, TakesNoNumberThatIsNone) {
  const auto pages = pagesInReport(
      "Page 1 rot: 1e300\nPage 1 CropBox: 0 0 1e300 1e-300\n"
      "Page 2 rot: -90\nPage 2 CropBox: -1e308 0 1e308 5\n"
      "Page 3 CropBox: 0 0 2e9 5\nPage 4 CropBox: 0 0 5 2e9\n");
  ASSERT_EQ(pages.size(), 4);
  EXPECT_EQ(pages[0], (DocumentPage{QSizeF(0, 0), {0, 0, 1, 1}, 0}));
  for (const DocumentPage &page : pages) EXPECT_EQ(page.size, QSizeF(0, 0));
}

TEST_F(DocumentPagesTest, ReadsEachPagesSizeAsItIsDisplayed) {
  const QString path =
      write(QStringLiteral("-a b.pdf"), test::numberedPdf({
                                            {QSizeF(595, 842), 0, {}, {}},
                                            {QSizeF(595, 842), 90, {}, {}},
                                            {QSizeF(600, 800), 0, QRectF(100, 100, 200, 300), {}},
                                        }));
  const auto document = readDocumentPages(path, {}, never);
  ASSERT_TRUE(document);
  ASSERT_EQ(document.value().pages.size(), 3);
  EXPECT_EQ(document.value().pages[0].size, QSizeF(595, 842));
  EXPECT_EQ(document.value().pages[1].size, QSizeF(842, 595));
  EXPECT_EQ(document.value().pages[1].turn, 90);
  EXPECT_EQ(document.value().pages[2].size, QSizeF(200, 300));
  EXPECT_EQ(document.value().pdf, path);
}

TEST_F(DocumentPagesTest, MakesPagesOfTextAndPictures) {
  if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) GTEST_SKIP() << "needs cupsfilter";
  const auto text =
      readDocumentPages(write(QStringLiteral("a.txt"), "Hello\n"), onFamilyPrinter, never);
  ASSERT_TRUE(text);
  EXPECT_EQ(text.value().pages.size(), 1);
  EXPECT_FALSE(text.value().isPlaced);
  const auto script = readDocumentPages(sampleFolder + QStringLiteral("Finishing-Sample.ps"),
                                        onFamilyPrinter, never);
  ASSERT_TRUE(script);
  EXPECT_EQ(script.value().pages.size(), 8);
  QImage dot(40, 20, QImage::Format_RGB32);
  dot.fill(Qt::red);
  const QString picture = m_folder.filePath(QStringLiteral("a.png"));
  ASSERT_TRUE(dot.save(picture));
  const auto placed = readDocumentPages(picture, onFamilyPrinter, never);
  ASSERT_TRUE(placed);
  EXPECT_TRUE(placed.value().isPlaced);
  EXPECT_EQ(placed.value().pages.size(), 1);
}

TEST_F(DocumentPagesTest, LeavesNoFilterBehindWhenCancelled) {
  if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) GTEST_SKIP() << "needs cupsfilter";
  const QString text =
      write(QStringLiteral("long.txt"), QByteArray("A line.\n").repeated(5'000'000));
  const test::Descendants descendants;
  const QByteArrayList before = descendants.names();
  std::atomic<bool> cancelled = false;
  bool hasFailed = false;
  std::thread reader([&] { hasFailed = !readDocumentPages(text, {}, cancelled); });
  EXPECT_TRUE(descendants.waitFor("texttopdf"));
  cancelled = true;
  reader.join();
  EXPECT_TRUE(hasFailed);
  EXPECT_EQ(descendants.names(), before);
}

TEST_F(DocumentPagesTest, MakesPagesWithoutTheDriver) {
  if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) GTEST_SKIP() << "needs cupsfilter";
  QFile family(onFamilyPrinter.ppdFile);
  ASSERT_TRUE(family.open(QIODevice::ReadOnly));
  // Whatever a driver that is not installed is said to take, pages are made without it.
  const QString ppd =
      write(QStringLiteral("a.ppd"),
            family.readAll() + "*cupsFilter2: \"text/plain application/pdf 0 orvek-booklet\"\n");
  const auto text = readDocumentPages(write(QStringLiteral("a.txt"), "Hello\n"), {ppd, {}}, never);
  ASSERT_TRUE(text) << text.failure().line().toStdString();
  EXPECT_EQ(text.value().pages.size(), 1);
}

TEST_F(DocumentPagesTest, FailsForWhatHasNoPages) {
  EXPECT_FALSE(readDocumentPages(QStringLiteral("-"), {}, never));
  EXPECT_FALSE(readDocumentPages(m_folder.path(), {}, never));
  EXPECT_FALSE(readDocumentPages(m_folder.filePath(QStringLiteral("none")), {}, never));
  EXPECT_FALSE(readDocumentPages(write(QStringLiteral("b.pdf"), "%PDF-1.4\nnonsense"), {}, never));
  const std::atomic<bool> cancelled = true;
  EXPECT_FALSE(
      readDocumentPages(sampleFolder + QStringLiteral("Finishing-Sample.pdf"), {}, cancelled));
}

TEST(OptionsForPages, LeaveOutWhatComesAfterThePages) {
  const auto kept = optionsForPages({{QStringLiteral("PageSize"), QStringLiteral("A5")},
                                     {QStringLiteral("OVKGutter"), QStringLiteral("24")},
                                     {QStringLiteral("number-up"), QStringLiteral("2")},
                                     {QStringLiteral("cpi"), QStringLiteral("12")}});
  EXPECT_EQ(kept.keys(), (QStringList{QStringLiteral("PageSize"), QStringLiteral("cpi")}));
}

TEST(BoundedTool, EndsToolsThatTakeTooLong) {
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(runTool(QStringLiteral("sleep"), {QStringLiteral("60")}, {100ms, 100, 0}, never));
  EXPECT_LT(clock.elapsed(), 5000);
}

TEST(BoundedTool, EndsToolsThatSayTooMuch) {
  QElapsedTimer clock;
  clock.start();
  EXPECT_FALSE(runTool(QStringLiteral("yes"), {}, {60s, 1 << 20, 0}, never));
  EXPECT_LT(clock.elapsed(), 10000);
}

TEST(BoundedTool, EndsWhatItsToolsStarted) {
  const auto said =
      runTool(QStringLiteral("sh"), {QStringLiteral("-c"), QStringLiteral("sleep 60 & echo $!")},
              {500ms, 100, 0}, never);
  // Its child still holds the pipe, but the shell is gone: what it said counts.
  ASSERT_TRUE(said);
  const QByteArray child = said.value().trimmed();
  QElapsedTimer clock;
  clock.start();
  const QString state = QStringLiteral("/proc/%1/cmdline").arg(QString::fromLatin1(child));
  const auto runs = [&] {
    QFile file(state);
    return file.open(QIODevice::ReadOnly) && file.readAll().startsWith("sleep");
  };
  while (runs() && clock.elapsed() < 5000) {
  }
  EXPECT_FALSE(runs());
}

TEST(BoundedTool, KeepsToolsFromFillingTheMemory) {
  const auto eaten =
      runTool(QStringLiteral("python3"),
              {QStringLiteral("-c"), QStringLiteral("x = bytearray(1 << 30); print(len(x))")},
              {20s, 1000, 256LL << 20}, never);
  EXPECT_TRUE(!eaten || !eaten.value().contains("1073741824"));
}

TEST(BoundedTool, SaysWhereAToolIsMissing) {
  EXPECT_FALSE(runTool(QStringLiteral("no-such-tool"), {}, {}, never));
}

}  // namespace
}  // namespace orvek
