// SPDX-License-Identifier: Apache-2.0
// Jobs into a file, through the real filters of this machine.

#include "host/jobs/FilterChain.h"

#include <gtest/gtest.h>
#include <sys/mount.h>
#include <unistd.h>

#include <QDir>
#include <QElapsedTimer>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <thread>

#include "tests/support/CapturingFilter.h"
#include "tests/support/MemoryGrowth.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

class FilterChain : public ::testing::Test {
 protected:
  void SetUp() override {
    if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) {
      GTEST_SKIP() << "cupsfilter is not installed";
    }
    writeContents(document, postScriptDocument(2));
    request.ppdFile = orvekPPD(QStringLiteral("6180"));
    request.files = {document};
    request.outputFile = output;
  }

  std::string failureLine() {
    const auto result = printThroughFilters(request, control);
    return result ? "no failure" : result.failure().line().toStdString();
  }

  QStringList leftBehind() const {
    QStringList names = QDir(folder.path()).entryList(QDir::Files | QDir::Hidden);
    names.removeAll(QStringLiteral("document.ps"));
    return names;
  }

  QTemporaryDir folder;
  QString document = folder.filePath(QStringLiteral("document.ps"));
  QString output = folder.filePath(QStringLiteral("out.prn"));
  JobRequest request;
  JobControl control;
};

TEST_F(FilterChain, PutsAChosenFeaturesCodeIntoTheOutput) {
  request.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  const auto result = printThroughFilters(request, control);
  ASSERT_TRUE(result) << result.failure().line().toStdString();
  const QByteArray printed = contentsOf(output);
  EXPECT_TRUE(printed.contains("%%BeginFeature: *OVKFolding Saddle"));
  EXPECT_EQ(result.value().bytes, printed.size());
  EXPECT_EQ(result.value().documents, 1);
}

TEST_F(FilterChain, LeavesOutAFeatureThatWasNotChosen) {
  ASSERT_TRUE(printThroughFilters(request, control));
  EXPECT_FALSE(contentsOf(output).contains("*OVKFolding Saddle"));
}

TEST_F(FilterChain, HandsKeysThatThePPDLacksToTheDriver) {
  const CapturingFilter filter;
  request.ppdFile = filter.ppdFile();
  request.options = {{QStringLiteral("OVKGutter"), QStringLiteral("24")},
                     {QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")},
                     {QStringLiteral("OVKCreep"), QStringLiteral("-3")}};
  const auto result = printThroughFilters(request, control);
  ASSERT_TRUE(result) << result.failure().line().toStdString();
  EXPECT_EQ(filter.options(), request.options);
}

TEST_F(FilterChain, HandsValuesOverAsTheyWereWritten) {
  const CapturingFilter filter;
  request.ppdFile = filter.ppdFile();
  request.options = {{QStringLiteral("a"), QStringLiteral("two words")},
                     {QStringLiteral("b"), QStringLiteral("it's \"so\"")},
                     {QStringLiteral("c"), QStringLiteral("'quoted' start")},
                     {QStringLiteral("d"), QStringLiteral("back\\slash")},
                     {QStringLiteral("e"), QStringLiteral("{open")},
                     {QStringLiteral("f"), QStringLiteral("日本語, ü")}};
  const auto result = printThroughFilters(request, control);
  ASSERT_TRUE(result) << result.failure().line().toStdString();
  EXPECT_EQ(filter.options(), request.options);
}

TEST_F(FilterChain, TellsTheDriverUserTitleAndCopies) {
  const CapturingFilter filter;
  request.ppdFile = filter.ppdFile();
  request.user = QStringLiteral("anna");
  request.title = QStringLiteral("-Annual \"report\"");
  request.options.insert(QStringLiteral("copies"), QStringLiteral("3"));
  ASSERT_TRUE(printThroughFilters(request, control));
  EXPECT_EQ(filter.argument(2), QStringLiteral("anna"));
  EXPECT_EQ(filter.argument(3), request.title);
  EXPECT_EQ(filter.argument(4), QStringLiteral("3"));
}

TEST_F(FilterChain, PrintsOnlyThePagesAskedFor) {
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("2"));
  ASSERT_TRUE(printThroughFilters(request, control));
  EXPECT_EQ(contentsOf(output).count("%%Page: "), 1);
}

TEST_F(FilterChain, SaysThatThePagesAskedForAreNotThere) {
  const QString pdf = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
  request.files = {pdf};
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("9-12,99"));
  EXPECT_EQ(failureLine(),
            pdf.toStdString() + ": has no page 9-12,99: the number of its pages is 8");
  request.files = {document};
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("3"));
  EXPECT_EQ(failureLine(),
            document.toStdString() + ": has no page 3: the number of its pages is 2");
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("-1,7"));
  EXPECT_EQ(failureLine(), "no failure");
}

