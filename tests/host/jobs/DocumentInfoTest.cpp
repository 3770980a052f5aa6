// SPDX-License-Identifier: Apache-2.0
// Page counts of real files, and of broken ones.

#include "host/jobs/DocumentInfo.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QElapsedTimer>
#include <QFile>
#include <QImage>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include "tests/support/OddDocuments.h"
#include "tests/support/OwnTool.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class DocumentInfoTest : public testing::Test {
 protected:
  QString write(const QString &name, const QByteArray &content) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    return file.fileName();
  }

  QTemporaryDir folder;
};

/// Takes the place of pdfinfo, and takes its time.
class SlowPdfTool : public OwnTool {
 public:
  explicit SlowPdfTool(const QByteArray &seconds)
      : OwnTool(QStringLiteral("pdfinfo"), "echo called >>calls\nexec sleep " + seconds + '\n') {}

  /// How often it was called since that was asked last.
  qsizetype calls() { return takeLines(QStringLiteral("calls")).size(); }
};

QString sample(const QString &name) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/samples/") + name;
}

bool hasPdfTool() {
  return !QStandardPaths::findExecutable(QStringLiteral("pdfinfo")).isEmpty();
}

TEST_F(DocumentInfoTest, CountsThePagesOfAPdf) {
  if (!hasPdfTool()) GTEST_SKIP() << "pdfinfo (poppler-utils) is not installed";
  const DocumentInfo info = documentInfo(sample("Finishing-Sample.pdf"));
  EXPECT_EQ(info.name, "Finishing-Sample.pdf");
  EXPECT_EQ(info.pages, 8);
}

TEST_F(DocumentInfoTest, ReadsTheCommentsOfPostScript) {
  const QString path = write("a.ps", "%!PS-Adobe-3.0\n%%Pages: 12\n%%BoundingBox: 0 0 612 792\n");
  EXPECT_EQ(documentInfo(path).pages, 12);
}

TEST_F(DocumentInfoTest, TakesALookThatWasBegunAheadOnceAndLooksAnewThen) {
  const QString path = write("a.ps", "%!PS-Adobe-3.0\n%%Pages: 12\n");
  lookAhead(path);
  EXPECT_EQ(documentInfo(path).pages, 12);
  write("a.ps", "%!PS-Adobe-3.0\n%%Pages: 5\n");
  EXPECT_EQ(documentInfo(path).pages, 5);
}

// A tool that would sleep for a minute stands for a document that takes long to look at.
TEST_F(DocumentInfoTest, EndsALookThatWasBegunAheadWithTheQuestion) {
  const SlowPdfTool tool("60");
  const QString path = write("a.pdf", "%PDF-1.4\n");
  lookAhead(path);
  const std::atomic<bool> cancelled = true;
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(documentInfo(path, cancelled).name, "a.pdf");
  EXPECT_LT(timer.elapsed(), 1900);
}

TEST_F(DocumentInfoTest, LooksOnceHoweverOftenItIsBegunAhead) {
  SlowPdfTool tool("0.2");
  const QString path = write("a.pdf", "%PDF-1.4\n");
  lookAhead(path);
  ASSERT_TRUE(QTest::qWaitFor([&tool] { return tool.calls() == 1; }));
  lookAhead(path);
  EXPECT_EQ(documentInfo(path).name, "a.pdf");
  EXPECT_EQ(tool.calls(), 0);
}

TEST_F(DocumentInfoTest, ReadsACountThatStandsAtTheEndOfALongFile) {
  const QByteArray body(200000, '\n');
  const QString path =
      write("b.ps", "%!PS-Adobe-3.0\r\n%%Pages: (atend)\r\n" + body + "%%Trailer\r%%Pages: 3\r");
  EXPECT_EQ(documentInfo(path).pages, 3);
}

TEST_F(DocumentInfoTest, DoesNotBelieveInMillionsOfPages) {
  EXPECT_EQ(documentInfo(write("a.ps", "%!PS\n%%Pages: 1000000\n")).pages, 1000000);
  EXPECT_EQ(documentInfo(write("b.ps", "%!PS\n%%Pages: 2000000000\n")).pages, 0);
  EXPECT_EQ(documentInfo(write("c.ps", "%!PS\n%%Pages: 99999999999999\n")).pages, 0);
}

TEST_F(DocumentInfoTest, CountsAPictureAsOnePage) {
  const QString path = folder.filePath("a.png");
  ASSERT_TRUE(QImage(4, 4, QImage::Format_RGB32).save(path));
  EXPECT_EQ(documentInfo(path).pages, 1);
}

TEST_F(DocumentInfoTest, KnowsNothingOfTextAndStandardInput) {
  EXPECT_EQ(documentInfo(write("a.txt", "words\n")).pages, 0);
  EXPECT_EQ(documentInfo("-").name, "(stdin)");
  EXPECT_EQ(documentInfo(QString()).path, "-");
}

