// SPDX-License-Identifier: Apache-2.0
// What is said before a job goes.

#include "host/session/JobWarnings.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include "host/session/PrintSession.h"
#include "tests/support/Printers.h"

namespace orvek::test {
namespace {

class JobWarnings : public testing::Test {
 protected:
  void SetUp() override {
    SessionSetup setup;
    setup.printer =
        PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"))
            .take();
    session = PrintSession::begin(setup).take();
  }

  void askForFoldedBooklet() {
    session->pick("OVKFolding", "Saddle");
    session->setTicketValue("OVKEnableBooklet", "True");
  }

  void setCopies(int copies, bool collate) {
    JobSettings settings = session->job().settings();
    settings.copies = copies;
    settings.collate = collate;
    session->job().setSettings(settings);
  }

  std::unique_ptr<PrintSession> session;
};

TEST_F(JobWarnings, AreNoneForAnOrdinaryJob) {
  EXPECT_EQ(jobWarnings(*session, 500), QStringList());
}

TEST_F(JobWarnings, NameStaplesInCopiesThatAreNotCollated) {
  session->pick("OVKStapling", "Dual");
  setCopies(2, false);
  EXPECT_EQ(jobWarnings(*session, 8),
            QStringList{"Two staples with copies that are not collated: equal pages would be "
                        "stapled together"});
  setCopies(2, true);
  EXPECT_EQ(jobWarnings(*session, 8), QStringList());
  setCopies(1, false);
  EXPECT_EQ(jobWarnings(*session, 8), QStringList());
}

TEST_F(JobWarnings, NameWhatCannotBePrintedOnTheTwoSidesOfABooklet) {
  session->pick("MediaType", "Transparency");
  EXPECT_EQ(jobWarnings(*session, 8), QStringList());
  session->setTicketValue(QStringLiteral("OVKEnableBooklet"), QStringLiteral("True"));
  EXPECT_EQ(jobWarnings(*session, 8),
            QStringList{"A booklet is printed on both sides, which can't be combined with "
                        "Transparencies"});
  session->pick("MediaType", "Plain");
  EXPECT_EQ(jobWarnings(*session, 8), QStringList());
}

TEST_F(JobWarnings, DependOnThePageCountOnlyWhereThePrinterFoldsSheets) {
  const auto depend = [this] {
    return warningsDependOnPages(session->marks(), session->ticket().values());
  };
  EXPECT_FALSE(depend());
  session->pick("OVKFolding", "Saddle");
  EXPECT_TRUE(depend());
  session->pick("OVKFolding", "None");
  EXPECT_FALSE(depend());
  session->setTicketValue("OVKEnableBooklet", "True");
  EXPECT_FALSE(depend());
  session->pick("OVKFolding", "Saddle");
  EXPECT_TRUE(depend());
}

TEST_F(JobWarnings, SayNothingOfALargeBookletThatNobodyFoldsButItsReader) {
  session->setTicketValue("OVKEnableBooklet", "True");
  EXPECT_EQ(jobWarnings(*session, 400), QStringList());
}

TEST_F(JobWarnings, NameABookletOfMoreSheetsThanThePrinterFolds) {
  askForFoldedBooklet();
  EXPECT_EQ(jobWarnings(*session, 60), QStringList());
  EXPECT_EQ(
      jobWarnings(*session, 61),
      QStringList{"A booklet of 16 sheets is more than the printer folds at once: at most 15"});
}

TEST_F(JobWarnings, SayWhereItIsSwitchedOnThatABookletIsTooThick) {
  QStringList said;
  QObject::connect(session.get(), &PrintSession::noticed, session.get(),
                   [&said](const QStringList &words) { said << words; });
  session->job().setDocumentPages(61);
  session->pick("OVKFolding", "Saddle");
  said.clear();
  session->setTicketValue("OVKEnableBooklet", "True");
  QCoreApplication::processEvents();
  EXPECT_EQ(said, QStringList{
                      "A booklet of 16 sheets is more than the printer folds at once: at most 15"});
  setCopies(2, true);
  EXPECT_EQ(said.size(), 1);
  session->job().setDocumentPages(60);
  session->job().setDocumentPages(65);
  EXPECT_EQ(said.size(), 2);
}

TEST(JobWarningsOfAnotherMakersPrinter, NameABookletThatItsOwnWordsHaveFolded) {
  QFile original(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
  ASSERT_TRUE(original.open(QIODevice::ReadOnly));
  const QTemporaryDir folder;
  SessionSetup setup;
  const QString path = folder.filePath("folds.ppd");
  QFile changed(path);
  ASSERT_TRUE(changed.open(QIODevice::WriteOnly));
  changed.write(original.readAll() +
                "*OpenUI *FoldType/Fold: PickOne\n*DefaultFoldType: None\n*FoldType None: \"\"\n"
                "*FoldType Half: \"\"\n*CloseUI: *FoldType\n");
  changed.close();
  setup.printer = PrinterDescription::open(path).take();
  const auto session = PrintSession::begin(setup).take();
  session->setTicketValue("OVKEnableBooklet", "True");
  EXPECT_EQ(jobWarnings(*session, 61), QStringList());
  session->pick("FoldType", "Half");
  EXPECT_EQ(jobWarnings(*session, 61).size(), 1);
}

TEST_F(JobWarnings, CountOnlyThePagesThatAreAskedFor) {
  askForFoldedBooklet();
  JobSettings settings;
  settings.pageRanges = QStringLiteral("1-60");
  session->job().setSettings(settings);
  EXPECT_EQ(jobWarnings(*session, 400), QStringList());
}

TEST_F(JobWarnings, CountTheSheetsOfASaddleFoldByTheLayout) {
  session->pick("OVKFolding", "Saddle");
  EXPECT_EQ(jobWarnings(*session, 16).size(), 1);
  session->pick("Duplex", "DuplexTumble");
  EXPECT_EQ(jobWarnings(*session, 30), QStringList());
  EXPECT_EQ(jobWarnings(*session, 31).size(), 1);
  session->job().setPagesPerSheet(2);
  EXPECT_EQ(jobWarnings(*session, 31), QStringList());
}

TEST_F(JobWarnings, CountRangesAsThePrintSystemDoesWhereSeveralPagesShareASheet) {
  session->pick("OVKFolding", "Saddle");
  session->job().setPagesPerSheet(2);
  JobSettings settings;
  settings.pageRanges = QStringLiteral("1-15");
  session->job().setSettings(settings);
  EXPECT_EQ(jobWarnings(*session, 60), QStringList());
  settings.pageRanges = QStringLiteral("1-16");
  session->job().setSettings(settings);
  EXPECT_EQ(jobWarnings(*session, 60).size(), 1);
}

TEST_F(JobWarnings, DoNotJudgeADocumentOfUnknownLength) {
  askForFoldedBooklet();
  EXPECT_EQ(jobWarnings(*session, 0), QStringList());
}

TEST(PagesProblem, IsWhatIsWrongWithRangesThatCanNotBeRead) {
  JobSettings settings;
  settings.pageRangesProblem = QStringLiteral("3-x: not a page range");
  EXPECT_EQ(pagesProblem(settings, {8, {}}), "3-x: not a page range");
  EXPECT_EQ(pagesProblem(settings, {}), "3-x: not a page range");
}

TEST(MaximumBookletSheets, AreThePrintersOrWhatIsUsual) {
  QTemporaryDir folder;
  const QString path = folder.filePath("folder.ppd");
  QFile original(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"));
  ASSERT_TRUE(original.open(QIODevice::ReadOnly));
  QFile changed(path);
  ASSERT_TRUE(changed.open(QIODevice::WriteOnly));
  changed.write(original.readAll().replace("*OVKBookletMaximumSheets: \"15\"",
                                           "*OVKBookletMaximumSheets: \"3\""));
  changed.close();
  EXPECT_EQ(maximumBookletSheets(*PrinterDescription::open(path).take()), 3);
  EXPECT_EQ(maximumBookletSheets(PrinterDescription::none()), 15);
}

TEST(JobWarningsWithoutPpd, KnowNoStaples) {
  const auto session = PrintSession::begin({}).take();
  JobSettings settings;
  settings.copies = 2;
  settings.collate = false;
  session->job().setSettings(settings);
  EXPECT_EQ(jobWarnings(*session, 8), QStringList());
}

TEST(PagesProblem, NamesPagesThatTheDocumentLacks) {
  JobSettings settings;
  settings.pageRanges = "9-12,99";
  EXPECT_EQ(pagesProblem(settings, {8, {}}),
            "The document has no page 9-12,99: the number of its pages is 8");
  EXPECT_TRUE(pagesProblem(settings, {9, {}}).isNull());
  EXPECT_TRUE(pagesProblem(settings, {}).isNull());
}

TEST(PagesProblem, CountsSidesWhereTheFiltersDo) {
  JobSettings settings;
  settings.pageRanges = "3-";
  DocumentSides document{8, {}};
  document.filters.pagesPerSide = 4;
  EXPECT_EQ(pagesProblem(settings, document),
            "None of the sides that are asked for exists: the number of sides is 2");
  document.pages = 9;
  EXPECT_TRUE(pagesProblem(settings, document).isNull());
}

TEST(PagesProblem, GoesByTheRulesForPostScriptWhereThatIsTheDocument) {
  const auto session = PrintSession::begin({}).take();
  session->job().setPagesPerSheet(10);
  JobSettings settings;
  settings.pageRanges = "2-";
  session->job().setDocumentPages(8);
  EXPECT_FALSE(pagesProblem(settings, documentSides(*session)).isNull());
  session->job().setDocumentPages(8, true);
  EXPECT_TRUE(pagesProblem(settings, documentSides(*session)).isNull());
}

TEST(PagesProblem, CountsTheEmptyPlacesOfTheFiltersBooklet) {
  JobSettings settings;
  settings.pageRanges = "6";
  DocumentSides document{5, {}};
  document.filters.booklet = imposition::OwnBooklet::Order;
  EXPECT_TRUE(pagesProblem(settings, document).isNull());
}

TEST(PagesProblem, KnowsThatOnePageHasNoEvenSide) {
  DocumentSides document{1, {}};
  document.filters.sides.parity = imposition::Parity::Even;
  EXPECT_EQ(pagesProblem({}, document),
            "None of the sides that are asked for exists: the number of sides is 1");
}

}  // namespace
}  // namespace orvek::test
