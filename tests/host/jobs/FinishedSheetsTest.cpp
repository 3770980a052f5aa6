// SPDX-License-Identifier: Apache-2.0
// Jobs to print servers that lack the driver: what is sent instead, and what comes out of it.

#include <gtest/gtest.h>

#include <QTemporaryDir>

#include "driver/StandardPPD.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/QueueJob.h"
#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

using imposition::Size;

constexpr Size a4{595, 842};
constexpr Size a3{842, 1191};
const QString queueName = QStringLiteral("office");

std::vector<SeenSide> bookletOf(std::size_t pages, Size paper = a4,
                                const imposition::BookletKeys &keys = {}) {
  const std::vector<Size> sizes(pages, a4);
  return expectedSides(imposition::imposeBooklet(sizes, paper, keys), paper);
}

/// Two copies, as somebody draws them who does not collate.
std::vector<SeenSide> eachTwice(const std::vector<SeenSide> &sides) {
  std::vector<SeenSide> all;
  for (const SeenSide &side : sides) all.insert(all.end(), 2, side);
  return all;
}

/// Whether the printer is told to make two copies, set by set.
bool makesTwoSets(const QByteArray &bytes) {
  return bytes.contains("*NumCopies 2") && bytes.contains("%%BeginFeature: *Collate True");
}

/// A server without the driver, and a queue of a printer that makes booklets.
class SheetsMadeHere : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
    PrivateCupsSetup setup;
    setup.hasDriver = false;
    cups = std::make_unique<PrivateCups>(setup);
    request.queue = queueName;
    request.mayMakeSheets = true;
    request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")}};
  }

  /// Its description names no filter, as it was before there was a driver.
  void addOldQueue() {
    const auto own = contentsOf(orvekPPD(QStringLiteral("6180"))).toStdString();
    addQueue(kit.write(QStringLiteral("old.ppd"), driver::withoutFilterLines(own)));
  }

  /// Its description names a driver that is not there.
  void addNewQueue() { addQueue(orvekPPD(QStringLiteral("6180"))); }

  void addQueue(const QString &ppd) {
    const auto made = cups->addQueue(queueName, ppd, cups->keepingBackend(queueName));
    ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
  }

  QString document(int pages) const {
    return kit.write(QStringLiteral("in.pdf"), markedDocument(pages));
  }

  JobOutcome submit() {
    const auto result = submitToQueue(request, control);
    EXPECT_TRUE(result) << (result ? "" : result.failure().line().toStdString());
    return result ? result.value() : JobOutcome{};
  }

  /// Nothing is sent.
  void expectHeldBack(ServerDriver driver) {
    request.mayMakeSheets = false;
    request.files = {document(4)};
    const JobOutcome heldBack = submit();
    EXPECT_TRUE(heldBack.isHeldBack);
    EXPECT_EQ(heldBack.driver, driver);
    EXPECT_EQ(heldBack.jobId, 0);
    EXPECT_TRUE(cups->jobAttributes(1).isEmpty());
  }

  /// What the printer got of a job.
  QByteArray printed(ServerDriver driver) {
    outcome = submit();
    EXPECT_EQ(outcome.driver, driver);
    EXPECT_FALSE(outcome.isHeldBack);
    EXPECT_EQ(cups->waitForJob(outcome.jobId), QStringLiteral("completed"))
        << cups->log().toStdString();
    return contentsOf(cups->printedBy(queueName));
  }

  std::vector<SeenSide> seen() const { return look(cups->printedBy(queueName).toStdString()); }

  /// What is seen where the same job is printed into a file.
  std::vector<SeenSide> asIntoAFile() {
    JobRequest same = request;
    same.ppdFile = orvekPPD(QStringLiteral("6180"));
    same.outputFile = kit.path(QStringLiteral("out.ps"));
    EXPECT_TRUE(printThroughFilters(same, control));
    return look(same.outputFile.toStdString());
  }

  QString attribute(const char *name) const {
    return cups->jobAttributes(outcome.jobId).value(QLatin1String(name));
  }

  DriverKit kit;
  std::unique_ptr<PrivateCups> cups;
  JobRequest request;
  JobControl control;
  JobOutcome outcome;
};

