// SPDX-License-Identifier: Apache-2.0
// Headless runs of the real program with the real plug-in.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QImage>
#include <QJsonArray>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"

namespace orvek::test {
namespace {

QJsonObject inspected(const QStringList &more) {
  const ProgramRun run = runHeadless(QStringList{"--inspect"} + more);
  EXPECT_EQ(run.status, 0) << run.errors.constData();
  return run.json();
}

QJsonObject control(const QJsonObject &state, const QString &name) {
  return state.value("controls").toObject().value(name).toObject();
}

QString marked(const QJsonObject &state, const QString &option) {
  return state.value("marks").toObject().value(option).toString();
}

QString inTicket(const QJsonObject &state, const QString &key) {
  return state.value("ticket").toObject().value(key).toString();
}

QString write(const QTemporaryDir &dir, const QByteArray &bytes) {
  QFile file(dir.filePath("ticket.json"));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(bytes);
  return file.fileName();
}

const QJsonArray silentRestore{
    QJsonArray{"OVKStapling", QJsonValue()}, QJsonArray{"OVKFolding", QJsonValue()},
    QJsonArray{"OVKPunching", QJsonValue()}, QJsonArray{"OutputBin", QJsonValue()},
    QJsonArray{"OVKJog", QJsonValue()}};

TEST(Program, ShowsItsHelpAndVersionWithoutADisplay) {
  EXPECT_EQ(runProgram({"--help"}).status, 0);
  EXPECT_TRUE(runProgram({"--help"}).output.contains("--headless"));
  EXPECT_TRUE(runProgram({"--version"}).output.startsWith("orvek-print "));
}

TEST(Program, SaysNothingWhereNothingIsAsked) {
  const ProgramRun run = runHeadless({});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, "");
  EXPECT_TRUE(run.errorLines().isEmpty());
}

// Fontconfig complains of a missing configuration wherever it is asked.
TEST(Program, LooksForFontsOnlyWhereAPictureIsWanted) {
  const QTemporaryDir dir;
  const Surroundings withoutFonts{.environment = {"FONTCONFIG_FILE=/nonexistent/fonts.conf"}};
  EXPECT_FALSE(runHeadless({"--inspect", "--summary"}, withoutFonts).errors.contains("Fontconfig"));
  const QStringList picture{"--screenshot", dir.filePath("window.png")};
  EXPECT_TRUE(runHeadless(picture, withoutFonts).errors.contains("Fontconfig"));
}

TEST(Program, ShowsThePanelAsItOpened) {
  const QJsonObject state = inspected({});
  const QJsonObject panel = state.value("panel").toObject();
  EXPECT_EQ(panel.value("kind"), "com.orvek.print.pde.OrvekFinishing");
  EXPECT_EQ(panel.value("keys").toArray(),
            (QJsonArray{"OVKStapling", "OVKFolding", "OVKPunching", "OutputBin", "OVKJog"}));
  EXPECT_EQ(state.value("announced").toArray(), silentRestore);
  EXPECT_EQ(state.value("resized"), 2);
  EXPECT_EQ(state.value("conflicts").toArray(), QJsonArray());
  EXPECT_EQ(state.value("modelNumber"), "6180");
  EXPECT_EQ(state.value("log").toArray(), QJsonArray{"initWithCallback: finishing\n"});
  EXPECT_EQ(inTicket(state, "OVKAppName"), "orvek-print");
}

TEST(Program, ShowsEachKindOfControlWithItsOwnState) {
  const QJsonObject state = inspected({});
  const QJsonObject popUp = control(state, "punchPopup");
  EXPECT_EQ(popUp.value("selected"), 0);
  EXPECT_EQ(popUp.value("items").toArray()[1].toObject(),
            (QJsonObject{{"title", "2 Holes"}, {"enabled", false}}));
  EXPECT_EQ(control(state, "bookletChckBox").value("state"), 0);
  EXPECT_EQ(control(state, "staplingLbl").value("title"), "Stapling:");
  EXPECT_EQ(control(state, "gutterSlider").value("maximum"), 144);
  EXPECT_EQ(control(state, "gutterTxtBox").value("text"), "24");
  EXPECT_EQ(control(state, "imageWindow").value("image"), "Stapling_Quince_None.png");
  EXPECT_FALSE(control(state, "imageWindow").contains("title"));
  EXPECT_TRUE(control(state, "bookletBox").contains("title"));
  EXPECT_EQ(control(state, "bookletView").value("hidden"), true);
  EXPECT_EQ(control(state, "basicView").value("frame").toArray().size(), 4);
}

TEST(Program, KeepsAnImageViewApartFromLabelsWhereNoPictureWasEverSet) {
  const ProgramRun run = runHeadless({"--inspect"}, {}, "foreign.ppd");
  ASSERT_EQ(run.status, 0);
  const QJsonObject view = control(run.json(), "imageWindow");
  EXPECT_TRUE(view.contains("image"));
  EXPECT_TRUE(view.value("image").isNull());
  EXPECT_TRUE(run.json().value("modelNumber").isNull());
}

TEST(Program, HasNoPanelWithoutAPlugin) {
  const QTemporaryDir dir;
  // Elsewhere there is no build tree around it.
  const Surroundings elsewhere{.program = dir.filePath("orvek-print")};
  ASSERT_TRUE(QFile::copy(Surroundings().program, elsewhere.program));
  const QJsonObject state = runHeadless({"--inspect"}, elsewhere).json();
  ASSERT_TRUE(state.contains("panel"));
  EXPECT_TRUE(state.value("panel").isNull());
  EXPECT_EQ(state.value("controls").toObject(), QJsonObject());
  EXPECT_EQ(state.value("selections").toObject(), QJsonObject());
  EXPECT_EQ(state.value("announced").toArray(), QJsonArray());
  EXPECT_EQ(state.value("summary").toObject(), QJsonObject());
  EXPECT_EQ(marked(state, "OVKStapling"), "None");
}

TEST(Program, MarksAndRecordsAPick) {
  const QJsonObject state = inspected({"--do", "foldingPopup=Saddle"});
  EXPECT_EQ(marked(state, "OVKFolding"), "Saddle");
  EXPECT_EQ(inTicket(state, "OVKFolding"), "Saddle");
  EXPECT_EQ(state.value("selections").toObject().value("folding"), "Saddle");
  EXPECT_EQ(state.value("summary").toObject().value("Folding"), "Saddle fold");
}

TEST(Program, FindsAnItemByIndexKeywordOrTitle) {
  EXPECT_EQ(marked(inspected({"--do", "staplingPopup=#2"}), "OVKStapling"), "Dual");
  EXPECT_EQ(marked(inspected({"--do", "staplingPopup=Dual"}), "OVKStapling"), "Dual");
  EXPECT_EQ(marked(inspected({"--do", "staplingPopup=2 Staples"}), "OVKStapling"), "Dual");
}

TEST(Program, FindsATargetPaperByItsKeyword) {
  const QStringList booklet{"--do", "bookletChckBox=on", "--do"};
  const QJsonObject byKeyword = inspected(booklet + QStringList{"paperSizePopup=Letter"});
  const QJsonObject menu = control(byKeyword, "paperSizePopup");
  const int picked = menu.value("selected").toInt();
  ASSERT_GT(picked, 0);
  EXPECT_EQ(inTicket(byKeyword, "OVKTargetPaperSize"), QString::number(picked));
  const QString title = menu.value("items").toArray()[picked].toObject().value("title").toString();
  EXPECT_NE(title, "Letter");
  EXPECT_EQ(inspected(booklet + QStringList{"paperSizePopup=" + title}), byKeyword);
}

TEST(Program, ActsOnBoxesSlidersAndFieldsAsAUserDoes) {
  const QJsonObject state = inspected({"--do", "bookletChckBox=on", "--do", "rToLChckBox=mixed",
                                       "--do", "gutterSlider=500", "--do", "creepTxtBox=-7x"});
  EXPECT_EQ(inTicket(state, "OVKEnableBooklet"), "True");
  EXPECT_EQ(control(state, "rToLChckBox").value("state"), -1);
  EXPECT_EQ(inTicket(state, "OVKGutter"), "144");
  EXPECT_EQ(inTicket(state, "OVKCreep"), "-7");
  EXPECT_EQ(control(state, "creepTxtBox").value("text"), "-7");
}

TEST(Program, RestoresThePanelOnceAfterConstraintsChangedItsOptions) {
  const QJsonObject state =
      inspected({"--do", "paperDestPopup=Upper", "--do", "foldingPopup=Saddle"});
  EXPECT_EQ(marked(state, "OutputBin"), "Booklet");
  EXPECT_EQ(inTicket(state, "OutputBin"), "Booklet");
  EXPECT_EQ(control(state, "paperDestPopup").value("selected"), 2);
  QJsonArray expected = silentRestore;
  const QJsonArray actions{QJsonArray{"OutputBin", "Upper"}, QJsonArray{"OVKFolding", "Saddle"},
                           QJsonArray{"OVKStapling", "None"}};
  const QJsonArray restore{QJsonArray{"OVKStapling", "None"}, QJsonArray{"OVKFolding", "Saddle"},
                           QJsonArray{"OVKPunching", QJsonValue()},
                           QJsonArray{"OutputBin", "Booklet"}, QJsonArray{"OVKJog", QJsonValue()}};
  for (const QJsonValue entry : actions) expected.append(entry);
  for (const QJsonValue entry : restore) expected.append(entry);
  EXPECT_EQ(state.value("announced").toArray(), expected);
}

TEST(Program, SaysWhatGaveWayWithoutCallingItAnError) {
  const ProgramRun run =
      runHeadless({"--do", "paperDestPopup=Upper", "--do", "foldingPopup=Saddle"});
  EXPECT_TRUE(run.errors.contains(
      "Output Destination was set to Booklet Tray: it can't be combined with Saddle fold\n"));
  EXPECT_TRUE(run.errorLines().isEmpty());
}

TEST(Program, MarksWithoutTouchingTheTicket) {
  const QJsonObject state =
      inspected({"--mark", "ovkstapling=front", "--mark", "OVKFolding=Saddle"});
  EXPECT_EQ(marked(state, "OVKStapling"), "Front");
  EXPECT_FALSE(state.value("ticket").toObject().contains("OVKStapling"));
  EXPECT_EQ(state.value("conflicts").toArray(),
            (QJsonArray{QJsonArray{"OVKFolding", "Saddle"}, QJsonArray{"OVKStapling", "Front"}}));
}

TEST(Program, ReadsANumberUnderAChoiceKeyAsItsText) {
  QTemporaryDir dir;
  const QJsonObject state = inspected({"--ticket", write(dir, R"({"OVKPunching": 3})")});
  EXPECT_EQ(marked(state, "OVKPunching"), "3");
  EXPECT_EQ(state.value("ticket").toObject().value("OVKPunching"), QJsonValue("3"));
}

TEST(Program, LeavesATicketChoiceThatThePpdLacks) {
  QTemporaryDir dir;
  const QJsonObject state = inspected({"--ticket", write(dir, R"({"OVKFolding": "Origami"})")});
  EXPECT_EQ(marked(state, "OVKFolding"), "None");
  EXPECT_EQ(inTicket(state, "OVKFolding"), "Origami");
}

TEST(Program, GivesTheTicketBackWithIntegersAsIntegers) {
  QTemporaryDir dir;
  const QString out = dir.filePath("out.json");
  const QString in = write(dir, R"({"OVKFolding": "saddle", "my": 5, "text": "5"})");
  ASSERT_EQ(runHeadless({"--ticket", in, "--ticket-out", out, "--do", "nup=0"}).status, 0);
  QFile file(out);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QJsonObject ticket = QJsonDocument::fromJson(file.readAll()).object();
  EXPECT_EQ(ticket.value("OVKFolding"), "Saddle");
  EXPECT_EQ(ticket.value("my"), 5);
  EXPECT_EQ(ticket.value("text"), "5");
  EXPECT_EQ(ticket.value("com.apple.print.PrintSettings.PMLayoutNUp"), 0);
}

TEST(Program, TellsThePanelOfALayoutOnlyByALaterAction) {
  const QStringList layout{"--do", "bookletChckBox=on", "--do", "nup=4"};
  EXPECT_EQ(control(inspected(layout), "bookletChckBox").value("enabled"), true);
  const QJsonObject shown = inspected(layout + QStringList{"--do", "willShow"});
  EXPECT_EQ(control(shown, "bookletChckBox").value("enabled"), false);
  EXPECT_EQ(inTicket(shown, "OVKEnableBooklet"), "False");
}

TEST(Program, MakesThePanelAgainOnTheSamePpdAndTicket) {
  const QJsonObject state = inspected({"--do", "foldingPopup=Saddle", "--do", "reopen"});
  EXPECT_EQ(control(state, "foldingPopup").value("selected"), 1);
  EXPECT_EQ(state.value("log").toArray().size(), 2);
  EXPECT_EQ(state.value("announced").toArray().size(), 5 + 2 + 5);
  EXPECT_EQ(state.value("resized"), 4);
}

TEST(Program, CarriesOptionsOutAsPicks) {
  const ProgramRun run =
      runHeadless({"--inspect", "-o", "OVKStapling=front", "-o", "OVKFolding=Saddle", "-o",
                   "OVKGutter=30", "-o", "number-up=2"});
  ASSERT_EQ(run.status, 0);
  EXPECT_EQ(marked(run.json(), "OVKFolding"), "Saddle");
  EXPECT_EQ(marked(run.json(), "OVKStapling"), "None");
  EXPECT_EQ(inTicket(run.json(), "OVKGutter"), "30");
  EXPECT_EQ(
      run.json().value("ticket").toObject().value("com.apple.print.PrintSettings.PMLayoutNUp"), 2);
  EXPECT_TRUE(run.errors.contains("Stapling was set to Off"));
}

TEST(Program, IsAHostThatCannotResizeWhereAskedTo) {
  const QJsonObject state = inspected({"--no-resize"});
  EXPECT_EQ(state.value("resized"), 0);
  EXPECT_EQ(control(state, "bookletChckBox").value("enabled"), false);
  EXPECT_EQ(control(state, "bookletView").value("hidden"), false);
}

TEST(Program, PrintsTheSummaryALineASetting) {
  const ProgramRun run = runHeadless({"--summary", "--do", "foldingPopup=Saddle"});
  EXPECT_TRUE(run.output.contains("Folding: Saddle fold\n"));
  EXPECT_EQ(run.output.count('\n'), 10);
}

TEST(Program, SpeaksTheUsersLanguage) {
  const ProgramRun run = runHeadless({"--inspect"}, {{"LC_ALL=de_DE.UTF-8"}, {}, {}}, "german.ppd");
  EXPECT_TRUE(run.json().value("summary").toObject().contains("Heften"));
}

TEST(Program, WritesAPictureOfTheDialog) {
  QTemporaryDir dir;
  ASSERT_EQ(runHeadless({"--screenshot", dir.filePath("s.png")}).status, 0);
  EXPECT_GE(QImage(dir.filePath("s.png")).width(), 600);
}

TEST(Program, DoesNotWaitForADocumentThatNobodyNeeds) {
  Surroundings surroundings;
  surroundings.closeInput = false;
  EXPECT_EQ(runHeadless({"--inspect"}, surroundings).status, 0);
}

TEST(Program, SavesAPresetBeginsWithItAndDeletesIt) {
  QTemporaryDir dir;
  const Surroundings home{{"XDG_DATA_HOME=" + dir.path()}, {}, {}};
  ASSERT_EQ(runHeadless({"--save-preset", "My fold", "--do", "foldingPopup=Saddle"}, home).status,
            0);
  EXPECT_EQ(runProgram({"--list-presets"}, home).output, "My fold\n");
  const ProgramRun run = runHeadless({"--preset", "My fold", "--inspect"}, home);
  EXPECT_EQ(marked(run.json(), "OVKFolding"), "Saddle");
  EXPECT_EQ(control(run.json(), "foldingPopup").value("selected"), 1);
  EXPECT_EQ(runProgram({"--delete-preset", "My fold"}, home).status, 0);
  EXPECT_EQ(runProgram({"--list-presets"}, home).output, "");
  EXPECT_EQ(runHeadless({"--preset", "My fold"}, home).errorLines().size(), 1);
}

TEST(Program, LetsTheTicketOverruleThePreset) {
  QTemporaryDir dir;
  const Surroundings home{{"XDG_DATA_HOME=" + dir.path()}, {}, {}};
  ASSERT_EQ(runHeadless({"--save-preset", "p", "--do", "foldingPopup=Saddle"}, home).status, 0);
  const QString ticket = write(dir, R"({"OVKFolding": "None"})");
  const ProgramRun run = runHeadless({"--preset", "p", "--ticket", ticket, "--inspect"}, home);
  EXPECT_EQ(marked(run.json(), "OVKFolding"), "None");
}

TEST(Program, PrintsIntoAFileWhatTheDialogShows) {
  QTemporaryDir dir;
  const QString out = dir.filePath("out.ps");
  const ProgramRun run =
      runHeadless({"--do", "foldingPopup=Saddle", "--output", out,
                   QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps")});
  if (run.errors.contains("cupsfilter")) GTEST_SKIP() << "the CUPS filters are not installed";
  ASSERT_EQ(run.status, 0) << run.errors.constData();
  QFile file(out);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().contains("%%BeginFeature: *OVKFolding Saddle"));
}

}  // namespace
}  // namespace orvek::test