TEST_F(DocumentInfoTest, KnowsNothingOfWhatCanNotBeRead) {
  EXPECT_EQ(documentInfo(folder.filePath("missing.pdf")).pages, 0);
  EXPECT_EQ(documentInfo(folder.filePath("missing.pdf")).name, "missing.pdf");
  EXPECT_EQ(documentInfo(folder.path()).pages, 0);
  EXPECT_EQ(documentInfo(write("empty.pdf", "")).pages, 0);
}

TEST_F(DocumentInfoTest, KnowsWhatCanNotBePrinted) {
  const auto stateOf = [](const QString &path) { return documentInfo(path).state; };
  EXPECT_EQ(stateOf(sample("Finishing-Sample.pdf")), DocumentState::Usable);
  EXPECT_EQ(stateOf(write("a.txt", "words\n")), DocumentState::Usable);
  EXPECT_EQ(stateOf(write("empty.pdf", "")), DocumentState::Empty);
  EXPECT_EQ(stateOf(write("blank.pdf", pdfWithoutPages())), DocumentState::NoPages);
  EXPECT_EQ(stateOf(write("broken.pdf", pdfBeyondRepair())), DocumentState::Damaged);
  EXPECT_EQ(stateOf(folder.path()), DocumentState::Unreadable);
  EXPECT_EQ(stateOf(folder.filePath("missing.pdf")), DocumentState::Unreadable);
}

TEST_F(DocumentInfoTest, KnowsThatAPasswordIsMissing) {
  const QString locked = folder.filePath("locked.pdf");
  if (!protect(sample("Finishing-Sample.pdf"), "secret", locked)) {
    GTEST_SKIP() << "qpdf is not installed";
  }
  EXPECT_EQ(documentInfo(locked).state, DocumentState::Locked);
  EXPECT_EQ(documentInfo(locked).pages, 0);
}

TEST_F(DocumentInfoTest, TakesACopyThatThePasswordOpened) {
  const QString locked = folder.filePath("locked.pdf");
  if (!protect(sample("Finishing-Sample.pdf"), "secret", locked)) {
    GTEST_SKIP() << "qpdf is not installed";
  }
  const std::atomic<bool> never = false;
  const auto wrong = openedPdf(locked, "Secret", never);
  ASSERT_TRUE(wrong);
  EXPECT_EQ(wrong.value(), nullptr);
  const auto opened = openedPdf(locked, "secret", never);
  ASSERT_TRUE(opened) << opened.failure().line().toStdString();
  ASSERT_NE(opened.value(), nullptr);
  EXPECT_EQ(documentInfo(opened.value()->path()).pages, 8);
}

TEST_F(DocumentInfoTest, DoesNotWaitForAPipe) {
  const QString path = folder.filePath("pipe");
  ASSERT_EQ(mkfifo(QFile::encodeName(path).constData(), 0600), 0);
  EXPECT_EQ(documentInfo(path).pages, 0);
}

TEST_F(DocumentInfoTest, BelievesNoNumberOfPagesThatATitleClaims) {
  if (!hasPdfTool()) GTEST_SKIP() << "pdfinfo (poppler-utils) is not installed";
  const QString path = write("titled.pdf",
                             "%PDF-1.4\n1 0 obj<</Type/Catalog/Pages 2 0 R>>endobj\n"
                             "2 0 obj<</Type/Pages/Count 1/Kids[3 0 R]>>endobj\n"
                             "3 0 obj<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 200]>>endobj\n"
                             "4 0 obj<</Title(x\\nPages: 999)/Producer(y\\nPages: 998)>>endobj\n"
                             "trailer<</Root 1 0 R/Info 4 0 R>>\n");
  EXPECT_EQ(documentInfo(path).pages, 1);
}

TEST_F(DocumentInfoTest, SurvivesAPdfCutAtAnyPlace) {
  if (!hasPdfTool()) GTEST_SKIP() << "pdfinfo (poppler-utils) is not installed";
  QFile file(sample("Finishing-Sample.pdf"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray whole = file.readAll();
  QElapsedTimer clock;
  clock.start();
  for (int part = 1; part < 8; ++part) {
    const QString path = write("cut.pdf", whole.left(whole.size() * part / 8));
    EXPECT_LE(documentInfo(path).pages, 8);
  }
  EXPECT_LT(clock.elapsed(), 7 * 3000);
}

TEST_F(DocumentInfoTest, TakesANameThatLooksLikeAnOption) {
  if (!hasPdfTool()) GTEST_SKIP() << "pdfinfo (poppler-utils) is not installed";
  ASSERT_TRUE(QFile::copy(sample("Finishing-Sample.pdf"), folder.filePath("-opw x.pdf")));
  EXPECT_EQ(documentInfo(folder.filePath("-opw x.pdf")).pages, 8);
}

}  // namespace
}  // namespace orvek::test
