// SPDX-License-Identifier: Apache-2.0
// Printers of a real server, as they are listed.

#include "host/printers/PrinterList.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QElapsedTimer>

#include "tests/support/CapturingFilter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

const QString firstQueue = QStringLiteral("first");
const QString secondQueue = QStringLiteral("second");

class PrinterList : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    const QString ppd = orvekPPD(QStringLiteral("6180"));
    for (const QString &name : {firstQueue, secondQueue}) {
      const auto made = cups->addQueue(name, ppd,
                                       {QStringLiteral("-D"), QStringLiteral("Büro ") + name,
                                        QStringLiteral("-L"), QStringLiteral("Room 1")});
      ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
    }
  }

  std::string defaultName() const {
    const auto queue = findPrinter({}, QString());
    return queue ? queue.value().destination().toStdString() : queue.failure().line().toStdString();
  }

  void lpoptions(const QStringList &arguments) const {
    const auto ran = cups->run(QStringLiteral("lpoptions"), arguments);
    ASSERT_EQ(ran.exitStatus, 0) << ran.errors.toStdString();
  }

  std::unique_ptr<PrivateCups> cups;
};

TEST(Destination, IsAQueueAndWhatFollowsItsLastSlash) {
  EXPECT_EQ(destinationFrom(QStringLiteral("office")).queue, QStringLiteral("office"));
  EXPECT_TRUE(destinationFrom(QStringLiteral("office")).instance.isNull());
  EXPECT_EQ(destinationFrom(QStringLiteral("office/draft")).queue, QStringLiteral("office"));
  EXPECT_EQ(destinationFrom(QStringLiteral("office/draft")).instance, QStringLiteral("draft"));
  EXPECT_EQ(destinationFrom(QStringLiteral("a/b/c")).queue, QStringLiteral("a/b"));
  EXPECT_TRUE(destinationFrom(QString()).queue.isNull());
}

TEST_F(PrinterList, ListsQueuesByNameWithWhatPeopleKnowThemBy) {
  const auto queues = listPrinters({});
  ASSERT_TRUE(queues) << queues.failure().line().toStdString();
  ASSERT_EQ(queues.value().size(), 2);
  const Queue &queue = queues.value()[0];
  EXPECT_EQ(queue.name, firstQueue);
  EXPECT_EQ(queue.info, QStringLiteral("Büro first"));
  EXPECT_EQ(queue.location, QStringLiteral("Room 1"));
  EXPECT_EQ(queue.makeAndModel, QStringLiteral("Orvek 6180 PostScript"));
  EXPECT_EQ(queue.state, PrinterState::Idle);
  EXPECT_TRUE(queue.acceptsJobs);
  EXPECT_EQ(stateInWords(queue), QStringLiteral("Idle"));
}

TEST_F(PrinterList, SaysWhyAPrinterIsStopped) {
  cups->run(QStringLiteral("cupsreject"), {firstQueue});
  cups->run(QStringLiteral("cupsdisable"),
            {QStringLiteral("-r"), QStringLiteral("Being moved"), firstQueue});
  const auto queues = listPrinters({});
  ASSERT_TRUE(queues);
  const Queue &queue = queues.value()[0];
  EXPECT_EQ(stateInWords(queue), QStringLiteral("Stopped, takes no jobs"));
  EXPECT_EQ(queue.reasons, QStringList{QStringLiteral("Paused")});
  EXPECT_EQ(queue.stateMessage, QStringLiteral("Being moved"));
  EXPECT_TRUE(queues.value()[1].stateMessage.isNull());
}

TEST_F(PrinterList, SaysThatAServerLacksThePrintersDriver) {
  EXPECT_EQ(listPrinters({}).value()[0].reasons, QStringList());
  cups.reset();
  PrivateCupsSetup setup;
  setup.hasDriver = false;
  cups = std::make_unique<PrivateCups>(setup);
  cups->addQueue(firstQueue, orvekPPD(QStringLiteral("6180")));
  const auto queues = listPrinters({});
  ASSERT_TRUE(queues);
  EXPECT_EQ(queues.value()[0].reasons,
            QStringList{QStringLiteral("The printer's filter is missing")});
}

