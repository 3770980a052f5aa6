// SPDX-License-Identifier: Apache-2.0
// Booklets by way of a print server.

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

using imposition::BookletKeys;
using imposition::Size;

constexpr Size a4{595, 842};
const QString kQueue = QStringLiteral("office");

class Queue : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
    const QString obstacle = PrivateCups::obstacle() + obstacleToFilters();
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    cups = std::make_unique<PrivateCups>();
    ASSERT_EQ(cups->addQueue(kQueue, kit.ppd()).exitStatus, 0);
  }

  /// Prints and looks; the job's number stays in `job`.
  std::vector<SeenSide> print(const QStringList &options, const QString &file) {
    return print(options, QStringList{file});
  }

  std::vector<SeenSide> print(const QStringList &options, const QStringList &files) {
    QStringList arguments{QStringLiteral("-d"), kQueue};
    for (const QString &option : options) arguments << QStringLiteral("-o") << option;
    const Ran lp = cups->run(QStringLiteral("lp"), arguments << files);
    job =
        QRegularExpression(QStringLiteral("office-([0-9]+)")).match(lp.output).captured(1).toInt();
    EXPECT_EQ(cups->waitForJob(job), QStringLiteral("completed")) << cups->log().toStdString();
    return look(cups->printedBy(kQueue).toStdString());
  }

  std::unique_ptr<PrivateCups> cups;
  DriverKit kit;
  int job = 0;
};

TEST_F(Queue, PrintsABookletForTheCommandLine) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(8));
  const auto seen =
      print({QStringLiteral("OVKEnableBooklet"), QStringLiteral("OVKGutter=36")}, file);
  BookletKeys keys;
  keys.gutter = 36;
  const std::vector<Size> pages(8, a4);
  expectSeen(seen, expectedSides(imposition::imposeBooklet(pages, a4, keys), a4));
  EXPECT_TRUE(contentsOf(cups->printedBy(kQueue)).contains("%%BeginFeature: *Duplex DuplexTumble"));
}

TEST_F(Queue, CountsTheSidesOfSheets) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(5));
  print({QStringLiteral("OVKEnableBooklet")}, file);
  EXPECT_EQ(cups->jobAttributes(job).value(QStringLiteral("job-impressions-completed")),
            QStringLiteral("4"));
}

TEST_F(Queue, MakesEachDocumentOfAJobABookletOfItsOwn) {
  const QString shorter = kit.write(QStringLiteral("a.pdf"), markedDocument(3));
  const QString longer = kit.write(QStringLiteral("b.pdf"), markedDocument(5));
  const auto seen = print({QStringLiteral("OVKEnableBooklet")}, QStringList{shorter, longer});
  auto expected = expectedSides(imposition::imposeBooklet(std::vector<Size>(3, a4), a4, {}), a4);
  const auto second =
      expectedSides(imposition::imposeBooklet(std::vector<Size>(5, a4), a4, {}), a4);
  expected.insert(expected.end(), second.begin(), second.end());
  expectSeen(seen, expected);
}

TEST_F(Queue, LeavesOtherJobsAlone) {
  const QString file = kit.write(QStringLiteral("in.pdf"), markedDocument(3));
  EXPECT_EQ(print({}, file).size(), 3U);
  EXPECT_EQ(cups->jobAttributes(job).value(QStringLiteral("job-impressions-completed")),
            QStringLiteral("3"));
}

}  // namespace
}  // namespace orvek::test
