// SPDX-License-Identifier: Apache-2.0
// Jobs to the queues of a real server.

#include "host/jobs/QueueJob.h"

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <thread>

#include "tests/support/CapturingFilter.h"
#include "tests/support/MemoryGrowth.h"
#include "tests/support/OddDocuments.h"
#include "tests/support/PrivateCups.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

const QString queueName = QStringLiteral("office");
const QString completedState = QStringLiteral("completed");

class QueueJob : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    startServer({});
    writeContents(document, postScriptDocument(2));
    request.queue = queueName;
    request.files = {document};
  }

  void startServer(const PrivateCupsSetup &setup) {
    cups.reset();
    cups = std::make_unique<PrivateCups>(setup);
    addQueue(queueName, orvekPPD(QStringLiteral("6180")));
  }

  void addQueue(const QString &name, const QString &ppd) {
    const auto made = cups->addQueue(name, ppd);
    ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
  }

  JobOutcome submit() {
    const auto result = submitToQueue(request, control);
    EXPECT_TRUE(result) << (result ? "" : result.failure().line().toStdString());
    return result ? result.value() : JobOutcome{};
  }

  QByteArray printedAfter(const JobOutcome &outcome) {
    EXPECT_EQ(cups->waitForJob(outcome.jobId), completedState) << cups->log().toStdString();
    return contentsOf(cups->printedBy(outcome.queue));
  }

  std::string failureLine() {
    const auto result = submitToQueue(request, control);
    return result ? "no failure" : result.failure().line().toStdString();
  }

  QTemporaryDir folder;
  QString document = folder.filePath(QStringLiteral("document.ps"));
  std::unique_ptr<PrivateCups> cups;
  JobRequest request;
  JobControl control;
};

TEST_F(QueueJob, PutsAChosenFeaturesCodeIntoWhatThePrinterGets) {
  request.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  EXPECT_TRUE(printedAfter(submit()).contains("%%BeginFeature: *OVKFolding Saddle"));
}

TEST_F(QueueJob, IsNotSentWhereNothingCanBePrintedOfItsDocument) {
  const QString pdf = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
  const QString odd = folder.filePath(QStringLiteral("odd.pdf"));
  request.files = {odd};
  writeContents(odd, pdfWithoutPages());
  EXPECT_EQ(failureLine(), odd.toStdString() + ": has no pages, so there is nothing to print");
  writeContents(odd, pdfBeyondRepair());
  EXPECT_EQ(failureLine(), odd.toStdString() + ": is damaged beyond repair");
  request.files = {pdf};
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("12-20"));
  EXPECT_EQ(failureLine(), pdf.toStdString() + ": has no page 12-20: the number of its pages is 8");
  if (!protect(pdf, QStringLiteral("secret"), odd)) GTEST_SKIP() << "qpdf is not installed";
  request.files = {odd};
  EXPECT_EQ(failureLine(),
            odd.toStdString() +
                ": it needs a password; print it from a program that opens it with that password");
  request.options = {};
  request.files = {document};
  EXPECT_EQ(submit().jobId, 1);
}

TEST_F(QueueJob, IsSentAsItIsWhereThatIsAskedFor) {
  writeContents(document, pdfBeyondRepair());
  request.options.insert(QStringLiteral("raw"), QStringLiteral("true"));
  EXPECT_EQ(failureLine(), "no failure");
}

TEST_F(QueueJob, LetsTheDriverReadTheBookletKeys) {
  const CapturingFilter filter;
  addQueue(QStringLiteral("capturing"), filter.ppdFile());
  request.queue = QStringLiteral("capturing");
  request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")},
                     {QStringLiteral("OVKRightToLeft"), QStringLiteral("False")},
                     {QStringLiteral("OVKGutter"), QStringLiteral("24")},
                     {QStringLiteral("OVKCreep"), QStringLiteral("-3")},
                     {QStringLiteral("OVKTargetPaperSize"), QStringLiteral("2")}};
  ASSERT_EQ(cups->waitForJob(submit().jobId), completedState) << cups->log().toStdString();
  const auto told = filter.options();
  // The scheduler hands flags on in libcups' short form, which is written in lower case.
  EXPECT_EQ(told.value(QStringLiteral("OVKEnableBooklet")), QStringLiteral("true"));
  EXPECT_EQ(told.value(QStringLiteral("OVKRightToLeft")), QStringLiteral("false"));
  EXPECT_EQ(told.value(QStringLiteral("OVKGutter")), QStringLiteral("24"));
  EXPECT_EQ(told.value(QStringLiteral("OVKCreep")), QStringLiteral("-3"));
  EXPECT_EQ(told.value(QStringLiteral("OVKTargetPaperSize")), QStringLiteral("2"));
}

