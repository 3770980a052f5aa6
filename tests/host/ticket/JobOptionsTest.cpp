// SPDX-License-Identifier: Apache-2.0
// What a job says of itself.

#include "host/ticket/JobOptions.h"

#include <gtest/gtest.h>

#include "platform/plugin/BookletKeys.h"
#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

class JobOptionsTest : public testing::Test {
 protected:
  JobOptionsTest() { marks.markDefaults(); }

  Options options(const QList<OptionChoice> &queueOptions, const TicketValues &ticket) {
    return jobOptionsFor(marks, {queueOptions, ticket, {}, {}, {}});
  }

  std::shared_ptr<PrinterDescription> printer = openTestPpd(QStringLiteral("finisher.ppd"));
  Marks marks{*printer};
};

TEST_F(JobOptionsTest, SayNothingWhereAllIsAsThePpdHasIt) {
  EXPECT_EQ(options({}, {}), Options());
}

TEST_F(JobOptionsTest, SayWhatDiffersFromThePpdsDefault) {
  marks.mark("OVKFolding", "Saddle");
  EXPECT_EQ(options({}, {}), (Options{{"OVKFolding", "Saddle"}}));
}

TEST_F(JobOptionsTest, SayTheDefaultWhereTheQueueWouldChooseOtherwise) {
  const QList<OptionChoice> queue{{"OVKFolding", "saddle"}, {"Unknown", "x"}};
  EXPECT_EQ(options(queue, {}), (Options{{"OVKFolding", "None"}}));
}

TEST_F(JobOptionsTest, SayWhatTheQueueChoosesWhereItIsNotThePpdsDefault) {
  marks.mark("OVKFolding", "Saddle");
  EXPECT_EQ(options({{"OVKFolding", "Saddle"}}, {}), (Options{{"OVKFolding", "Saddle"}}));
}

TEST_F(JobOptionsTest, CarryEveryTicketKeyAsText) {
  EXPECT_EQ(options({}, {{"OVKGutter", "24"}, {"number", 7}}),
            (Options{{"OVKGutter", "24"}, {"number", "7"}}));
}

TEST_F(JobOptionsTest, GiveTheMarkedChoiceForAnOptionsTicketKey) {
  EXPECT_EQ(options({}, {{"OVKFolding", "saddle"}}), (Options{{"OVKFolding", "None"}}));
}

TEST_F(JobOptionsTest, NameThePagesPerSheetAsThePrintServerDoes) {
  EXPECT_EQ(options({}, {{layoutNUpKey, 4}}), (Options{{"number-up", "4"}, {layoutNUpKey, "4"}}));
  EXPECT_EQ(options({}, {{layoutNUpKey, 1}}), (Options{{layoutNUpKey, "1"}}));
}

TEST_F(JobOptionsTest, CarryTheJobSettings) {
  JobSources job;
  job.settings.copies = 3;
  job.settings.collate = false;
  EXPECT_EQ(jobOptionsFor(marks, job), (Options{{"copies", "3"}, {"Collate", "False"}}));
}

TEST_F(JobOptionsTest, LeaveCollationToAPrinterThatHasAnOptionForIt) {
  const auto collating =
      PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd")).take();
  Marks collatingMarks(*collating);
  collatingMarks.markDefaults();
  JobSources job;
  job.settings.collate = false;
  EXPECT_EQ(jobOptionsFor(collatingMarks, job), Options());
  collatingMarks.mark("Collate", "False");
  EXPECT_EQ(jobOptionsFor(collatingMarks, job), (Options{{"Collate", "False"}}));
}

}  // namespace
}  // namespace orvek::test
