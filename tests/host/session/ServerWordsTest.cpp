// SPDX-License-Identifier: Apache-2.0
// Words of the print server ("sides"), the marks they stand for, and what a job says of them.

#include "host/ticket/ServerWords.h"

#include <gtest/gtest.h>

#include "tests/host/session/SessionKit.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

class Words : public testing::Test {
 protected:
  void begin(const QList<OptionChoice> &queueOptions = {}, const TicketValues &ticket = {}) {
    SessionSetup setup;
    setup.printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
            .take();
    setup.queueOptions = queueOptions;
    setup.ticket = ticket;
    session = PrintSession::begin(setup).take();
  }

  void ask(const OptionChoice &word, const QList<OptionChoice> &beside = {}) {
    session->setTicketValue(word.option, word.choice);
    session->job().pickWord(word, beside.isEmpty() ? QList<OptionChoice>{word} : beside);
  }

  QString marked(const char *option) { return session->marks().marked(option); }

  std::unique_ptr<PrintSession> session;
};

TEST_F(Words, MarkWhatTheyStandFor) {
  begin();
  ask({"sides", "two-sided-short-edge"});
  ask({"media", "A5,tray-2,Heavy"});
  ask({"output-bin", "finisher"});
  EXPECT_EQ(marked("Duplex"), "DuplexTumble");
  EXPECT_EQ(marked("PageSize"), "A5");
  EXPECT_EQ(marked("InputSlot"), "Tray2");
  EXPECT_EQ(marked("MediaType"), "Heavy");
  EXPECT_EQ(marked("OutputBin"), "Finisher");
}

TEST_F(Words, GoIntoTheJobAsTheyWereWritten) {
  begin();
  ask({"sides", "two-sided-short-edge"});
  ask({"media", "A5,tray-2"});
  EXPECT_EQ(session->job().options(),
            (Options{{"sides", "two-sided-short-edge"}, {"media", "A5,tray-2"}}));
}

TEST_F(Words, GiveWayToWhatIsPickedLater) {
  begin();
  ask({"sides", "two-sided-short-edge"});
  ask({"media", "A5,tray-2"});
  session->pick("Duplex", "None");
  session->pick("PageSize", "A4");
  EXPECT_EQ(session->job().options(),
            (Options{{"Duplex", "None"}, {"PageSize", "A4"}, {"InputSlot", "Tray2"}}));
  EXPECT_FALSE(session->job().ticketToKeep().contains("media"));
}

TEST_F(Words, AreBackOnceTheyAreTrueAgain) {
  begin();
  ask({"sides", "two-sided-short-edge"});
  session->pick("Duplex", "None");
  session->undo();
  EXPECT_EQ(session->job().options(), (Options{{"sides", "two-sided-short-edge"}}));
}

TEST_F(Words, ThatAskForTheDefaultGiveWayAsWell) {
  begin();
  ask({"sides", "one-sided"});
  EXPECT_EQ(session->job().options(), (Options{{"sides", "one-sided"}}));
  session->pick("Duplex", "DuplexTumble");
  EXPECT_EQ(session->job().options(), (Options{{"Duplex", "DuplexTumble"}}));
}

TEST_F(Words, ResolveConflictsAsAPickDoes) {
  SessionSetup setup;
  setup.printer = openTestPpd("finisher.ppd");
  session = PrintSession::begin(setup).take();
  ASSERT_TRUE(session->pick("OVKFolding", "Saddle"));
  ask({"output-bin", "upper"});
  EXPECT_EQ(marked("OutputBin"), "Upper");
  EXPECT_EQ(marked("OVKFolding"), "None");
  EXPECT_EQ(session->record().notices().size(), 1);
}

TEST_F(Words, ThatStandForNothingMarkNothing) {
  begin();
  const MarksSnapshot before = session->marks().snapshot();
  ask({"media", "papyrus"});
  ask({"sides", "three-sided"});
  ask({"media-source", "tray-2"});
  EXPECT_EQ(session->marks().snapshot(), before);
  EXPECT_EQ(session->job().options(),
            (Options{{"media", "papyrus"}, {"sides", "three-sided"}, {"media-source", "tray-2"}}));
}

TEST_F(Words, LoseAgainstTheOptionsOwnNameInAnyOrder) {
  begin();
  const QList<OptionChoice> asked{{"PageSize", "Legal"}, {"media", "A5,tray-2"}};
  session->pick("PageSize", "Legal");
  ask(asked[1], asked);
  EXPECT_EQ(marked("PageSize"), "Legal");
  EXPECT_EQ(marked("InputSlot"), "Tray2");
}

TEST_F(Words, NameACustomSizeWithItsValue) {
  SessionSetup setup;
  setup.printer = openTestPpd("custom.ppd");
  session = PrintSession::begin(setup).take();
  ask({"media", "Custom.300x400"});
  EXPECT_EQ(marked("PageSize"), "Custom.300x400");
  EXPECT_EQ(session->job().options(), (Options{{"media", "Custom.300x400"}}));
}

