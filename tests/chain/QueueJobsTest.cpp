// SPDX-License-Identifier: Apache-2.0
// Jobs by way of a print server: lp and the dialog print the same sheets, those of the preview.

#include <gtest/gtest.h>

#include <QJsonArray>
#include <QRegularExpression>

#include "tests/chain/Agreement.h"
#include "tests/chain/CodedPages.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/MarkedDocument.h"
#include "tests/driver/Picture.h"
#include "tests/host/cli/Program.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

const QString kQueue = QStringLiteral("office");

/// Options that lp and the dialog have alike, with a space between.
constexpr const char *lines[] = {
    "-o OVKEnableBooklet -o OVKGutter=36",
    "-o OVKEnableBooklet=True -o OVKRightToLeft -o OVKCreep=-12 -o OVKTargetPaperSize=1 -P 2-8",
    "-o OVKEnableBooklet -o OVKPrintPageBorders -n 2 -o media=A5",
    "-o OVKEnableBooklet -o outputorder=reverse -o sides=one-sided",
    "-o number-up=4 -o number-up-layout=tbrl -o sides=two-sided-long-edge",
    "-o landscape -o number-up=2 -o Duplex=DuplexTumble -o page-ranges=1,3-",
    "-o PageSize=Letter -o outputorder=reverse -n 2",
};

/// Flags that are off, or on in other words and letters than a panel's.
constexpr const char *flagLines[] = {
    "-o OVKEnableBooklet=false",
    "-o OVKEnableBooklet=off",
    "-o OVKEnableBooklet=no",
    "-o OVKEnableBooklet=0",
    "-o noOVKEnableBooklet",
    "-o OVKEnableBooklet=none",
    "-o OVKEnableBooklet -o OVKRightToLeft=false -o OVKPrintPageBorders=no",
    "-o ovkenablebooklet=true -o OVKGUTTER=36 -o ovkrighttoleft=yes -o ovkprintpageborders=off",
};

QStringList words(const char *line) {
  return QString::fromLatin1(line).split(u' ', Qt::SkipEmptyParts);
}

/// Nine pages, some of them turned, some of another size.
std::string document() {
  std::vector<MarkedPage> pages(9);
  pages[2].rotate = 90;
  pages[4].size = {842, 595};
  pages[5].size = {420, 595};
  pages[6].rotate = 180;
  return documentOf(pages, codedPage);
}

class QueueJobs : public ::testing::Test {
 protected:
  void SetUp() override {
    const QStringList obstacles{PrivateCups::obstacle(), obstacleToFilters(),
                                QString::fromStdString(obstacleToLooking())};
    const QString obstacle = obstacles.join(QString());
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    cups = std::make_unique<PrivateCups>();
    ASSERT_EQ(cups->addQueue(kQueue, orvekPPD(QStringLiteral("6180"))).exitStatus, 0);
    file = kit.write(QStringLiteral("in.pdf"), document());
  }

  QStringList onQueue(const QStringList &options) const {
    return QStringList{QStringLiteral("-d"), destination} + options + QStringList{file};
  }

  PaperSides paperOfJob(const QString &said) {
    const auto job =
        QRegularExpression(QStringLiteral("office-([0-9]+)")).match(said).captured(1).toInt();
    EXPECT_EQ(cups->waitForJob(job), QStringLiteral("completed")) << cups->log().toStdString();
    return paperIn(cups->printedBy(kQueue));
  }

  PaperSides printWithLp(const QStringList &options) {
    return paperOfJob(cups->run(QStringLiteral("lp"), onQueue(options)).output);
  }

  PaperSides printWithTheDialog(const QStringList &options) {
    const auto run = runProgram(
        QStringList{QStringLiteral("--headless"), QStringLiteral("--print")} + onQueue(options));
    EXPECT_EQ(run.status, 0) << run.errors.toStdString();
    return paperOfJob(QString::fromUtf8(run.output));
  }

  QJsonObject preview(const QStringList &options) const {
    return runProgram(QStringList{QStringLiteral("--headless"), QStringLiteral("--inspect")} +
                      onQueue(options))
        .json()["preview"]
        .toObject();
  }

  void save(const QString &place, const char *options) const {
    const auto saved = cups->run(QStringLiteral("lpoptions"),
                                 QStringList{QStringLiteral("-p"), place} + words(options));
    ASSERT_EQ(saved.exitStatus, 0) << saved.errors.toStdString();
  }

  void expectAgreement(const QStringList &options) {
    const QJsonObject said = preview(options);
    EXPECT_GT(said["sides"].toArray().size(), 0);
    EXPECT_EQ(differences(said, printWithLp(options)), QStringList());
    EXPECT_EQ(differences(said, printWithTheDialog(options)), QStringList());
  }

  std::unique_ptr<PrivateCups> cups;
  QString destination = kQueue;
  DriverKit kit;
  QString file;
};

TEST_F(QueueJobs, ComeOutOfLpAndOfTheDialogAsThePreviewSays) {
  for (const char *line : lines) {
    SCOPED_TRACE(line);
    expectAgreement(words(line));
  }
}

TEST_F(QueueJobs, HaveTheirFlagsReadAsLpHasThemRead) {
  for (const char *line : flagLines) {
    SCOPED_TRACE(line);
    expectAgreement(words(line));
  }
}

TEST_F(QueueJobs, MakeOfLpsOptionsTheBookletThatThePanelMakes) {
  const PaperSides paper = printWithLp({QStringLiteral("-o"), QStringLiteral("OVKEnableBooklet"),
                                        QStringLiteral("-o"), QStringLiteral("OVKGutter=36")});
  QStringList acts;
  for (const char *act : {"foldingPopup=Saddle", "bookletChckBox=on", "gutterSlider=36"}) {
    acts << QStringLiteral("--do") << QLatin1String(act);
  }
  const PaperSides panels = printWithTheDialog(acts);
  EXPECT_EQ(paper.sides.size(), 6U);
  expectSeen(panels.sides, paper.sides);
  EXPECT_EQ(differences(preview(acts), paper), QStringList());
}

TEST_F(QueueJobs, BecomeTheBookletThatTheUserSaved) {
  save(kQueue, "-o OVKEnableBooklet=true -o OVKGutter=36");
  EXPECT_EQ(printWithLp({}).sides.size(), 6U);
  expectAgreement({});
  expectAgreement(words("-o OVKEnableBooklet=false"));
  expectAgreement(words("-o ovkgutter=0 -o OVKRightToLeft"));
}

TEST_F(QueueJobs, BecomeTheBookletOfTheirInstanceAlone) {
  save(kQueue + QStringLiteral("/booklet"), "-o ovkenablebooklet=yes -o OVKRightToLeft=off");
  expectAgreement({});
  destination = kQueue + QStringLiteral("/booklet");
  EXPECT_EQ(printWithLp({}).sides.size(), 6U);
  expectAgreement({});
}

TEST_F(QueueJobs, BecomeTheBookletThatTheServerMakesOfJobsThatSayNothing) {
  const auto set = cups->run(QStringLiteral("lpadmin"),
                             QStringList{QStringLiteral("-p"), kQueue} +
                                 words("-o OVKEnableBooklet-default=true -o OVKGutter-default=36"));
  ASSERT_EQ(set.exitStatus, 0) << set.errors.toStdString();
  EXPECT_EQ(printWithLp({}).sides.size(), 6U);
  expectAgreement({});
  save(kQueue, "-o OVKEnableBooklet=false");
  expectAgreement({});
}

}  // namespace
}  // namespace orvek::test
