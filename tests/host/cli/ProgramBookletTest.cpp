// SPDX-License-Identifier: Apache-2.0
// A booklet by way of the panel, printed into a file by the program.

#include <gtest/gtest.h>

#include "imposition/Booklet.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

using imposition::Size;

class ProgramBooklet : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
  }

  QByteArray print(const QString &document) {
    const auto run = runProgram(
        {QStringLiteral("--headless"), QStringLiteral("--ppd"), orvekPPD(QStringLiteral("6180")),
         QStringLiteral("--do"), QStringLiteral("foldingPopup=Saddle"), QStringLiteral("--do"),
         QStringLiteral("bookletChckBox=on"), QStringLiteral("--output"), out, document});
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    EXPECT_TRUE(run.errorLines().isEmpty());
    return contentsOf(out);
  }

  DriverKit kit;
  QString out = kit.path(QStringLiteral("out.ps"));
};

TEST_F(ProgramBooklet, PrintsIntoAFileWhatThePanelAskedFor) {
  const QByteArray printed = print(kit.write(QStringLiteral("in.pdf"), markedDocument(8)));
  constexpr Size a4{595, 842};
  const std::vector<Size> pages(8, a4);
  expectSeen(look(out.toStdString()), expectedSides(imposition::imposeBooklet(pages, a4, {}), a4));
  EXPECT_EQ(printed.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
  EXPECT_EQ(printed.count("%%BeginFeature: *OVKFolding Saddle"), 1);
}

TEST_F(ProgramBooklet, PrintsTheSampleOnTwoSheets) {
  const QByteArray printed =
      print(QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"));
  EXPECT_EQ(printed.count("%%Page: "), 4);
  EXPECT_EQ(printed.count("%%BeginFeature: *Duplex DuplexTumble"), 1);
}

TEST_F(ProgramBooklet, IsMadeHereWhereTheServerCannotMakeItAndSaysSo) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  PrivateCupsSetup setup;
  setup.hasDriver = false;
  PrivateCups cups(setup);
  cups.addQueue(QStringLiteral("old"), kit.plainPPD());
  const QString document = kit.write(QStringLiteral("in.pdf"), markedDocument(8));
  const auto run = runProgram({QStringLiteral("--headless"), QStringLiteral("--print"),
                               QStringLiteral("-d"), QStringLiteral("old"), QStringLiteral("--do"),
                               QStringLiteral("bookletChckBox=on"), document});
  EXPECT_EQ(run.status, 0) << run.errors.toStdString();
  EXPECT_EQ(run.output, "request id is old-1 (1 file(s))\n");
  EXPECT_TRUE(
      run.errors.contains("old: the server's driver can't make booklets; the sheets were "
                          "made here and sent finished\n"));
  EXPECT_EQ(cups.waitForJob(1), QStringLiteral("completed"));
  constexpr Size a4{595, 842};
  const std::vector<Size> pages(8, a4);
  expectSeen(look(cups.printedBy(QStringLiteral("old")).toStdString()),
             expectedSides(imposition::imposeBooklet(pages, a4, {}), a4));
}

TEST_F(ProgramBooklet, IsMadeHereWithoutBannersForAServerThatStopsEveryJobAndSaysSo) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  PrivateCupsSetup setup;
  setup.hasDriver = false;
  PrivateCups cups(setup);
  const QString queue = QStringLiteral("new");
  cups.addQueue(queue, orvekPPD(QStringLiteral("6180")), cups.keepingBackend(queue));
  const QString document = kit.write(QStringLiteral("in.pdf"), markedDocument(2));
  const QStringList job{QStringLiteral("--headless"), QStringLiteral("--print"),
                        QStringLiteral("-d"), queue, document};
  const QByteArray said = "stops every job; the sheets were made here and sent finished";
  EXPECT_TRUE(runProgram(job).errors.contains(QByteArray(said + "\n")));
  const auto withBanner =
      runProgram(job + QStringList{QStringLiteral("-o"), QStringLiteral("job-sheets=standard")});
  EXPECT_EQ(withBanner.status, 0);
  EXPECT_TRUE(withBanner.errors.contains(QByteArray(said + ", without banner pages\n")))
      << withBanner.errors.toStdString();
}

}  // namespace
}  // namespace orvek::test