TEST_F(FilterChain, KnowsOptionsInLettersOfEitherCase) {
  request.options = {{QStringLiteral("Page-Ranges"), QStringLiteral("9")}};
  EXPECT_EQ(failureLine(),
            document.toStdString() + ": has no page 9: the number of its pages is 2");
  const CapturingFilter filter;
  request.ppdFile = filter.ppdFile();
  request.options = {{QStringLiteral("Copies"), QStringLiteral("3")}};
  EXPECT_EQ(failureLine(), "no failure");
  EXPECT_EQ(filter.argument(4), QStringLiteral("3"));
  EXPECT_TRUE(filter.options().isEmpty());
}

TEST_F(FilterChain, RefusesToWriteOverItsDocument) {
  const QString link = folder.filePath(QStringLiteral("link.ps"));
  QFile::link(document, link);
  for (const QString &other : {document, link}) {
    request.outputFile = other;
    EXPECT_EQ(
        failureLine(),
        other.toStdString() + ": is the document itself, which would be lost; name another file");
  }
  EXPECT_TRUE(contentsOf(document) == postScriptDocument(2));
}

TEST_F(FilterChain, RefusesAnEmptyDocument) {
  const QString empty = folder.filePath(QStringLiteral("empty.pdf"));
  writeContents(empty, {});
  request.files = {document, empty};
  EXPECT_EQ(failureLine(), empty.toStdString() + ": is empty, so there is nothing to print");
  EXPECT_FALSE(QFile::exists(output));
}

TEST_F(FilterChain, SaysThatAnEncryptedDocumentNeedsItsPassword) {
  const QString encrypted = folder.filePath(QStringLiteral("encrypted.pdf"));
  const QStringList arguments{QStringLiteral("--encrypt"),
                              QStringLiteral("user"),
                              QStringLiteral("owner"),
                              QStringLiteral("256"),
                              QStringLiteral("--"),
                              QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"),
                              encrypted};
  if (QProcess::execute(QStringLiteral("qpdf"), arguments) != 0) {
    GTEST_SKIP() << "qpdf is not installed";
  }
  request.files = {encrypted};
  const std::string words =
      encrypted.toStdString() +
      ": it needs a password; print it from a program that opens it with that password";
  EXPECT_EQ(failureLine(), words);
  request.options.insert(QStringLiteral("OVKEnableBooklet"), QStringLiteral("True"));
  EXPECT_EQ(failureLine(), words);
}

TEST_F(FilterChain, PutsSeveralDocumentsOneAfterTheOther) {
  request.files = {document, document};
  int last = 0;
  control.progress = [&last](const JobProgress &now) { last = std::max(last, now.pages); };
  const auto result = printThroughFilters(request, control);
  ASSERT_TRUE(result);
  EXPECT_EQ(result.value().documents, 2);
  EXPECT_EQ(contentsOf(output).count("%!PS-Adobe"), 2);
  EXPECT_EQ(last, 4);
}

TEST_F(FilterChain, PrintsADocumentWhoseNameLooksLikeAnOption) {
  const QString odd = folder.filePath(QStringLiteral("-p odd.ps"));
  writeContents(odd, postScriptDocument(1));
  const QString before = QDir::currentPath();
  QDir::setCurrent(folder.path());
  request.files = {QStringLiteral("-p odd.ps")};
  EXPECT_TRUE(printThroughFilters(request, control));
  QDir::setCurrent(before);
}

TEST_F(FilterChain, ReadsStandardInputWhereNoDocumentIsNamed) {
  request.files.clear();
  const StandardInput input(postScriptDocument(3));
  const auto result = printThroughFilters(request, control);
  ASSERT_TRUE(result) << result.failure().line().toStdString();
  EXPECT_EQ(contentsOf(output).count("%%Page: "), 3);
}

TEST_F(FilterChain, RefusesEmptyStandardInput) {
  request.files = {QStringLiteral("-")};
  const StandardInput input(QByteArray{});
  EXPECT_EQ(failureLine(), "standard input: is empty, so there is nothing to print");
}

TEST_F(FilterChain, NeverLeavesAHalfWrittenFile) {
  const CapturingFilter filter(
      QStringLiteral("head -c 10 \"$6\"; echo 'ERROR: no toner' >&2; exit 1"));
  writeContents(output, "old");
  request.ppdFile = filter.ppdFile();
  EXPECT_EQ(failureLine(), document.toStdString() + ": no toner");
  EXPECT_EQ(contentsOf(output), "old");
  EXPECT_EQ(leftBehind(), QStringList{QStringLiteral("out.prn")});
}

TEST_F(FilterChain, SaysThatADocumentsTypeIsUnknown) {
  const QString odd = folder.filePath(QStringLiteral("odd"));
  writeContents(odd, QByteArray::fromHex("00ff01fe02fd03fc"));
  request.files = {odd};
  EXPECT_EQ(
      failureLine(),
      odd.toStdString() + ": its type is unknown; print a PDF, PostScript, text or image file");
}

