// SPDX-License-Identifier: Apache-2.0
// The session between a printer, a ticket and a panel.

#include "host/session/PrintSession.h"

#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include "host/panels/PanelContainer.h"
#include "platform/system/Log.h"
#include "tests/host/session/SessionKit.h"

namespace orvek::test {
namespace {

qsizetype restores(const RecordedSession &recorded) {
  return recorded.calls().count(QStringLiteral("restore"));
}

TEST(PrintSession, CallsAPanelInTheOrderItAssumes) {
  const RecordedSession recorded;
  EXPECT_EQ(recorded.calls(), (QStringList{"made", "panelView", "panelName", "panelKind",
                                           "supportedPPDOptionKeys", "restore", "willShow"}));
}

TEST(PrintSession, MarksDefaultsThenQueueThenTicketThenGivenMarks) {
  SessionSetup setup;
  setup.queueOptions = {{"OVKPunching", "2"}, {"OVKStapling", "Dual"}, {"Unknown", "x"}};
  setup.ticket = {{"OVKStapling", "front"}, {"OVKPunching", 3}, {"OVKGutter", "24"}};
  setup.marks = {{"ovkpunching", "4"}};
  setup.printer = openTestPpd(QStringLiteral("finisher.ppd"));
  const auto session = PrintSession::begin(setup).take();
  EXPECT_EQ(session->marks().marked("OVKStapling"), "Front");
  EXPECT_EQ(session->marks().marked("OVKPunching"), "4");
  EXPECT_EQ(session->ticket().values(), setup.ticket);
}

TEST(PrintSession, BeginsItsTicketWithTheBookletThatTheQueueMakes) {
  SessionSetup setup;
  setup.queueOptions = {{"ovkenablebooklet", "true"},
                        {"OVKRightToLeft", "off"},
                        {"OVKGutter", "36"},
                        {"printer-info", "Office"}};
  setup.printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_EQ(PrintSession::begin(setup).take()->ticket().values(),
            (TicketValues{
                {"OVKEnableBooklet", "True"}, {"OVKRightToLeft", "False"}, {"OVKGutter", "36"}}));
}

TEST(PrintSession, PrefersWhatTheTicketSaysOfABookletInWhateverLetters) {
  SessionSetup setup;
  setup.queueOptions = {{"OVKEnableBooklet", "true"}, {"OVKGutter", "36"}, {"OVKCreep", "4"}};
  setup.ticket = {{"OVKEnableBooklet", "False"}, {"ovkgutter", 12}};
  setup.printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_EQ(PrintSession::begin(setup).take()->ticket().values(),
            (TicketValues{{"OVKEnableBooklet", "False"}, {"ovkgutter", 12}, {"OVKCreep", "4"}}));
}

TEST(PrintSession, RefusesAGivenMarkThatThePpdLacks) {
  SessionSetup setup;
  setup.printer = openTestPpd(QStringLiteral("finisher.ppd"));
  setup.marks = {{"OVKStapling", "Triple"}};
  const auto session = PrintSession::begin(setup);
  ASSERT_FALSE(session.ok());
  EXPECT_EQ(session.failure().kind, FailureKind::Usage);
  EXPECT_EQ(session.failure().what, "--mark OVKStapling=Triple");
}

TEST(PrintSession, RecordsAnAnnouncedChoiceInMarkAndTicket) {
  RecordedSession recorded;
  recorded.act([&] {
    EXPECT_TRUE(recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKPunching", "2"));
  });
  EXPECT_EQ(recorded.marked("OVKPunching"), "2");
  EXPECT_EQ(recorded.inTicket("OVKPunching"), QVariant("2"));
  EXPECT_EQ(recorded.session->record().announced().last(),
            (QPair<QString, QString>{"OVKPunching", "2"}));
}

TEST(PrintSession, CountsAnEmptyAnnouncementAndMarksNothing) {
  RecordedSession recorded;
  const MarksSnapshot before = recorded.session->marks().snapshot();
  const auto count = recorded.session->record().announced().size();
  EXPECT_FALSE(recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKPunching", ""));
  EXPECT_EQ(recorded.session->record().announced().size(), count + 1);
  EXPECT_TRUE(recorded.session->record().announced().last().second.isNull());
  EXPECT_EQ(recorded.session->marks().snapshot(), before);
}

TEST(PrintSession, HasAPanelRestoreOnceAfterConstraintsChangedItsOption) {
  RecordedSession recorded;
  recorded.session->pick("OVKStapling", "Front");
  const auto before = restores(recorded);
  recorded.act([&] {
    recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKFolding", "Saddle");
    EXPECT_EQ(restores(recorded), before) << "never from inside the panel's own call";
  });
  EXPECT_EQ(restores(recorded), before + 1);
  EXPECT_EQ(recorded.marked("OVKStapling"), "None");
  EXPECT_EQ(recorded.inTicket("OVKStapling"), QVariant("None"));
}

TEST(PrintSession, DoesNotDisturbAPanelWhoseOptionsStayed) {
  RecordedSession recorded;
  const auto before = restores(recorded);
  recorded.act([&] {
    recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKFolding", "Saddle");
    recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKPunching", "2");
  });
  EXPECT_EQ(restores(recorded), before);
}

TEST(PrintSession, HasAPanelRestoreAfterItsPickWasUndone) {
  SessionSetup setup;
  setup.marks = {{"OVKOptionFinisher", "False"}};
  RecordedSession recorded(setup);
  const auto before = restores(recorded);
  recorded.act([&] {
    EXPECT_FALSE(
        recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKStapling", "Front"));
  });
  EXPECT_EQ(restores(recorded), before + 1);
  EXPECT_EQ(recorded.marked("OVKStapling"), "None");
  EXPECT_FALSE(recorded.inTicket("OVKStapling").isValid());
}

TEST(PrintSession, RestoresOnceAfterTheStartWhenTheTicketContradictsAGivenMark) {
  SessionSetup setup;
  setup.ticket = {{"OVKFolding", "Saddle"}};
  setup.marks = {{"OVKStapling", "Front"}, {"OVKFolding", "None"}};
  const RecordedSession recorded(setup);
  EXPECT_EQ(restores(recorded), 2);
  EXPECT_EQ(recorded.calls().mid(5), (QStringList{"restore", "willShow", "restore"}));
  EXPECT_TRUE(recorded.session->marks().conflicts().isEmpty());
}

TEST(PrintSession, SettlesATicketThatContradictsItselfBeforePanelsSeeIt) {
  SessionSetup setup;
  setup.ticket = {{"OVKStapling", "Front"}, {"OVKFolding", "Saddle"}};
  const RecordedSession recorded(setup);
  EXPECT_EQ(restores(recorded), 1);
  EXPECT_TRUE(recorded.session->marks().conflicts().isEmpty());
  EXPECT_EQ(recorded.session->record().notices().size(), 1);
}

TEST(PrintSession, DropsWhatTheTicketAsksOfMissingEquipmentBeforePanelsSeeIt) {
  SessionSetup setup;
  setup.marks = {{"OVKOptionFinisher", "False"}};
  setup.ticket = {{"OVKStapling", "Front"}};
  const RecordedSession recorded(setup);
  EXPECT_EQ(recorded.marked("OVKStapling"), "None");
  EXPECT_FALSE(recorded.inTicket("OVKStapling").isValid());
  EXPECT_EQ(recorded.session->record().notices().size(), 1);
  EXPECT_EQ(restores(recorded), 1);
}

TEST(PrintSession, UndoesAPickThatWasMarkedAgainstTheEquipmentInMarkToo) {
  SessionSetup setup;
  setup.marks = {{"OVKOptionFinisher", "False"}, {"OVKStapling", "Front"}};
  const RecordedSession recorded(setup);
  EXPECT_FALSE(recorded.session->pick("OVKStapling", "Front"));
  EXPECT_EQ(recorded.marked("OVKStapling"), "None");
  EXPECT_TRUE(recorded.session->marks().conflicts().isEmpty());
  EXPECT_FALSE(recorded.session->job().options().contains("OVKStapling"));
}

TEST(PrintSession, SaysTheSameRefusalOnlyOnceAnAction) {
  SessionSetup setup;
  setup.marks = {{"OVKOptionFinisher", "False"}};
  const RecordedSession recorded(setup);
  recorded.act([&] {
    recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKStapling", "Front");
    recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKStapling", "Front");
  });
  EXPECT_EQ(recorded.session->record().notices().size(), 1);
}

TEST(PrintSession, TellsViewsInWordsWhatConstraintsDid) {
  RecordedSession recorded;
  recorded.session->pick("OVKStapling", "Front");
  QSignalSpy noticed(recorded.session.get(), &PrintSession::noticed);
  recorded.session->pick("OVKFolding", "Saddle");
  ASSERT_EQ(noticed.count(), 1);
  EXPECT_EQ(noticed[0][0].toStringList(),
            QStringList{"Stapling was set to Off: it can't be combined with Saddle fold"});
}

TEST(PrintSession, TakesAnActionBackInOneStepAndShowsIt) {
  RecordedSession recorded;
  recorded.session->pick("OVKStapling", "Front");
  recorded.act([&] {
    recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKFolding", "Saddle");
  });
  const auto before = restores(recorded);
  ASSERT_TRUE(recorded.session->canUndo());
  recorded.session->undo();
  EXPECT_EQ(recorded.marked("OVKStapling"), "Front");
  EXPECT_EQ(recorded.marked("OVKFolding"), "None");
  EXPECT_EQ(recorded.inTicket("OVKStapling"), QVariant("Front"));
  EXPECT_FALSE(recorded.inTicket("OVKFolding").isValid());
  EXPECT_EQ(restores(recorded), before + 1);
}

TEST(PrintSession, EndsAnActOfTheWindowWhenControlIsBackAtTheEventLoop) {
  RecordedSession recorded;
  recorded.session->pick("OVKStapling", "Front");
  const auto before = restores(recorded);
  QSignalSpy changed(recorded.session.get(), &PrintSession::changed);
  recorded.panel()->host().willChangePPDOptionKeyValue_ppdChoice("OVKFolding", "Saddle");
  EXPECT_EQ(restores(recorded), before);
  EXPECT_EQ(changed.count(), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(restores(recorded), before + 1);
  EXPECT_EQ(changed.count(), 1);
}

TEST(PrintSession, TellsViewsWhenTheTicketChanged) {
  RecordedSession recorded;
  QCoreApplication::processEvents();
  QSignalSpy changed(recorded.session.get(), &PrintSession::changed);
  PMPrintSettingsSetValue(recorded.panel()->host().printSettings(), "OVKGutter", "30", false);
  PMPrintSettingsSetValue(recorded.panel()->host().printSettings(), "OVKCreep", "1", false);
  QCoreApplication::processEvents();
  EXPECT_EQ(changed.count(), 1);
}

TEST(PrintSession, MakesRoomForAPanelThatGrows) {
  RecordedSession recorded;
  recorded.panel()->resizeTo(320, 240);
  EXPECT_EQ(recorded.session->record().resizeCount(), 1);
  EXPECT_EQ(recorded.session->panels().first()->container()->size(), QSize(320, 240));
  EXPECT_EQ(recorded.session->panels().first()->view()->pos(), QPoint(0, 0));
}

TEST(PrintSession, IsAHostWithoutResizingWhereAskedTo) {
  SessionSetup setup;
  setup.panelsMayResize = false;
  RecordedSession recorded(setup);
  EXPECT_FALSE(respondsToPanelViewDidResize(&recorded.panel()->host()));
  EXPECT_TRUE(respondsToPanelViewDidResize(&RecordedSession().panel()->host()));
}

TEST(PrintSession, MakesPanelsAgainOnTheSamePpdAndTicketAndGoesOnCounting) {
  RecordedSession recorded;
  recorded.session->pick("OVKFolding", "Saddle");
  recorded.plugin->calls->clear();
  const auto announced = recorded.session->record().announced().size();
  recorded.act([&] { recorded.session->panels().reopen(); });
  EXPECT_EQ(recorded.calls(),
            (QStringList{"destroyed", "made", "panelView", "panelName", "panelKind",
                         "supportedPPDOptionKeys", "restore", "willShow"}));
  EXPECT_EQ(recorded.marked("OVKFolding"), "Saddle");
  EXPECT_EQ(recorded.session->record().announced().size(), announced + 2);
}

TEST(PrintSession, LeavesAnInertCallbackToAPanelThatOutlivesIt) {
  std::shared_ptr<RecordingPanel> panel;
  {
    const RecordedSession recorded;
    panel = recorded.panel();
    ASSERT_NE(panel->host().ppdFile(), nullptr);
  }
  EXPECT_EQ(panel->host().ppdFile(), nullptr);
  EXPECT_EQ(panel->host().printSettings(), nullptr);
  EXPECT_EQ(panel->host().printSession(), nullptr);
  EXPECT_FALSE(panel->host().willChangePPDOptionKeyValue_ppdChoice("OVKFolding", "Saddle"));
  panel->resizeTo(1, 1);
}

TEST(PrintSession, WritesTheLayoutAsANumber) {
  RecordedSession recorded;
  const auto shows = recorded.calls().count("willShow");
  recorded.session->job().setPagesPerSheet(4);
  const QVariant value = recorded.inTicket("com.apple.print.PrintSettings.PMLayoutNUp");
  EXPECT_EQ(value.metaType().id(), QMetaType::Int);
  EXPECT_EQ(recorded.session->job().pagesPerSheet(), 4);
  EXPECT_EQ(recorded.calls().count("willShow"), shows);
}

TEST(PrintSession, KeepsEveryLineOfTheLogAsItWasGiven) {
  const RecordedSession recorded;
  logLine(QStringLiteral("100% sure\n"));
  EXPECT_EQ(recorded.session->record().log(), QStringList{"100% sure\n"});
}

TEST(PrintSession, HearsTheLogThroughTwoChangesOfPrinter) {
  const auto first = PrintSession::begin({}).take();
  auto second = PrintSession::begin({}).take();
  const auto third = PrintSession::begin({}).take();
  second.reset();
  logLine(QStringLiteral("still heard"));
  EXPECT_EQ(third->record().log(), QStringList{"still heard"});
  EXPECT_EQ(first->record().log(), QStringList{"still heard"});
}

TEST(PrintSession, KnowsTheDefaultSummaryFromItsOwnPanelsWhereTheTicketIsEmpty) {
  const RecordedSession recorded;
  ASSERT_TRUE(recorded.session->defaultSummary());
  EXPECT_EQ(*recorded.session->defaultSummary(), recorded.session->panels().summary());
}

TEST(PrintSession, LearnsTheDefaultSummaryFromPanelsThatLeaveNoTrace) {
  SessionSetup setup;
  setup.ticket = {{"OVKFolding", "Saddle"}, {"OVKGutter", "36"}};
  RecordedSession recorded(setup);
  PrintSession &session = *recorded.session;
  ASSERT_FALSE(session.defaultSummary());
  const MarksSnapshot marks = session.marks().snapshot();
  const TicketValues ticket = session.ticket().values();
  const auto announced = session.record().announced();
  session.learnDefaultSummary();
  ASSERT_TRUE(session.defaultSummary());
  const SummaryText unfolded{{"Folding", "None"}};
  EXPECT_EQ(*session.defaultSummary(), unfolded);
  EXPECT_EQ(session.marks().snapshot(), marks);
  EXPECT_EQ(session.ticket().values(), ticket);
  EXPECT_EQ(session.record().announced(), announced);
}

TEST(PrintSession, LivesWithoutAPpd) {
  const auto session = PrintSession::begin(SessionSetup{}).take();
  session->openPanels({});
  EXPECT_FALSE(session->pick("OVKFolding", "Saddle"));
  EXPECT_TRUE(session->job().options().isEmpty());
  EXPECT_TRUE(session->panels().summary().isEmpty());
}

TEST(CustomValues, TravelWithAJobAndComeBackOnUndo) {
  SessionSetup setup;
  setup.printer = openTestPpd(QStringLiteral("values.ppd"));
  const auto session = PrintSession::begin(setup).take();
  session->pick("Gamma", "Custom.1.5");
  session->pick("Gamma", "Custom.2");
  EXPECT_EQ(session->job().options().value("Gamma"), "Custom.2");
  session->undo();
  EXPECT_EQ(session->marks().marked("Gamma"), "Custom.1.5");
}

}  // namespace
}  // namespace orvek::test
