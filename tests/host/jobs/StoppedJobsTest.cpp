// SPDX-License-Identifier: Apache-2.0
// Jobs to print servers that stop every job for want of the driver: what is sent instead, and what
// comes out of it.

#include <QThread>

#include "host/jobs/FinishedSheets.h"
#include "host/jobs/JobState.h"
#include "tests/host/jobs/SheetsMadeHere.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

TEST_F(SheetsMadeHere, GoToAServerThatStopsEveryJobAsThePrinterTakesThem) {
  addNewQueue();
  request.files = {document(8)};
  request.options.insert(QStringLiteral("copies"), QStringLiteral("2"));
  request.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  const QByteArray bytes = printed(ServerDriver::StopsEveryJob);
  expectSeen(seen(), eachTwice(bookletOf(8)));
  EXPECT_EQ(bytes.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
  EXPECT_EQ(bytes.count("%%BeginFeature: *OVKFolding Saddle"), 1);
  // The printer makes the copies; whoever sends it the bytes must not make them once more.
  EXPECT_TRUE(makesTwoSets(bytes));
  EXPECT_EQ(attribute("copies"), QStringLiteral("1"));
}

TEST_F(SheetsMadeHere, ComeWithoutBannersFromAServerThatStopsEveryJobAndTheOutcomeSaysSo) {
  addNewQueue();
  request.files = {document(4)};
  request.options.insert(QStringLiteral("job-sheets"), QStringLiteral("none,standard"));
  request.mayMakeSheets = false;
  EXPECT_TRUE(submit().lacksBanners);
  request.mayMakeSheets = true;
  printed(ServerDriver::StopsEveryJob);
  EXPECT_TRUE(outcome.lacksBanners);
  EXPECT_EQ(attribute("job-sheets"), QStringLiteral("none"));
  for (const char *none : {"none", "none,none"}) {
    request.options.insert(QStringLiteral("job-sheets"), QLatin1String(none));
    EXPECT_FALSE(submit().lacksBanners) << none;
  }
  request.options.remove(QStringLiteral("job-sheets"));
  EXPECT_FALSE(submit().lacksBanners);
}

TEST_F(SheetsMadeHere, AreMadeOfEveryJobWhereTheServerStopsEveryJob) {
  addNewQueue();
  EXPECT_EQ(printedPlain(3, ServerDriver::StopsEveryJob).count("%%Page: "), 3);
}

// With a job that needs no filter the server takes its warning back.
TEST_F(SheetsMadeHere, AreMadeAgainAtOnceThoughTheServerNoLongerWarns) {
  addNewQueue();
  request.files = {document(4)};
  const int first = submit().jobId;
  EXPECT_EQ(cups->waitForJob(first), QStringLiteral("completed"));
  printed(ServerDriver::StopsEveryJob);
  expectSeen(seen(), bookletOf(4));
  EXPECT_EQ(outcome.jobId, first + 1) << "there was a job between";
  // Of another job the description that its session has tells whose driver it is.
  request.options.clear();
  request.ppdFile = orvekPPD(QStringLiteral("6180"));
  printed(ServerDriver::StopsEveryJob);
  EXPECT_EQ(outcome.jobId, first + 2) << "there was a job between";
}

TEST_F(SheetsMadeHere, AreMadeOfAJobThatTheServerStopsWithoutAWarning) {
  addNewQueue();
  const QString bytes = kit.write(QStringLiteral("in.ps"), postScriptDocument(1).toStdString());
  const auto raw = cups->run(
      QStringLiteral("lp"),
      {QStringLiteral("-d"), queueName, QStringLiteral("-o"), QStringLiteral("raw"), bytes});
  ASSERT_EQ(raw.exitStatus, 0) << raw.errors.toStdString();
  EXPECT_EQ(cups->waitForJob(1), QStringLiteral("completed"));
  request.files = {document(4)};
  printed(ServerDriver::StopsEveryJob);
  expectSeen(seen(), bookletOf(4));
  EXPECT_EQ(cups->waitForJob(2), QStringLiteral("canceled"));
}

TEST_F(SheetsMadeHere, AreKnownOfByAServerThatWasAskedAhead) {
  addNewQueue();
  request.files = {document(4)};
  EXPECT_EQ(cups->waitForJob(submit().jobId), QStringLiteral("completed"));
  ServerAccess access{request.server, request.user, nullptr, std::chrono::milliseconds(100)};
  access.staysOpen = true;
  bool isKnown = false;
  for (unsigned long wait = 20; wait < 5000 && !isKnown; wait *= 2) {
    ServerTalk::close(ServerTalk::open(access).take());
    askAheadForJob(access, queueName, orvekPPD(QStringLiteral("6180")));
    QThread::msleep(wait);
    cups->pause();
    const auto talk = ServerTalk::open(access);
    isKnown = talk && hasMarkedJob(*talk.value(), queueName, finishedSheetsMark);
    cups->resume();
  }
  EXPECT_TRUE(isKnown);
}

// The server warns no more, and its last job was another's.
TEST_F(SheetsMadeHere, AreMadeAtOnceBehindOthersThatWait) {
  addNewQueue();
  request.files = {document(4)};
  EXPECT_EQ(cups->waitForJob(submit().jobId), QStringLiteral("completed"));
  cups->run(QStringLiteral("cupsdisable"), {queueName});
  const int waiting = submit().jobId;
  const auto others = cups->run(QStringLiteral("lp"),
                                {QStringLiteral("-d"), queueName, request.files.constFirst()});
  ASSERT_EQ(others.exitStatus, 0) << others.errors.toStdString();
  cups->run(QStringLiteral("cancel"), {QString::number(waiting + 1)});
  EXPECT_EQ(cups->waitForJob(waiting + 1), QStringLiteral("canceled"));
  const JobOutcome last = submit();
  EXPECT_EQ(last.driver, ServerDriver::StopsEveryJob);
  cups->run(QStringLiteral("cupsenable"), {queueName});
  for (const int job : {waiting, last.jobId}) {
    EXPECT_EQ(cups->waitForJob(job), QStringLiteral("completed")) << job;
  }
}

TEST_F(SheetsMadeHere, AreMadeOfStandardInput) {
  addNewQueue();
  const StandardInput input(QByteArray::fromStdString(markedDocument(4)));
  printed(ServerDriver::StopsEveryJob);
  expectSeen(seen(), bookletOf(4));
}

TEST_F(SheetsMadeHere, AreNotMadeForAServerThatStopsEveryJobUnlessTheRequestSaysSo) {
  addNewQueue();
  expectHeldBack(ServerDriver::StopsEveryJob);
  request.options.clear();
  expectHeldBack(ServerDriver::StopsEveryJob);
}

TEST_F(SheetsMadeHere, AreNotMadeForWantOfAFilterThatIsNotTheDriver) {
  PrivateCupsSetup setup;
  cups.reset();
  cups = std::make_unique<PrivateCups>(setup);
  const QByteArray own = contentsOf(orvekPPD(QStringLiteral("6180")));
  const QByteArray more =
      "*cupsFilter2: \"image/urf application/vnd.cups-postscript 0 not-there\"\n";
  addQueue(kit.write(QStringLiteral("more.ppd"), QByteArray(own + more).toStdString()));
  request.files = {document(8)};
  request.mayMakeSheets = false;
  EXPECT_EQ(printed(ServerDriver::Works).count("%%Page: "), 4);
}

TEST_F(SheetsMadeHere, AreNoAffairOfBytesThatAreThePrintersOwn) {
  addNewQueue();
  request.files = {kit.write(QStringLiteral("in.ps"), postScriptDocument(1).toStdString())};
  request.options.insert(QStringLiteral("raw"), QStringLiteral("true"));
  EXPECT_TRUE(printed(ServerDriver::Works) == postScriptDocument(1));
}

}  // namespace
}  // namespace orvek::test