TEST_F(FilterChain, NamesADocumentThatIsMissing) {
  request.files = {document, folder.filePath(QStringLiteral("none.ps"))};
  EXPECT_EQ(failureLine(), request.files[1].toStdString() + ": No such file or directory");
  EXPECT_TRUE(leftBehind().isEmpty());
}

TEST_F(FilterChain, NamesAFolderGivenAsDocument) {
  request.files = {folder.path()};
  EXPECT_EQ(failureLine(), folder.path().toStdString() + ": is a folder");
}

TEST_F(FilterChain, RefusesAPPDThatIsNone) {
  request.ppdFile = document;
  const auto result = printThroughFilters(request, control);
  ASSERT_FALSE(result);
  EXPECT_EQ(result.failure().kind, FailureKind::Invalid);
  EXPECT_EQ(result.failure().what, document);
}

TEST(FilterTool, IsFoundWhereAUsersPathLacksTheAdministratorsFolders) {
  QTemporaryDir folder;
  if (findFilterTool(qEnvironmentVariable("PATH")).isNull()) {
    GTEST_SKIP() << "cupsfilter is not installed";
  }
  EXPECT_TRUE(findFilterTool(folder.path()).endsWith(QStringLiteral("/cupsfilter")));
}

TEST_F(FilterChain, NoticesAFullDevice) {
  request.outputFile = QStringLiteral("/dev/full");
  EXPECT_EQ(failureLine(), "/dev/full: No space left on device");
}

TEST_F(FilterChain, NoticesAFullDiskAndKeepsTheOldFile) {
  const QString mountPoint = folder.filePath(QStringLiteral("small"));
  QDir().mkdir(mountPoint);
  if (::mount("tmpfs", mountPoint.toUtf8().constData(), "tmpfs", 0, "size=64k") != 0) {
    GTEST_SKIP() << "a small disk needs the right to mount one";
  }
  request.outputFile = mountPoint + QStringLiteral("/out.prn");
  writeContents(request.outputFile, "old");
  const CapturingFilter filter(QStringLiteral("head -c 1000000 /dev/zero"));
  request.ppdFile = filter.ppdFile();
  const std::string line = failureLine();
  const QByteArray kept = contentsOf(request.outputFile);
  ::umount(mountPoint.toUtf8().constData());
  EXPECT_EQ(line, request.outputFile.toStdString() + ": No space left on device");
  EXPECT_EQ(kept, "old");
}

TEST_F(FilterChain, EndsAtOnceWhenCancelledAndTakesItsFiltersWithIt) {
  const CapturingFilter filter(
      QStringLiteral("echo $$ >\"$(dirname \"$0\")\"/scratch/pid; sleep 60"));
  request.ppdFile = filter.ppdFile();
  const QString pidFile = filter.scratch() + QStringLiteral("/pid");
  std::thread canceller([&] {
    while (contentsOf(pidFile).isEmpty()) std::this_thread::sleep_for(10ms);
    control.cancelled = true;
  });
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(failureLine(), "job: cancelled");
  canceller.join();
  EXPECT_LT(clock.elapsed(), 5000);
  const int pid = contentsOf(pidFile).trimmed().toInt();
  ASSERT_GT(pid, 0);
  const QString process = QStringLiteral("/proc/%1/exe").arg(pid);
  EXPECT_TRUE(QTest::qWaitFor([&process] { return !QFile::exists(process); }));
  EXPECT_TRUE(leftBehind().isEmpty());
}

TEST_F(FilterChain, EndsAFilterThatDoesNotListenWhenCancelled) {
  constexpr int longestMilliseconds = 10000;
  const CapturingFilter filter(QStringLiteral("trap '' TERM INT; while :; do sleep 1; done"));
  request.ppdFile = filter.ppdFile();
  std::thread canceller([&] {
    while (filter.argument(5).isEmpty() && filter.argument(1).isEmpty()) {
      std::this_thread::sleep_for(10ms);
    }
    control.cancelled = true;
  });
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(failureLine(), "job: cancelled");
  canceller.join();
  EXPECT_LT(clock.elapsed(), longestMilliseconds);
}

TEST_F(FilterChain, HoldsNoDocumentInMemory) {
  if (!memoryCanBeMeasured) GTEST_SKIP() << "memory can't be measured in this build";
  constexpr long mostGrowth = 32L << 20;
  const CapturingFilter filter(QStringLiteral("head -c 200000000 /dev/zero"));
  request.ppdFile = filter.ppdFile();
  request.outputFile = QStringLiteral("/dev/null");
  const long before = peakMemory();
  const auto result = printThroughFilters(request, control);
  ASSERT_TRUE(result) << result.failure().line().toStdString();
  EXPECT_EQ(result.value().bytes, 200000000);
  EXPECT_LT(peakMemory() - before, mostGrowth);
}

}  // namespace
}  // namespace orvek::test
