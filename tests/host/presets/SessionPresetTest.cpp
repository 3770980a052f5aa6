// SPDX-License-Identifier: Apache-2.0
// Presets and sessions: what is saved, and what comes back.

#include "host/presets/SessionPreset.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

std::unique_ptr<PrintSession> sessionOn(const QString &ppd, QList<OptionChoice> marks = {}) {
  SessionSetup setup;
  setup.printer =
      PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/") + ppd)
          .take();
  setup.marks = std::move(marks);
  return PrintSession::begin(setup).take();
}

TEST(SessionPreset, HoldsWhatIsNotThePpdsDefaultAndTheTicketButNoEquipment) {
  const auto session = sessionOn("finisher.ppd", {{"OVKOptionPunch", "None"}});
  session->pick("OVKFolding", "Saddle");
  session->setTicketValue("OVKGutter", "30");
  const Preset preset = presetOf(*session, "mine");
  EXPECT_EQ(preset.name, "mine");
  EXPECT_EQ(preset.printerModel, "Orvek Test 6180, 1.0");
  EXPECT_EQ(preset.options, (QMap<QString, QString>{{"OVKFolding", "Saddle"}}));
  EXPECT_EQ(preset.ticket, (TicketValues{{"OVKFolding", "Saddle"}, {"OVKGutter", "30"}}));
}

TEST(SessionPreset, ComesBackAsPicks) {
  const auto session = sessionOn("finisher.ppd");
  session->pick("OVKStapling", "Front");
  const Preset preset{"p", {}, {{"OVKFolding", "Saddle"}}, {{"OVKGutter", "30"}}};
  EXPECT_TRUE(applyPreset(*session, preset).isEmpty());
  EXPECT_EQ(session->marks().marked("OVKFolding"), "Saddle");
  EXPECT_EQ(session->marks().marked("OVKStapling"), "None");
  EXPECT_EQ(session->record().notices().size(), 1);
  EXPECT_EQ(session->ticket().value("OVKGutter"), QVariant("30"));
}

TEST(SessionPreset, ComesBackWithAChoiceThatOnlyItsTicketKeeps) {
  const auto session = sessionOn("finisher.ppd", {{"OVKFolding", "Saddle"}});
  applyPreset(*session, {"p", {}, {}, {{"OVKFolding", "None"}}});
  EXPECT_EQ(session->marks().marked("OVKFolding"), "None");
}

TEST(SessionPreset, NamesWhatThePrinterCannotTakeAndKeepsItOutOfTheTicket) {
  const auto session = sessionOn("german.ppd");
  const Preset preset{"p", {}, {{"OVKFolding", "Saddle"}}, {{"OVKFolding", "Saddle"}, {"k", "v"}}};
  const QList<PresetMisfit> misfits = applyPreset(*session, preset);
  ASSERT_EQ(misfits.size(), 1);
  EXPECT_EQ(misfits[0].option, "OVKFolding");
  EXPECT_EQ(session->ticket().values(), (TicketValues{{"k", "v"}}));
}

TEST(SessionPreset, LeavesAloneWhatTheSessionIsToKeep) {
  const auto session = sessionOn("finisher.ppd");
  session->setTicketValue("OVKGutter", "10");
  applyPreset(*session, {"p", {}, {{"OVKFolding", "Saddle"}}, {{"OVKGutter", "30"}}},
              {"OVKGutter", "OVKFolding"});
  EXPECT_EQ(session->ticket().value("OVKGutter"), QVariant("10"));
  EXPECT_EQ(session->marks().marked("OVKFolding"), "None");
}

TEST(SessionEntries, LeaveTheBookletThatAnotherQueueHasSavedAlone) {
  const auto former = sessionOn("finisher.ppd");
  for (const char *key : {"OVKEnableBooklet", "OVKRightToLeft", "OVKPrintPageBorders"}) {
    former->setTicketValue(key, "False");
  }
  former->setTicketValue("OVKGutter", "24");
  former->setTicketValue("OVKTargetPaperSize", "0");
  former->setTicketValue("OVKCreep", "5");
  const auto next = sessionOn("finisher.ppd");
  next->setTicketValue("OVKEnableBooklet", "True");
  next->setTicketValue("OVKGutter", "36");
  EXPECT_TRUE(applyPreset(*next, entriesOf(*former)).isEmpty());
  EXPECT_EQ(next->ticket().value("OVKEnableBooklet"), QVariant("True"));
  EXPECT_EQ(next->ticket().value("OVKGutter"), QVariant("36"));
  EXPECT_EQ(next->ticket().value("OVKCreep"), QVariant("5"));
}

TEST(LastUsedSettings, OverruleWhatTheQueueHasSaved) {
  SessionSetup setup;
  setup.printer = PrinterDescription::open(
                      QStringLiteral(ORVEK_SOURCE_DIR "/tests/host/ppd/files/finisher.ppd"))
                      .take();
  setup.queueOptions = {{"OVKFolding", "Saddle"}};
  const auto former = PrintSession::begin(setup).take();
  former->pick("OVKFolding", "None");
  const Preset used = lastUsedOf(*former);
  const auto next = PrintSession::begin(setup).take();
  ASSERT_EQ(next->marks().marked("OVKFolding"), "Saddle");
  applyPreset(*next, used);
  EXPECT_EQ(next->marks().marked("OVKFolding"), "None");
}

TEST(LastUsedSettings, HoldNothingThatWasMeantForOneDocument) {
  const auto session = sessionOn("finisher.ppd");
  for (const char *key : {"page-set", "job-hold-until", "Job-Password", "document-format"}) {
    session->setTicketValue(key, "x");
  }
  session->setTicketValue("job-sheets", "standard");
  session->setTicketValue("OVKGutter", "30");
  JobSettings job = session->job().settings();
  job.copies = 3;
  job.pageRanges = "2-3";
  session->job().setSettings(job);
  EXPECT_EQ(lastUsedOf(*session).ticket,
            (TicketValues{{"OVKGutter", "30"}, {"job-sheets", "standard"}}));
}

TEST(SettingsInForce, AreTheSameHoweverTheyAreWritten) {
  const auto one = sessionOn("finisher.ppd");
  one->pick("OVKFolding", "Saddle");
  one->setTicketValue("OVKGutter", "30");
  const auto other = sessionOn("finisher.ppd", {{"OVKFolding", "Saddle"}});
  other->setTicketValue("OVKGutter", 30);
  other->setTicketValue("OVKRightToLeft", "False");
  other->job().setPagesPerSheet(0);
  EXPECT_EQ(settingsInForce(*one), settingsInForce(*other));
  other->job().setPagesPerSheet(2);
  EXPECT_NE(settingsInForce(*one), settingsInForce(*other));
}

}  // namespace
}  // namespace orvek::test