TEST_F(QueueJob, SaysItsRequestIdAsLpDoes) {
  request.files = {document, document};
  const auto outcome = submit();
  EXPECT_EQ(requestIdLine(request, outcome),
            QStringLiteral("request id is office-%1 (2 file(s))").arg(outcome.jobId));
}

TEST_F(QueueJob, SendsSeveralDocumentsAsOneJob) {
  cups->run(QStringLiteral("cupsdisable"), {queueName});
  request.files = {document, document, document};
  const auto outcome = submit();
  EXPECT_EQ(cups->jobAttributes(outcome.jobId).value(QStringLiteral("number-of-documents")),
            QStringLiteral("3"));
  EXPECT_EQ(outcome.bytes, 3 * contentsOf(document).size());
}

TEST_F(QueueJob, PrintsStandardInput) {
  request.files.clear();
  const StandardInput input(postScriptDocument(3));
  const auto outcome = submit();
  EXPECT_EQ(printedAfter(outcome).count("%%Page: "), 3);
  EXPECT_EQ(requestIdLine(request, outcome),
            QStringLiteral("request id is office-%1 (0 file(s))").arg(outcome.jobId));
  EXPECT_EQ(cups->jobAttributes(outcome.jobId).value(QStringLiteral("job-name")),
            QStringLiteral("(stdin)"));
}

TEST_F(QueueJob, MakesNoJobOfEmptyStandardInput) {
  request.files.clear();
  const StandardInput input(QByteArray{});
  EXPECT_EQ(failureLine(), "standard input: is empty, so no job has been sent");
  EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
}

TEST_F(QueueJob, RefusesStandardInputTwice) {
  request.files = {QStringLiteral("-"), document, QStringLiteral("-")};
  const auto result = submitToQueue(request, control);
  ASSERT_FALSE(result);
  EXPECT_EQ(result.failure().kind, FailureKind::Usage);
}

TEST_F(QueueJob, GoesToTheDefaultPrinterWhereNoneIsNamed) {
  request.queue.clear();
  EXPECT_NE(failureLine().find("there is no default printer"), std::string::npos);
  qputenv("LPDEST", "office");
  EXPECT_EQ(submit().queue, queueName);
}

TEST_F(QueueJob, BeginsWithTheOptionsOfAnInstance) {
  cups->run(QStringLiteral("lpoptions"), {QStringLiteral("-p"), QStringLiteral("office/fold"),
                                          QStringLiteral("-o"), QStringLiteral("OVKFolding=Saddle"),
                                          QStringLiteral("-o"), QStringLiteral("job-priority=20")});
  request.instance = QStringLiteral("fold");
  request.priority = 60;
  const auto outcome = submit();
  EXPECT_TRUE(printedAfter(outcome).contains("*OVKFolding Saddle"));
  EXPECT_EQ(cups->jobAttributes(outcome.jobId).value(QStringLiteral("job-priority")),
            QStringLiteral("60"));
}

TEST_F(QueueJob, ReachesAServerByHostAndPort) {
  qputenv("CUPS_SERVER", "/nowhere.sock");
  request.server = cups->hostAndPort();
  EXPECT_GT(submit().jobId, 0);
}

TEST_F(QueueJob, NamesADocumentThatIsMissingBeforeThereIsAJob) {
  request.files << folder.filePath(QStringLiteral("none.ps"));
  EXPECT_EQ(failureLine(), request.files[1].toStdString() + ": No such file or directory");
  EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
}

TEST_F(QueueJob, SaysThatAQueueHasVanished) {
  ASSERT_EQ(cups->run(QStringLiteral("lpadmin"), {QStringLiteral("-x"), queueName}).exitStatus, 0);
  EXPECT_EQ(failureLine(), "office: no such printer on " + cups->socket().toStdString() +
                               "; \"orvek-print --list-printers\" lists them");
}

