// SPDX-License-Identifier: Apache-2.0
// Job settings where a session keeps them.

#include <gtest/gtest.h>

#include <QSignalSpy>

#include "tests/host/session/SessionKit.h"

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

std::unique_ptr<PrintSession> sessionOn(const QString &ppd) {
  SessionSetup setup;
  if (!ppd.isNull()) setup.printer = PrinterDescription::open(ppd).take();
  return PrintSession::begin(setup).take();
}

QString orvek6180() {
  return QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd");
}

TEST(JobSettings, TravelWithTheSessionAndTellThatTheyChanged) {
  const auto session = sessionOn(QString());
  QSignalSpy changed(session.get(), &PrintSession::changed);
  JobSettings settings;
  settings.copies = 5;
  settings.collate = false;
  session->job().setSettings(settings);
  EXPECT_EQ(changed.size(), 1);
  EXPECT_EQ(session->job().settings(), settings);
  EXPECT_EQ(session->job().options(), (Options{{"copies", "5"}, {"Collate", "False"}}));
}

TEST(JobSettings, PickThePrintersOwnOptionForCollation) {
  const auto session = sessionOn(orvek6180());
  JobSettings settings = session->job().settings();
  EXPECT_TRUE(settings.collate);
  settings.collate = false;
  session->job().setSettings(settings);
  EXPECT_EQ(session->marks().marked("Collate"), "False");
  EXPECT_EQ(session->job().options(), (Options{{"Collate", "False"}}));
}

TEST(JobSettings, FollowThePrintersOwnOptionForCollation) {
  const auto session = sessionOn(orvek6180());
  session->pick("Collate", "False");
  EXPECT_FALSE(session->job().settings().collate);
  session->undo();
  EXPECT_TRUE(session->job().settings().collate);
}

TEST(JobSettings, BeginAsACommandLineAsks) {
  const auto session = sessionOn(orvek6180());
  EXPECT_TRUE(session->job().take("page-ranges", "2-4").value());
  EXPECT_FALSE(session->job().take("PageSize", "A4").value());
  EXPECT_EQ(session->job().settings().pageRanges, "2-4");
  EXPECT_EQ(session->job().options(), (Options{{"page-ranges", "2-4"}}));
}

std::unique_ptr<PrintSession> sessionWithCopies(const QVariant &copies) {
  SessionSetup setup;
  setup.printer = PrinterDescription::open(orvek6180()).take();
  setup.ticket = {{"copies", copies}};
  return PrintSession::begin(setup).take();
}

std::unique_ptr<PrintSession> sessionOnQueue(const QList<OptionChoice> &saved) {
  SessionSetup setup;
  setup.queueOptions = saved;
  return PrintSession::begin(setup).take();
}

TEST(JobSettings, BeginAsTheQueueHasThemSavedAndLeaveThemToIt) {
  const auto session = sessionOnQueue({{"copies", "2"},
                                       {"landscape", "true"},
                                       {"outputorder", "reverse"},
                                       {"page-ranges", "2-4"},
                                       {"Collate", "False"}});
  const JobSettings expected{2, false, "2-4", Orientation::Landscape, true, {}};
  EXPECT_EQ(session->job().settings(), expected);
  EXPECT_EQ(session->job().options(), Options());
  EXPECT_TRUE(session->job().overruledOptions().isEmpty());
  EXPECT_EQ(session->job().savedOptions(session->job().options()).size(), 5);
}

TEST(JobSettings, SayDefaultsAgainstWhatTheQueueHasSaved) {
  const auto session = sessionOnQueue({{"copies", "2"},
                                       {"landscape", "true"},
                                       {"outputorder", "reverse"},
                                       {"page-ranges", "2-4"},
                                       {"Collate", "False"}});
  session->job().setSettings({});
  EXPECT_EQ(session->job().options(), (Options{{"copies", "1"},
                                               {"orientation-requested", "3"},
                                               {"outputorder", "normal"},
                                               {"page-ranges", "1-"},
                                               {"Collate", "True"}}));
  EXPECT_TRUE(session->job().overruledOptions().contains("landscape"));
  EXPECT_TRUE(session->job().savedOptions(session->job().options()).isEmpty());
}

TEST(JobSettings, AskedForOnACommandLineWinOverWhatTheQueueHasSaved) {
  const auto session = sessionOnQueue({{"orientation-requested", "5"}, {"copies", "2"}});
  EXPECT_TRUE(session->job().take("landscape", "true").value());
  EXPECT_EQ(session->job().settings().copies, 2);
  EXPECT_EQ(session->job().options(), (Options{{"landscape", "true"}}));
  EXPECT_EQ(session->job().overruledOptions(), QStringList{"orientation-requested"});
  EXPECT_TRUE(session->job().take("copies", "1").value());
  EXPECT_EQ(session->job().options(), (Options{{"landscape", "true"}, {"copies", "1"}}));
}

TEST(JobSettings, ShowAndOverruleThePagesPerSheetThatTheQueueHasSaved) {
  const auto session = sessionOnQueue({{"number-up", "4"}});
  EXPECT_EQ(session->job().pagesPerSheet(), 4);
  session->job().setPagesPerSheet(0);
  EXPECT_EQ(session->job().options().value("number-up"), "1");
}

TEST(JobSettings, GoAlongToAnotherQueueWhereTheyWereChanged) {
  const JobSettings began{2, true, {}, Orientation::Automatic, false, {}};
  JobSettings now = began;
  now.pageRanges = "3-5";
  now.reverse = true;
  const JobSettings next{7, false, "1-2", Orientation::Landscape, false, {}};
  EXPECT_EQ(carriedOver(now, began, next),
            (JobSettings{7, false, "3-5", Orientation::Landscape, true, {}}));
  const JobSettings other{3, false, {}, Orientation::Portrait, false, {}};
  EXPECT_EQ(carriedOver(other, began, {}),
            (JobSettings{3, false, {}, Orientation::Portrait, false, {}}));
}

TEST(JobSettings, OfATicketAreNoMoreCopiesThanTheDialogTakes) {
  for (const QVariant &copies : {QVariant("99999"), QVariant(qint64{99999})}) {
    const auto session = sessionWithCopies(copies);
    EXPECT_EQ(session->record().notices(),
              QStringList("Copies was set to 9999: no job makes more"));
    EXPECT_EQ(session->job().options().value("copies"), "9999");
    EXPECT_EQ(session->ticket().value("copies").metaType(), copies.metaType());
  }
  const auto none = sessionWithCopies(qint64{-3});
  EXPECT_EQ(none->record().notices(), QStringList("Copies was set to 1: less is no job"));
  EXPECT_EQ(none->job().options().value("copies"), "1");
}

TEST(JobSettings, OfATicketStayWhatTheyAreWithinThat) {
  for (const char *copies : {"1", "9999", "many"}) {
    const auto session = sessionWithCopies(QString(copies));
    EXPECT_EQ(session->record().notices(), QStringList());
    EXPECT_EQ(session->job().options().value("copies"), copies);
  }
}

}  // namespace
}  // namespace orvek::test