TEST_F(SheetsMadeHere, AreABookletWhereTheServerIsToldOfNoDriver) {
  addOldQueue();
  request.files = {document(8)};
  request.options.insert(QStringLiteral("copies"), QStringLiteral("2"));
  request.options.insert(QStringLiteral("OVKGutter"), QStringLiteral("36"));
  request.options.insert(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  request.options.insert(QStringLiteral("Duplex"), QStringLiteral("None"));
  const QByteArray bytes = printed(ServerDriver::MakesNoBooklets);
  imposition::BookletKeys keys;
  keys.gutter = 36;
  expectSeen(seen(), eachTwice(bookletOf(8, a4, keys)));
  EXPECT_EQ(bytes.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
  EXPECT_EQ(bytes.count("%%BeginFeature: *OVKFolding Saddle"), 1);
  EXPECT_TRUE(makesTwoSets(bytes));
  EXPECT_EQ(attribute("copies"), QStringLiteral("2"));
  EXPECT_EQ(attribute("job-name"), QStringLiteral("in.pdf"));
}

TEST_F(SheetsMadeHere, AskTheServerForNothingThatIsDone) {
  addOldQueue();
  request.files = {document(8)};
  request.options.insert(QStringLiteral("page-ranges"), QStringLiteral("1-3"));
  request.options.insert(QStringLiteral("OutputOrder"), QStringLiteral("reverse"));
  request.options.insert(QStringLiteral("number-up"), QStringLiteral("1"));
  printed(ServerDriver::MakesNoBooklets);
  expectSeen(seen(), asIntoAFile());
  for (const char *done : {"page-ranges", "outputorder", "OutputOrder", "OVKEnableBooklet"}) {
    EXPECT_EQ(attribute(done), QString()) << done;
  }
}

TEST_F(SheetsMadeHere, AreTurnedRoundOnceByWhicheverWordTheirOrderWasAskedFor) {
  addOldQueue();
  request.files = {document(8)};
  for (const char *order : {"OutputOrder", "output-order", "page-delivery"}) {
    SCOPED_TRACE(order);
    request.options = {{QStringLiteral("OVKEnableBooklet"), QStringLiteral("True")},
                       {QLatin1String(order), QStringLiteral("reverse")}};
    printed(ServerDriver::MakesNoBooklets);
    expectSeen(seen(), asIntoAFile());
    EXPECT_EQ(attribute(order), QString());
  }
}

TEST_F(SheetsMadeHere, AreOnThePaperThatTheBookletIsFor) {
  const QByteArray ppd = contentsOf(orvekPPD(QStringLiteral("6180")));
  const qsizetype before = ppd.indexOf("\n*OpenUI *PageSize");
  const auto place = ppd.mid(before, ppd.indexOf("\n*PageSize A3/") - before).count("\n*PageSize ");
  addOldQueue();
  request.files = {document(4)};
  request.sheetPaper = QStringLiteral("A3");
  request.options.insert(QStringLiteral("OVKTargetPaperSize"), QString::number(place + 1));
  request.options.insert(QStringLiteral("media"), QStringLiteral("A4"));
  printed(ServerDriver::MakesNoBooklets);
  expectSeen(seen(), bookletOf(4, a3));
}

TEST_F(SheetsMadeHere, TakeWhatIsSavedForTheQueueIntoAccount) {
  addOldQueue();
  ASSERT_EQ(
      cups->run(QStringLiteral("lpoptions"), {QStringLiteral("-p"), queueName, QStringLiteral("-o"),
                                              QStringLiteral("page-ranges=2-5")})
          .exitStatus,
      0);
  request.files = {document(8)};
  printed(ServerDriver::MakesNoBooklets);
  EXPECT_EQ(seen().size(), 2U);
  EXPECT_EQ(attribute("page-ranges"), QString());
}

TEST_F(SheetsMadeHere, AreABookletEachOfSeveralDocuments) {
  addOldQueue();
  const QString text = kit.write(QStringLiteral("in.txt"), "A text\n");
  request.files = {document(5), text};
  printed(ServerDriver::MakesNoBooklets);
  EXPECT_EQ(outcome.documents, 2);
  EXPECT_EQ(seen().size(), 6U);
}

TEST_F(SheetsMadeHere, AreNotNeededForOtherJobsWhereTheServerIsToldOfNoDriver) {
  addOldQueue();
  request.files = {document(2)};
  request.options.clear();
  EXPECT_EQ(printed(ServerDriver::Works).count("%%Page: "), 2);
}

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

TEST_F(SheetsMadeHere, AreMadeOfEveryJobWhereTheServerStopsEveryJob) {
  addNewQueue();
  request.files = {document(3)};
  request.options.clear();
  EXPECT_EQ(printed(ServerDriver::StopsEveryJob).count("%%Page: "), 3);
}

// With a job that needs no filter the server takes its warning back.
TEST_F(SheetsMadeHere, AreMadeAgainThoughTheServerNoLongerWarns) {
  addNewQueue();
  request.files = {document(4)};
  const int first = submit().jobId;
  EXPECT_EQ(cups->waitForJob(first), QStringLiteral("completed"));
  printed(ServerDriver::StopsEveryJob);
  expectSeen(seen(), bookletOf(4));
  EXPECT_EQ(cups->waitForJob(first + 1), QStringLiteral("canceled"));
}

TEST_F(SheetsMadeHere, AreMadeOfStandardInput) {
  addNewQueue();
  const StandardInput input(QByteArray::fromStdString(markedDocument(4)));
  printed(ServerDriver::StopsEveryJob);
  expectSeen(seen(), bookletOf(4));
}

TEST_F(SheetsMadeHere, AreNotMadeOfABookletUnlessTheRequestSaysSo) {
  addOldQueue();
  expectHeldBack(ServerDriver::MakesNoBooklets);
}

TEST_F(SheetsMadeHere, AreNotMadeForAServerThatStopsEveryJobUnlessTheRequestSaysSo) {
  addNewQueue();
  expectHeldBack(ServerDriver::StopsEveryJob);
  request.options.clear();
  expectHeldBack(ServerDriver::StopsEveryJob);
}

TEST_F(SheetsMadeHere, AreNoAffairOfAQueueWithoutAPpdOrWithAnothersFilter) {
  addQueue({});
  request.files = {document(2)};
  EXPECT_EQ(submit().driver, ServerDriver::Works);
  const CapturingFilter filter;
  addQueue(filter.ppdFile());
  EXPECT_EQ(submit().driver, ServerDriver::Works);
}

TEST_F(SheetsMadeHere, AreNoAffairOfBytesThatAreThePrintersOwn) {
  addNewQueue();
  request.files = {kit.write(QStringLiteral("in.ps"), postScriptDocument(1).toStdString())};
  request.options.insert(QStringLiteral("raw"), QStringLiteral("true"));
  EXPECT_TRUE(printed(ServerDriver::Works) == postScriptDocument(1));
}

}  // namespace
}  // namespace orvek::test
