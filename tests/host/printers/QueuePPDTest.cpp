// SPDX-License-Identifier: Apache-2.0
// PPD files of real queues: fetched once, fetched again when changed, and what a queue without one
// has.

#include "host/printers/QueuePPD.h"

#include <gtest/gtest.h>

#include <QDateTime>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>

#include "host/printers/QueueAttributes.h"
#include "platform/printing/PPD.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/FrontServer.h"
#include "tests/support/HostileServer.h"
#include "tests/support/LogCapture.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

using namespace std::chrono_literals;

const QString queueName = QStringLiteral("office");

class QueuePPDTest : public ::testing::Test {
 protected:
  void SetUp() override {
    if (!PrivateCups::obstacle().isEmpty()) GTEST_SKIP() << PrivateCups::obstacle().toStdString();
    cups = std::make_unique<PrivateCups>();
    cups->addQueue(queueName, orvekPPD(QStringLiteral("6180")));
  }

  QString fetched(const QString &queue = queueName) const {
    const auto path = QueuePPD(cache.path()).fetch({}, queue);
    EXPECT_TRUE(path) << (path ? "" : path.failure().line().toStdString());
    return path ? path.value() : QString();
  }

  QTemporaryDir cache;
  std::unique_ptr<PrivateCups> cups;
};

TEST_F(QueuePPDTest, IsTheOneTheQueueWasMadeWith) {
  const QString path = fetched();
  EXPECT_TRUE(path.startsWith(cache.path()));
  EXPECT_TRUE(path.endsWith(QStringLiteral("/office.ppd")));
  EXPECT_TRUE(QFileInfo(path).isFile() && !QFileInfo(path).isSymLink());
  EXPECT_TRUE(contentsOf(path).contains("*ModelName: \"Orvek 6180\""));
}

TEST_F(QueuePPDTest, IsNotFetchedAgainWhileItIsTheSame) {
  const QString path = fetched();
  const QByteArray mark = "*% kept\n";
  const QDateTime date = QFileInfo(path).lastModified();
  writeContents(path, mark);
  QFile kept(path);
  ASSERT_TRUE(kept.open(QIODevice::ReadWrite));
  kept.setFileTime(date, QFileDevice::FileModificationTime);
  kept.close();
  EXPECT_EQ(contentsOf(fetched()), mark);
}

TEST_F(QueuePPDTest, IsFetchedAgainOnceTheQueueHasAnother) {
  constexpr int hoursAgo = -3600;
  const QString path = fetched();
  QFile kept(path);
  ASSERT_TRUE(kept.open(QIODevice::ReadWrite));
  kept.setFileTime(QFileInfo(path).lastModified().addSecs(hoursAgo),
                   QFileDevice::FileModificationTime);
  kept.close();
  cups->addQueue(queueName, orvekPPD(QStringLiteral("4150")));
  EXPECT_TRUE(contentsOf(fetched()).contains("*ModelName: \"Orvek 4150\""));
}

TEST_F(QueuePPDTest, IsFetchedFromAServerByHostAndPort) {
  const auto path = QueuePPD(cache.path()).fetch({cups->hostAndPort(), {}, nullptr}, queueName);
  ASSERT_TRUE(path) << path.failure().line().toStdString();
  EXPECT_TRUE(contentsOf(path.value()).contains("*ModelName: \"Orvek 6180\""));
  EXPECT_NE(path.value(), fetched());
}

TEST_F(QueuePPDTest, IsAbsentForAQueueWithoutOne) {
  cups->addQueue(QStringLiteral("raw"), QString());
  EXPECT_TRUE(fetched(QStringLiteral("raw")).isNull());
}

TEST_F(QueuePPDTest, FailsForAQueueThatDoesNotExist) {
  const auto path = QueuePPD(cache.path()).fetch({}, QStringLiteral("gone"));
  ASSERT_FALSE(path);
  EXPECT_TRUE(path.failure().why.startsWith(QStringLiteral("no such printer")))
      << path.failure().line().toStdString();
}

