// SPDX-License-Identifier: Apache-2.0
// What a user did, taken back and done again act by act.

#include "host/session/History.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "platform/plugin/BookletKeys.h"
#include "tests/host/session/SessionKit.h"

namespace orvek::test {
namespace {

class HistoryTest : public testing::Test {
 protected:
  void pick(const char *option, const char *choice) const {
    session().pick(QLatin1String(option), QLatin1String(choice));
  }

  /// As a panel does it: in an act that ends at the event loop.
  void write(QLatin1String key, const QVariant &value) const {
    session().setTicketValue(key, value);
    QCoreApplication::processEvents();
  }

  void setCopies(int copies) const {
    JobSettings job = session().job().settings();
    job.copies = copies;
    session().job().setSettings(job);
  }

  QStringList words() const { return wordsOf(session().history().done()); }
  QStringList undoneWords() const { return wordsOf(session().history().undone()); }

  static QStringList wordsOf(const QList<HistoryEntry> &entries) {
    QStringList words;
    for (const HistoryEntry &entry : entries) words << entry.words;
    return words;
  }

  QString marked(const char *option) const { return recorded.marked(QLatin1String(option)); }
  PrintSession &session() const { return *recorded.session; }

  RecordedSession recorded;
};

TEST_F(HistoryTest, HasNothingToTakeBackAtFirst) {
  EXPECT_FALSE(session().canUndo());
  session().undo();
  session().redo();
  EXPECT_TRUE(session().history().done().isEmpty());
  EXPECT_TRUE(session().history().undone().isEmpty());
}

TEST_F(HistoryTest, GoesBackSeveralActsAndForwardAgain) {
  pick("OVKStapling", "Front");
  pick("OVKFolding", "Saddle");
  pick("OVKStapling", "Dual");
  ASSERT_EQ(marked("OVKFolding"), "None");
  session().undo();
  EXPECT_EQ(marked("OVKFolding"), "Saddle");
  EXPECT_EQ(marked("OVKStapling"), "None");
  session().undo();
  EXPECT_EQ(marked("OVKFolding"), "None");
  EXPECT_EQ(marked("OVKStapling"), "Front");
  session().undo();
  EXPECT_EQ(marked("OVKStapling"), "None");
  EXPECT_FALSE(session().canUndo());
  session().redo(2);
  EXPECT_EQ(marked("OVKFolding"), "Saddle");
  EXPECT_EQ(recorded.inTicket("OVKStapling"), QVariant("None"));
  session().redo();
  EXPECT_EQ(marked("OVKStapling"), "Dual");
  EXPECT_TRUE(session().history().undone().isEmpty());
}

TEST_F(HistoryTest, TakesAnActBackWithMarksAndTicket) {
  pick("OVKStapling", "Front");
  const MarksSnapshot before = session().marks().snapshot();
  const TicketValues ticketBefore = session().ticket().values();
  recorded.act([&] {
    pick("OVKFolding", "Saddle");
    pick("OVKPunching", "2");
  });
  session().undo();
  EXPECT_EQ(session().marks().snapshot(), before);
  EXPECT_EQ(session().ticket().values(), ticketBefore);
}

TEST_F(HistoryTest, SaysEachActInWordsWithWhatWasPickedFirst) {
  pick("OVKStapling", "Front");
  pick("OVKFolding", "Saddle");
  setCopies(3);
  EXPECT_EQ(words(), (QStringList{"Copies: 3", "Folding: Saddle fold; Stapling: Off",
                                  "Stapling: 1 Staple"}));
  session().undo(2);
  EXPECT_EQ(words(), QStringList{"Stapling: 1 Staple"});
  EXPECT_EQ(undoneWords(), (QStringList{"Folding: Saddle fold; Stapling: Off", "Copies: 3"}));
}

TEST_F(HistoryTest, TakesBackBookletLayoutAndJobSettings) {
  session().job().setPagesPerSheet(4);
  session().job().setPagesPerSheet(0);
  write(enableBookletKey, "True");
  JobSettings job = session().job().settings();
  job.orientation = Orientation::Landscape;
  session().job().setSettings(job);
  EXPECT_EQ(words(), (QStringList{"Orientation: Landscape", "Booklet: On", "Pages per sheet: 1",
                                  "Pages per sheet: 4"}));
  session().undo();
  EXPECT_EQ(session().job().settings().orientation, Orientation::Automatic);
  session().undo();
  EXPECT_FALSE(recorded.inTicket(enableBookletKey).isValid());
  session().undo();
  EXPECT_EQ(session().job().pagesPerSheet(), 4);
  session().undo();
  EXPECT_FALSE(recorded.inTicket(layoutNUpKey).isValid());
}

TEST_F(HistoryTest, HasPanelsShowABookletThatIsTakenBack) {
  write(enableBookletKey, "True");
  const auto before = recorded.calls().count("restore");
  session().undo();
  EXPECT_EQ(recorded.calls().count("restore"), before + 1);
}

TEST_F(HistoryTest, CountsANumberThatIsTypedAsOneAct) {
  for (const char *typed : {"3", "36"}) write(gutterKey, typed);
  for (const int copies : {1, 12, 120}) setCopies(copies);
  EXPECT_EQ(words(), (QStringList{"Copies: 120", "Gutter: 36 pt"}));
  session().undo(2);
  EXPECT_EQ(session().job().settings().copies, 1);
  EXPECT_FALSE(recorded.inTicket(gutterKey).isValid());
}

TEST_F(HistoryTest, ForgetsANumberThatIsAsItWas) {
  setCopies(2);
  setCopies(1);
  EXPECT_FALSE(session().canUndo());
}

TEST_F(HistoryTest, ForgetsWhatWasTakenBackWhenSomethingElseIsDone) {
  pick("OVKStapling", "Front");
  session().undo();
  pick("OVKPunching", "2");
  EXPECT_TRUE(session().history().undone().isEmpty());
  session().redo();
  EXPECT_EQ(marked("OVKStapling"), "None");
}

TEST_F(HistoryTest, NeverGivesANumberTwice) {
  pick("OVKStapling", "Front");
  const int first = session().history().lastStep();
  session().undo();
  EXPECT_EQ(session().history().lastStep(), 0);
  pick("OVKPunching", "2");
  EXPECT_GT(session().history().lastStep(), first);
}

TEST_F(HistoryTest, DoesNotCountPicksThatChangeNothing) {
  pick("OVKFolding", "Saddle");
  pick("OVKFolding", "Saddle");
  session().undo();
  EXPECT_EQ(marked("OVKFolding"), "None");
}

TEST_F(HistoryTest, LeavesAloneWhatTheHostWroteByItself) {
  pick("OVKFolding", "Saddle");
  {
    const ActionScope saving(session(), ActionOf::Host);
    session().setTicketValue(gutterKey, "30");
  }
  EXPECT_EQ(words(), QStringList{"Folding: Saddle fold"});
  session().undo();
  EXPECT_EQ(marked("OVKFolding"), "None");
  EXPECT_EQ(recorded.inTicket(gutterKey), QVariant("30"));
}

TEST_F(HistoryTest, LeavesAloneWhatTheCommandLineAskedFor) {
  ASSERT_TRUE(session().job().take("copies", "4").value());
  EXPECT_FALSE(session().canUndo());
  pick("OVKFolding", "Saddle");
  session().undo();
  EXPECT_EQ(session().job().settings().copies, 4);
}

TEST_F(HistoryTest, NamesOnlySomeOfManyChanges) {
  recorded.act([&] {
    pick("OVKFolding", "Saddle");
    setCopies(2);
    session().job().setPagesPerSheet(2);
    session().setTicketValue(creepKey, "3");
  });
  EXPECT_EQ(words(), QStringList{"Folding: Saddle fold; Creep: 3 pt; Copies: 2; 1 more"});
}

}  // namespace
}  // namespace orvek::test
