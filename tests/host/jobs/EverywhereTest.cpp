// SPDX-License-Identifier: Apache-2.0
// A real printer without a driver: what it offers, and what it is told.

#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QThread>

#include "host/jobs/QueueJob.h"
#include "host/printers/QueuePPD.h"
#include "host/session/CommonSettings.h"
#include "host/session/PrintSession.h"
#include "host/session/QueueSetup.h"
#include "tests/support/IppPrinter.h"
#include "tests/support/PrivateCups.h"

namespace orvek::test {
namespace {

const QString queueName = QStringLiteral("ever");
const QString sampleDocument = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");

class Everywhere : public ::testing::Test {
 protected:
  void SetUp() override {
    const QString obstacle = PrivateCups::obstacle() + IppPrinter::obstacle();
    if (!obstacle.isEmpty()) GTEST_SKIP() << obstacle.toStdString();
    qputenv("XDG_CACHE_HOME", cache.path().toUtf8());
    cups = std::make_unique<PrivateCups>();
    printer = std::make_unique<IppPrinter>();
  }

  void TearDown() override { qunsetenv("XDG_CACHE_HOME"); }

  void addQueue(const QStringList &more) {
    const QStringList words{QStringLiteral("-p"), queueName, QStringLiteral("-E"),
                            QStringLiteral("-v"), printer->uri()};
    const auto made = cups->run(QStringLiteral("lpadmin"), words + more);
    ASSERT_EQ(made.exitStatus, 0) << made.errors.toStdString();
  }

  /// The server asks the printer in the background.
  void addQueueWithDescription() {
    addQueue({QStringLiteral("-m"), QStringLiteral("everywhere")});
    constexpr int patience = 10000;
    constexpr int pauseMilliseconds = 50;
    QElapsedTimer clock;
    for (clock.start(); clock.elapsed() < patience; QThread::msleep(pauseMilliseconds)) {
      const auto path = QueuePPD().fetch({}, queueName);
      if (path && !path.value().isNull()) return;
    }
    FAIL() << "no description was made: " << cups->log().toStdString();
  }

  void begin() {
    SessionSetup setup;
    const Status done = setUpForQueue({}, queueName, &setup);
    ASSERT_TRUE(done) << done.failure().line().toStdString();
    session = PrintSession::begin(setup).take();
  }

  QStringList textsOf(CommonSetting which) const {
    QStringList texts;
    const auto setting = commonSetting(*session, which);
    if (!setting) return texts;
    for (const SettingChoice &choice : setting->choices) texts << choice.text;
    return texts;
  }

  /// Picks the choice whose text or keyword has this in it.
  void pick(CommonSetting which, const char *text) {
    const auto setting = commonSetting(*session, which);
    ASSERT_TRUE(setting);
    for (const SettingChoice &choice : setting->choices) {
      if (!choice.text.contains(text) && !choice.keyword.contains(text)) continue;
      EXPECT_TRUE(pickSetting(*session, *setting, choice.keyword));
      return;
    }
    FAIL() << "no choice with " << text;
  }

  QMap<QString, QString> printedJob() {
    JobRequest request;
    request.files = QStringList{sampleDocument};
    request.queue = queueName;
    request.options = session->job().options();
    request.overruled = session->job().overruledOptions();
    JobControl control;
    const auto outcome = submitToQueue(request, control);
    EXPECT_TRUE(outcome) << (outcome ? "" : outcome.failure().line().toStdString());
    return printer->waitForJob(1);
  }

  QTemporaryDir cache;
  std::unique_ptr<PrivateCups> cups;
  std::unique_ptr<IppPrinter> printer;
  std::unique_ptr<PrintSession> session;
};

TEST_F(Everywhere, OffersWhatThePrinterOffers) {
  addQueueWithDescription();
  begin();
  EXPECT_EQ(textsOf(CommonSetting::Sides).size(), 3);
  EXPECT_TRUE(textsOf(CommonSetting::PaperSize).contains("A4"));
  EXPECT_GE(textsOf(CommonSetting::Color).size(), 2);
  EXPECT_EQ(textsOf(CommonSetting::Quality).size(), 3);
  EXPECT_GE(textsOf(CommonSetting::PaperType).size(), 3);
}

TEST_F(Everywhere, TellsThePrinterWhatWasPicked) {
  addQueueWithDescription();
  begin();
  pick(CommonSetting::Sides, "DuplexTumble");
  pick(CommonSetting::PaperSize, "A5");
  pick(CommonSetting::Color, "Gray");
  pick(CommonSetting::Quality, "High");
  const auto job = printedJob();
  EXPECT_EQ(job.value("sides"), "two-sided-short-edge");
  EXPECT_TRUE(job.value("media-col").contains("x-dimension=14800 y-dimension=21000"))
      << job.value("media-col").toStdString();
  EXPECT_EQ(job.value("print-color-mode"), "monochrome");
  EXPECT_EQ(job.value("print-quality"), "high");
}

TEST_F(Everywhere, OffersWhatThePrinterOffersWithoutADescriptionToo) {
  addQueue({});
  begin();
  ASSERT_EQ(session->origin().printer, nullptr);
  EXPECT_EQ(textsOf(CommonSetting::Sides), (QStringList{"Off", "Long edge", "Short edge"}));
  EXPECT_TRUE(textsOf(CommonSetting::PaperSize).contains("A4"));
  EXPECT_GE(textsOf(CommonSetting::Color).size(), 2);
  EXPECT_EQ(textsOf(CommonSetting::Quality).size(), 3);
}

TEST_F(Everywhere, TellsThePrinterWhatWasPickedWithoutADescriptionToo) {
  addQueue({});
  begin();
  pick(CommonSetting::Sides, "two-sided-long-edge");
  pick(CommonSetting::PaperSize, "A5");
  pick(CommonSetting::Color, "monochrome");
  pick(CommonSetting::Quality, "5");
  const auto job = printedJob();
  EXPECT_EQ(job.value("sides"), "two-sided-long-edge");
  EXPECT_EQ(job.value("media"), "iso_a5_148x210mm");
  EXPECT_EQ(job.value("print-color-mode"), "monochrome");
  EXPECT_EQ(job.value("print-quality"), "high");
}

TEST_F(Everywhere, IsNotWaitedForWhereItIsSwitchedOff) {
  addQueue({});
  printer.reset();
  QElapsedTimer clock;
  clock.start();
  begin();
  EXPECT_LT(clock.elapsed(), 5000);
  EXPECT_FALSE(commonSetting(*session, CommonSetting::Sides));
}

}  // namespace
}  // namespace orvek::test