TEST_F(QueuePPDTest, IsThereThoughTheCacheCannotBeWrittenWhichIsSaid) {
  const QString file = cache.filePath(QStringLiteral("file"));
  writeContents(file, "x");
  const LogCapture log;
  const auto path = QueuePPD(file).fetch({}, queueName);
  ASSERT_TRUE(path) << path.failure().line().toStdString();
  EXPECT_EQ(contentsOf(path.value()), contentsOf(fetched()));
  ASSERT_EQ(log.lines().size(), 1);
  EXPECT_TRUE(log.lines().first().startsWith(file)) << log.lines().first().toStdString();
  const auto again = QueuePPD(file).fetch({}, queueName);
  ASSERT_TRUE(again);
  EXPECT_EQ(again.value(), path.value());
}

TEST_F(QueuePPDTest, SaysThatNoServerAnswers) {
  cups->stop();
  const auto path = QueuePPD(cache.path()).fetch({}, queueName);
  ASSERT_FALSE(path);
  EXPECT_EQ(path.failure().what, cups->socket());
}

TEST_F(QueuePPDTest, GivesUpOnAServerThatHangs) {
  constexpr int longestMilliseconds = 8000;
  // By its port: libcups does not ask a server whose files it can read itself.
  const ServerAccess access{cups->hostAndPort(), {}, nullptr, 1s};
  cups->pause();
  QElapsedTimer clock;
  clock.start();
  const auto path = QueuePPD(cache.path()).fetch(access, queueName);
  const qint64 elapsed = clock.elapsed();
  cups->resume();
  ASSERT_FALSE(path);
  EXPECT_LT(elapsed, longestMilliseconds);
  EXPECT_TRUE(path.failure().why.contains(QStringLiteral("stopped answering")))
      << path.failure().line().toStdString();
}

constexpr qint64 fewSeconds = 8000;

TEST_F(QueuePPDTest, GivesUpOnAServerThatNeverSaysAWord) {
  const HostileServer silent(Hostility::Silence);
  QElapsedTimer clock;
  clock.start();
  const auto path =
      QueuePPD(cache.path()).fetch({silent.hostAndPort(), {}, nullptr, 1s}, queueName);
  EXPECT_LT(clock.elapsed(), fewSeconds);
  ASSERT_FALSE(path);
  EXPECT_EQ(path.failure().line(),
            silent.hostAndPort() +
                QStringLiteral(": the print server stopped answering; try again once it is up"));
}

// Servers are known by more than one name, and not every name can be reached from everywhere.
TEST_F(QueuePPDTest, ComesFromTheServerThatWasAskedWhateverItSaysItsNameIs) {
  if (!FrontServer::obstacle().isEmpty()) GTEST_SKIP() << FrontServer::obstacle().toStdString();
  const HostileServer silent(Hostility::Silence);
  const FrontServer front(*cups, Guarded::Nothing, silent.hostAndPort());
  QElapsedTimer clock;
  clock.start();
  const auto path = QueuePPD(cache.path()).fetch({front.hostAndPort(), {}, nullptr, 1s}, queueName);
  EXPECT_LT(clock.elapsed(), fewSeconds);
  ASSERT_TRUE(path) << path.failure().line().toStdString();
  EXPECT_TRUE(contentsOf(path.value()).contains("*ModelName: \"Orvek 6180\""));
}

TEST_F(QueuePPDTest, OfAClassIsThatOfItsPrinter) {
  cups->run(QStringLiteral("lpadmin"),
            {QStringLiteral("-p"), queueName, QStringLiteral("-c"), QStringLiteral("floor")});
  EXPECT_TRUE(contentsOf(fetched(QStringLiteral("floor"))).contains("*ModelName: \"Orvek 6180\""));
}

