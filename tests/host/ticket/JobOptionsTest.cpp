// SPDX-License-Identifier: Apache-2.0
// What a job says of itself.

#include "host/ticket/JobOptions.h"

#include <gtest/gtest.h>

#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

class JobOptionsTest : public testing::Test {
 protected:
  JobOptionsTest() { marks.markDefaults(); }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("finisher.ppd"));
  Marks marks{printer->ppd()};
};

TEST_F(JobOptionsTest, SayNothingWhereAllIsAsThePpdHasIt) {
  EXPECT_EQ(jobOptionsFor(marks, {}, {}, 0), Options());
}

TEST_F(JobOptionsTest, SayWhatDiffersFromThePpdsDefault) {
  marks.mark("OVKFolding", "Saddle");
  EXPECT_EQ(jobOptionsFor(marks, {}, {}, 0), (Options{{"OVKFolding", "Saddle"}}));
}

TEST_F(JobOptionsTest, SayTheDefaultWhereTheQueueWouldChooseOtherwise) {
  const QList<OptionChoice> queue{{"OVKFolding", "saddle"}, {"Unknown", "x"}};
  EXPECT_EQ(jobOptionsFor(marks, queue, {}, 0), (Options{{"OVKFolding", "None"}}));
}

TEST_F(JobOptionsTest, SayWhatTheQueueChoosesWhereItIsNotThePpdsDefault) {
  marks.mark("OVKFolding", "Saddle");
  EXPECT_EQ(jobOptionsFor(marks, {{"OVKFolding", "Saddle"}}, {}, 0),
            (Options{{"OVKFolding", "Saddle"}}));
}

TEST_F(JobOptionsTest, CarryEveryTicketKeyAsText) {
  EXPECT_EQ(jobOptionsFor(marks, {}, {{"OVKGutter", "24"}, {"number", 7}}, 0),
            (Options{{"OVKGutter", "24"}, {"number", "7"}}));
}

TEST_F(JobOptionsTest, GiveTheMarkedChoiceForAnOptionsTicketKey) {
  EXPECT_EQ(jobOptionsFor(marks, {}, {{"OVKFolding", "saddle"}}, 0),
            (Options{{"OVKFolding", "None"}}));
}

TEST_F(JobOptionsTest, NameThePagesPerSheetAsThePrintServerDoes) {
  EXPECT_EQ(jobOptionsFor(marks, {}, {}, 4), (Options{{"number-up", "4"}}));
  EXPECT_EQ(jobOptionsFor(marks, {}, {}, 1), Options());
}

}  // namespace
}  // namespace orvek::test