TEST_F(QueueJob, SaysThatAQueueTakesNoJobs) {
  cups->run(QStringLiteral("cupsreject"), {queueName});
  EXPECT_EQ(failureLine(), "office: the queue takes no jobs at present");
}

TEST_F(QueueJob, SaysThatTheServerRefusesTheUser) {
  cups->run(QStringLiteral("lpadmin"),
            {QStringLiteral("-p"), queueName, QStringLiteral("-u"), QStringLiteral("allow:berta")});
  request.user = QStringLiteral("anna");
  EXPECT_EQ(failureLine(), "office: the print server does not allow it for user \"anna\"");
}

TEST_F(QueueJob, SaysThatNoServerAnswers) {
  cups->stop();
  EXPECT_EQ(failureLine().find(cups->socket().toStdString() + ": no print server answers there"),
            0U);
}

TEST_F(QueueJob, PrintsAgainOnceTheServerIsBack) {
  cups->stop();
  EXPECT_NE(failureLine(), "no failure");
  cups->start();
  EXPECT_GT(submit().jobId, 0);
}

TEST_F(QueueJob, CancelsOnTheServerWhatIsCancelledHalfWay) {
  writeContents(document, postScriptDocument(1) + QByteArray(8 << 20, '\n'));
  control.progress = [this](const JobProgress &now) {
    if (now.bytes > now.expected / 2) control.cancelled = true;
  };
  EXPECT_EQ(failureLine(), "job: cancelled");
  EXPECT_EQ(cups->waitForJob(1), QStringLiteral("canceled"));
}

TEST_F(QueueJob, CanBeCancelledWhileTheServerHangs) {
  constexpr int longestMilliseconds = 15000;
  control.progress = [this](const JobProgress &) { cups->pause(); };
  std::thread canceller([this] {
    std::this_thread::sleep_for(500ms);
    control.cancelled = true;
    std::this_thread::sleep_for(500ms);
    cups->resume();
  });
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(failureLine(), "job: cancelled");
  canceller.join();
  EXPECT_LT(clock.elapsed(), longestMilliseconds);
}

TEST_F(QueueJob, GivesUpOnAServerThatHangsWhileItSends) {
  constexpr int longestMilliseconds = 10000;
  request.patience = 1s;
  control.progress = [this](const JobProgress &) { cups->pause(); };
  QElapsedTimer clock;
  clock.start();
  EXPECT_EQ(failureLine(), cups->socket().toStdString() +
                               ": the print server stopped answering; try again once it is up");
  EXPECT_LT(clock.elapsed(), longestMilliseconds);
}

TEST_F(QueueJob, FailsWhereTheServerStopsWhileItSends) {
  writeContents(document, postScriptDocument(1) + QByteArray(8 << 20, '\n'));
  control.progress = [this](const JobProgress &now) {
    if (now.bytes > now.expected / 2) cups->stop();
  };
  const std::string expected =
      document.toStdString() + ": the connection to the print server broke (";
  EXPECT_EQ(failureLine().substr(0, expected.size()), expected);
}

TEST_F(QueueJob, TakesALongStandardInputInLittleMemory) {
  constexpr qint64 megabyte = 1 << 20;
  if (!memoryCanBeMeasured) GTEST_SKIP() << "memory can't be measured in this build";
  constexpr long mostGrowth = 24L << 20;
  const qint64 megabytes = std::max(qEnvironmentVariableIntValue("ORVEK_TEST_INPUT_MB"), 64);
  const QString input = folder.filePath(QStringLiteral("input"));
  writeContents(input, postScriptDocument(1));
  ASSERT_TRUE(QFile::resize(input, megabytes * megabyte));
  cups->run(QStringLiteral("cupsdisable"), {queueName});
  request.files.clear();
  const StandardInput lent(input);
  const long before = peakMemory();
  const auto outcome = submit();
  EXPECT_EQ(outcome.bytes, megabytes * megabyte);
  EXPECT_LT(peakMemory() - before, mostGrowth);
}

}  // namespace
}  // namespace orvek::test