TEST_F(QueuePPDTest, MayHaveANameOfManySigns) {
  const QString name = QStringLiteral("b&c=d+e");
  cups->addQueue(name, orvekPPD(QStringLiteral("4150")));
  EXPECT_TRUE(contentsOf(fetched(name)).contains("*ModelName: \"Orvek 4150\""));
}

QByteArray optionGroup(int number) {
  const QByteArray keyword = "Odd" + QByteArray::number(number);
  return "*OpenUI *" + keyword + "/Odd: PickOne\n*Default" + keyword + ": A\n*" + keyword +
         " A/A: \"\"\n*" + keyword + " B/B: \"\"\n*CloseUI: *" + keyword + "\n";
}

TEST_F(QueuePPDTest, MayHaveFiveThousandOptions) {
  constexpr int optionCount = 5000;
  constexpr int longestMilliseconds = 10000;
  QByteArray ppd = contentsOf(orvekPPD(QStringLiteral("6180")));
  for (int i = 0; i < optionCount; ++i) ppd += optionGroup(i);
  const QString large = cache.filePath(QStringLiteral("large.ppd"));
  writeContents(large, ppd);
  const auto made = cups->addQueue(QStringLiteral("large"), large);
  ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
  QElapsedTimer clock;
  clock.start();
  ppd_file_t *opened = ppdOpenFile(fetched(QStringLiteral("large")).toUtf8().constData());
  EXPECT_LT(clock.elapsed(), longestMilliseconds);
  ASSERT_NE(opened, nullptr);
  EXPECT_NE(ppdFindOption(opened, "Odd4999"), nullptr);
  ppdClose(opened);
}

const SettingOffer *settingOf(const QList<SettingOffer> &settings, const char *keyword) {
  for (const SettingOffer &setting : settings) {
    if (setting.attribute == QString::fromLatin1(keyword)) return &setting;
  }
  return nullptr;
}

TEST_F(QueuePPDTest, IsNotNeededToReadCommonSettings) {
  const auto settings = readQueueSettings({}, queueName);
  ASSERT_TRUE(settings) << settings.failure().line().toStdString();
  const SettingOffer *sides = settingOf(settings.value(), "sides");
  ASSERT_NE(sides, nullptr);
  EXPECT_EQ(sides->choices.size(), 3);
  EXPECT_EQ(sides->choices[0].keyword, QStringLiteral("one-sided"));
  EXPECT_NE(sides->title, sides->attribute);
  const SettingOffer *media = settingOf(settings.value(), "media");
  ASSERT_NE(media, nullptr);
  EXPECT_GT(media->choices.size(), 3);
  EXPECT_FALSE(media->standard.isEmpty());
}

TEST_F(QueuePPDTest, IsNotNeededToReadWhatTheServerTakesOfJobs) {
  const auto talk = ServerTalk::open({});
  ASSERT_TRUE(talk) << talk.failure().line().toStdString();
  const auto settings = readJobSettings(*talk.value(), queueName);
  ASSERT_TRUE(settings) << settings.failure().line().toStdString();
  const SettingOffer *times = settingOf(settings.value(), "job-hold-until");
  ASSERT_NE(times, nullptr);
  EXPECT_EQ(times->choices[0].keyword, QStringLiteral("no-hold"));
  EXPECT_EQ(settingOf(settings.value(), "media"), nullptr);
}

TEST_F(QueuePPDTest, LeavesOutSettingsInWhichAQueueHasNoChoice) {
  cups->addQueue(QStringLiteral("raw"), QString());
  const auto settings = readQueueSettings({}, QStringLiteral("raw"));
  ASSERT_TRUE(settings) << settings.failure().line().toStdString();
  EXPECT_EQ(settingOf(settings.value(), "sides"), nullptr);
}

TEST_F(QueuePPDTest, SettingsFailForAQueueThatDoesNotExist) {
  const auto settings = readQueueSettings({}, QStringLiteral("gone"));
  ASSERT_FALSE(settings);
  EXPECT_EQ(settings.failure().what, QStringLiteral("gone"));
}

}  // namespace
}  // namespace orvek::test