TEST_F(PrinterList, IsNotAskedTwiceInOneMomentForOneQueue) {
  auto talk = ServerTalk::open({}).take();
  ASSERT_TRUE(findPrinter(*talk, firstQueue));
  cups->stop();
  const auto again = findPrinter(*talk, firstQueue);
  ASSERT_TRUE(again) << again.failure().line().toStdString();
  EXPECT_EQ(again.value().location, QStringLiteral("Room 1"));
  EXPECT_FALSE(findPrinter(*talk, QStringLiteral("another")));
}

TEST_F(PrinterList, ListsInstancesWithTheirOptions) {
  lpoptions({QStringLiteral("-p"), firstQueue + QStringLiteral("/draft"), QStringLiteral("-o"),
             QStringLiteral("OVKTonerSaving=True")});
  const auto queues = listPrinters({});
  ASSERT_TRUE(queues);
  ASSERT_EQ(queues.value().size(), 3);
  EXPECT_EQ(queues.value()[1].destination(), QStringLiteral("first/draft"));
  EXPECT_EQ(queues.value()[1].options.value(QStringLiteral("OVKTonerSaving")),
            QStringLiteral("True"));
}

TEST_F(PrinterList, TakesTheDefaultInTheOrderThatLpDoes) {
  EXPECT_EQ(defaultName(),
            cups->socket().toStdString() + ": there is no default printer; name one with -d");
  cups->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), firstQueue});
  EXPECT_EQ(defaultName(), "first");
  lpoptions({QStringLiteral("-p"), secondQueue + QStringLiteral("/draft"), QStringLiteral("-o"),
             QStringLiteral("OVKTonerSaving=True")});
  lpoptions({QStringLiteral("-d"), secondQueue + QStringLiteral("/draft")});
  EXPECT_EQ(defaultName(), "second/draft");
  qputenv("PRINTER", "first");
  EXPECT_EQ(defaultName(), "first");
  qputenv("LPDEST", "second");
  EXPECT_EQ(defaultName(), "second");
}

TEST_F(PrinterList, MarksTheDefaultInTheList) {
  cups->run(QStringLiteral("lpadmin"), {QStringLiteral("-d"), firstQueue});
  qputenv("LPDEST", "second");
  const auto queues = listPrinters({});
  ASSERT_TRUE(queues);
  EXPECT_FALSE(queues.value()[0].isDefault);
  EXPECT_TRUE(queues.value()[1].isDefault);
}

TEST_F(PrinterList, SaysWhichVariableNamesAPrinterThatDoesNotExist) {
  qputenv("LPDEST", "gone");
  EXPECT_EQ(defaultName(), "LPDEST: names a printer that does not exist: \"gone\"");
}

TEST_F(PrinterList, SaysThatAPrinterDoesNotExist) {
  const auto queue = findPrinter({}, QStringLiteral("gone"));
  ASSERT_FALSE(queue);
  EXPECT_EQ(queue.failure().what, QStringLiteral("gone"));
  EXPECT_TRUE(queue.failure().why.startsWith(QStringLiteral("no such printer on ")));
}

TEST_F(PrinterList, ReachesAServerByHostAndPort) {
  qputenv("CUPS_SERVER", "/nowhere.sock");
  const auto queues = listPrinters({cups->hostAndPort(), {}, nullptr});
  ASSERT_TRUE(queues) << queues.failure().line().toStdString();
  EXPECT_EQ(queues.value().size(), 2);
}

TEST_F(PrinterList, SaysThatNoServerAnswers) {
  cups->stop();
  const auto queues = listPrinters({});
  ASSERT_FALSE(queues);
  EXPECT_EQ(queues.failure().what, cups->socket());
  EXPECT_TRUE(queues.failure().why.startsWith(QStringLiteral("no print server answers there")));
}

TEST_F(PrinterList, AnswersAgainAfterTheServerWasRestarted) {
  cups->stop();
  EXPECT_FALSE(listPrinters({}));
  cups->start();
  EXPECT_TRUE(listPrinters({}));
}

TEST_F(PrinterList, GivesUpOnAServerThatHangs) {
  constexpr int longestMilliseconds = 8000;
  cups->pause();
  QElapsedTimer clock;
  clock.start();
  const auto queues = listPrinters({QString(), QString(), nullptr, 1s});
  const qint64 elapsed = clock.elapsed();
  cups->resume();
  ASSERT_FALSE(queues);
  EXPECT_LT(elapsed, longestMilliseconds);
  EXPECT_TRUE(queues.failure().why.contains(QStringLiteral("stopped answering")))
      << queues.failure().line().toStdString();
}

