// SPDX-License-Identifier: Apache-2.0
// What tests share of jobs to print servers that lack the driver.
#pragma once

#include <gtest/gtest.h>

#include "driver/StandardPPD.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/QueueJob.h"
#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {

inline constexpr imposition::Size a4{595, 842};
inline constexpr imposition::Size a3{842, 1191};
inline const QString queueName = QStringLiteral("office");

inline std::vector<SeenSide> bookletOf(std::size_t pages, imposition::Size paper = a4,
                                       const imposition::BookletKeys &keys = {}) {
  const std::vector<imposition::Size> sizes(pages, a4);
  return expectedSides(imposition::imposeBooklet(sizes, paper, keys), paper);
}

/// Two copies, as somebody draws them who does not collate.
inline std::vector<SeenSide> eachTwice(const std::vector<SeenSide> &sides) {
  std::vector<SeenSide> all;
  for (const SeenSide &side : sides) all.insert(all.end(), 2, side);
  return all;
}

/// Whether the printer is told to make two copies, set by set.
inline bool makesTwoSets(const QByteArray &bytes) {
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

  /// What it got of a document without any options.
  QByteArray printedPlain(int pages, ServerDriver driver) {
    request.files = {document(pages)};
    request.options.clear();
    return printed(driver);
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

}  // namespace orvek::test