TEST_F(Words, OfAQueueMarkAndGoAlong) {
  begin({{"sides", "two-sided-long-edge"}, {"print-color-mode", "monochrome"}});
  EXPECT_EQ(marked("Duplex"), "DuplexNoTumble");
  EXPECT_EQ(marked("ColorModel"), "Gray");
  EXPECT_EQ(session->job().options(),
            (Options{{"sides", "two-sided-long-edge"}, {"print-color-mode", "monochrome"}}));
  EXPECT_TRUE(session->job().overruledOptions().isEmpty());
}

TEST_F(Words, OfAQueueStayBehindOnceSomethingElseIsPicked) {
  begin({{"sides", "two-sided-long-edge"}, {"print-color-mode", "monochrome"}});
  session->pick("Duplex", "None");
  EXPECT_EQ(session->job().options(),
            (Options{{"Duplex", "None"}, {"print-color-mode", "monochrome"}}));
  EXPECT_EQ(session->job().overruledOptions(), QStringList{"sides"});
}

TEST_F(Words, OfAQueueLoseAgainstTheSameWordAskedFor) {
  begin({{"sides", "two-sided-long-edge"}});
  ask({"sides", "one-sided"});
  EXPECT_EQ(marked("Duplex"), "None");
  EXPECT_EQ(session->job().options().value("sides"), "one-sided");
}

TEST_F(Words, OfATicketMarkUnlessItNamesTheOptionToo) {
  begin({}, {{"sides", "two-sided-long-edge"}, {"media", "A4"}, {"PageSize", "Legal"}});
  EXPECT_EQ(marked("Duplex"), "DuplexNoTumble");
  EXPECT_EQ(marked("PageSize"), "Legal");
  EXPECT_EQ(session->job().options(),
            (Options{{"sides", "two-sided-long-edge"}, {"PageSize", "Legal"}}));
}

TEST_F(Words, MeanCollationToAPrinterThatCollates) {
  begin();
  const OptionChoice word{"multiple-document-handling", "separate-documents-uncollated-copies"};
  EXPECT_FALSE(session->job().take(word.option, word.choice).value());
  ask(word);
  EXPECT_EQ(marked("Collate"), "False");
  EXPECT_EQ(session->job().options(), (Options{{word.option, word.choice}}));
}

TEST(MeaningOfJobOptions, LeavesMarksAndSizesAsTheyWere) {
  const auto printer = openTestPpd("custom.ppd");
  Marks marks(*printer);
  marks.markDefaults();
  marks.mark("PageSize", "Custom.200x300");
  const MarksSnapshot before = marks.snapshot();
  const float width = ppdPageWidth(printer->lend(), nullptr);
  EXPECT_EQ(marks.meaningOf({{"media", "Custom.300x400"}, {"sides", "one-sided"}}),
            (QList<OptionChoice>{{"PageSize", "Custom.300x400"}}));
  EXPECT_EQ(marks.snapshot(), before);
  EXPECT_EQ(ppdPageWidth(printer->lend(), nullptr), width);
}

TEST(MeaningOfJobOptions, IsNothingWithoutAPpd) {
  EXPECT_TRUE(Marks(PrinterDescription::none()).meaningOf({{"media", "A4"}}).isEmpty());
}

// Quality and color choose a printer's presets together: the one changed, the other would choose
// anew.
TEST(ServerWords, AreUntrueTogetherWhereTheyShareAnOption) {
  const auto printer = openTestPpd("quality.ppd");
  Marks marks(*printer);
  marks.markDefaults();
  const ServerWords words =
      ServerWords::of(marks, {}, {{"print-quality", 5}, {"print-color-mode", "monochrome"}});
  for (const OptionChoice &meant : words.choices()) marks.mark(meant.option, meant.choice);
  EXPECT_EQ(marks.marked("ColorModel"), "Gray");
  EXPECT_EQ(marks.marked("cupsPrintQuality"), "High");
  EXPECT_TRUE(words.untrue(marks).isEmpty());
  marks.mark("cupsPrintQuality", "Draft");
  EXPECT_EQ(words.untrue(marks).size(), 2);
}

TEST_F(Words, ThatAskForTheUsualAreUntrueOnceItIsNot) {
  begin({{"print-color-mode", "color"}});
  EXPECT_EQ(session->job().options(), (Options{{"print-color-mode", "color"}}));
  session->pick("ColorModel", "Gray");
  EXPECT_EQ(session->job().options(), (Options{{"ColorModel", "Gray"}}));
  EXPECT_EQ(session->job().overruledOptions(), QStringList{"print-color-mode"});
}

TEST_F(Words, LeaveTheOptionsOwnNameInTheJobWhereItWasNamedToo) {
  begin();
  ask({"media", "A5"});
  session->pick("PageSize", "A5");
  EXPECT_EQ(session->job().options(), (Options{{"media", "A5"}, {"PageSize", "A5"}}));
}

}  // namespace
}  // namespace orvek::test