TEST_F(PrinterList, GivesUpOnAServerThatHangsWhenAskedForOneQueue) {
  constexpr int longestMilliseconds = 8000;
  cups->pause();
  QElapsedTimer clock;
  clock.start();
  const auto queue =
      findPrinter({cups->hostAndPort(), QString(), nullptr, 1s}, QStringLiteral("gone"));
  const qint64 elapsed = clock.elapsed();
  cups->resume();
  ASSERT_FALSE(queue);
  EXPECT_LT(elapsed, longestMilliseconds);
  EXPECT_TRUE(queue.failure().why.contains(QStringLiteral("stopped answering")))
      << queue.failure().line().toStdString();
}

TEST_F(PrinterList, EndsItsWaitWhenCancelled) {
  constexpr int longestMilliseconds = 3000;
  const std::atomic<bool> cancelled = true;
  cups->pause();
  QElapsedTimer clock;
  clock.start();
  const auto queues = listPrinters({QString(), QString(), &cancelled});
  const qint64 elapsed = clock.elapsed();
  cups->resume();
  ASSERT_FALSE(queues);
  EXPECT_EQ(queues.failure().kind, FailureKind::Cancelled);
  EXPECT_EQ(queues.failure().why, QStringLiteral("cancelled"));
  EXPECT_LT(elapsed, longestMilliseconds);
}

QByteArray manyQueues(int count) {
  QByteArray text;
  for (int i = 1; i <= count; ++i) {
    text += "<Printer q" + QByteArray::number(i) + ">\nInfo Queue\nLocation Hall\n" +
            "DeviceURI file:///dev/null\nState Idle\nAccepting Yes\n</Printer>\n";
  }
  return text;
}

TEST(PrinterListOfManyQueues, ComesQuickly) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  constexpr int queueCount = 300;
  constexpr int longestMilliseconds = 2000;
  const PrivateCups cups(PrivateCupsSetup{{}, manyQueues(queueCount)});
  QElapsedTimer clock;
  clock.start();
  const auto queues = listPrinters({});
  RecordProperty("milliseconds", static_cast<int>(clock.elapsed()));
  ASSERT_TRUE(queues) << queues.failure().line().toStdString();
  EXPECT_EQ(queues.value().size(), queueCount);
  EXPECT_LT(clock.elapsed(), longestMilliseconds);
}

TEST(PrinterListOfAnEmptyServer, IsEmptyAndNoFailure) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  const PrivateCups cups;
  const auto queues = listPrinters({});
  ASSERT_TRUE(queues) << queues.failure().line().toStdString();
  EXPECT_TRUE(queues.value().isEmpty());
}

TEST(PrinterListOfAServerThatRefuses, FailsInWords) {
  if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
  const PrivateCups cups(PrivateCupsSetup{
      "<Limit All>\nAuthType Basic\nRequire user nobody\n</Limit>\n", manyQueues(1)});
  const auto queues = listPrinters({});
  ASSERT_FALSE(queues);
  EXPECT_TRUE(queues.failure().why.startsWith(QStringLiteral("the print server does not allow it")))
      << queues.failure().line().toStdString();
}

TEST(ReasonInWords, DropsTheSeverity) {
  EXPECT_EQ(reasonInWords(QStringLiteral("toner-low-warning")), QStringLiteral("Toner is low"));
}

TEST(ReasonInWords, SpellsOutAKeywordThatIsNotKnown) {
  EXPECT_EQ(reasonInWords(QStringLiteral("vendor-oddity-error")), QStringLiteral("Vendor oddity"));
}

TEST(ReasonInWords, HasNothingToSayForNone) {
  EXPECT_TRUE(reasonInWords(QStringLiteral("none")).isNull());
}

TEST(Queue, KnowsWhichOfItsOptionsOnlyDescribeIt) {
  for (const char *option : {"printer-info", "printer-state", "marker-levels", "device-uri"}) {
    EXPECT_TRUE(describesQueue(QLatin1String(option))) << option;
  }
  for (const char *option : {"printer-resolution", "sides", "copies"}) {
    EXPECT_FALSE(describesQueue(QLatin1String(option))) << option;
  }
}

}  // namespace
}  // namespace orvek::test
