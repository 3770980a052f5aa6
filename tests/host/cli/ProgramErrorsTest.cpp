// SPDX-License-Identifier: Apache-2.0
// What the program says and returns when something is wrong: one line, and a status that scripts
// can count on.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"

namespace orvek::test {
namespace {

using testing::HasSubstr;

class ProgramErrors : public testing::Test {
 protected:
  QString file(const QString &name, const QByteArray &bytes) {
    QFile made(dir.filePath(name));
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    made.write(bytes);
    return made.fileName();
  }

  static void expectFailure(const ProgramRun &run, int status, const char *words) {
    EXPECT_EQ(run.status, status) << run.errors.constData();
    EXPECT_EQ(run.output, "");
    ASSERT_EQ(run.errorLines().size(), 1) << run.errors.constData();
    EXPECT_THAT(run.errorLines().first().toStdString(), HasSubstr(words));
  }

  QTemporaryDir dir;
};

TEST_F(ProgramErrors, WrongOptionsAreTwo) {
  expectFailure(runProgram({"--frobnicate"}), 2, "--frobnicate: unknown option");
  expectFailure(runProgram({"-n", "x"}), 2, "-n: ");
  expectFailure(runProgram({"--do", "fly"}), 2, "--do fly: ");
}

TEST_F(ProgramErrors, AnUnreadablePpdIsOneAndAnInvalidOneThree) {
  expectFailure(runProgram({"--headless", "--ppd", "/nowhere.ppd"}), 1, "/nowhere.ppd: ");
  expectFailure(runProgram({"--headless", "--ppd", file("a.ppd", "no ppd\n")}), 3, "a.ppd:1: ");
  expectFailure(runProgram({"--headless", "--ppd", file("b.ppd", "")}), 3, "b.ppd: ");
}

TEST_F(ProgramErrors, AnUnreadableTicketIsOneAndAnInvalidOneThree) {
  expectFailure(runHeadless({"--ticket", "/nowhere.json"}), 1, "/nowhere.json: ");
  expectFailure(runHeadless({"--ticket", file("t.json", "{\n\"a\"\n}")}), 3, "t.json:3: ");
  expectFailure(runHeadless({"--ticket", file("u.json", "{\"a\": true}")}), 3, "\"a\"");
}

TEST_F(ProgramErrors, AMarkThatThePpdLacksIsTwo) {
  expectFailure(runHeadless({"--mark", "OVKFlying=True", "--inspect"}), 2, "OVKFlying=True: ");
  expectFailure(runHeadless({"--mark", "OVKStapling=Triple", "--inspect"}), 2, "Triple: ");
}

TEST_F(ProgramErrors, AnOptionThatThePrinterCannotTakeIsTwo) {
  expectFailure(runHeadless({"-o", "OVKStapling=Triple", "--inspect"}), 2, "Triple: ");
  expectFailure(runHeadless({"-o", "number-up=x", "--inspect"}), 2, "number-up=x: ");
}

TEST_F(ProgramErrors, APageRangeThatMakesNoSenseIsNamedAsItWasTyped) {
  expectFailure(runHeadless({"-P", "3-1", "--inspect"}), 2, "orvek-print: -P 3-1: ");
  expectFailure(runHeadless({"-o", "page-ranges=3-1", "--inspect"}), 2,
                "orvek-print: -o page-ranges=3-1: ");
}

TEST_F(ProgramErrors, PagesThatTheDocumentLacksAreSaidOnce) {
  const QString sample = ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf";
  for (const QStringList &booklet : {QStringList(), QStringList{"-o", "OVKEnableBooklet=True"}}) {
    const ProgramRun run =
        runHeadless(booklet + QStringList{"-P", "9", "--output", dir.filePath("out.ps"), sample});
    expectFailure(run, 1, ": has no page 9: the number of its pages is 8");
    EXPECT_EQ(run.errors.count("page 9"), 1) << run.errors.constData();
  }
}

TEST_F(ProgramErrors, AFileWithoutANameIsSaidInOneLine) {
  for (const QStringList &unnamed : {QStringList{"--ticket", ""}, QStringList{"--inspect", ""}}) {
    const ProgramRun run = runHeadless(unnamed);
    EXPECT_EQ(run.errorLines().size(), 1) << run.errors.constData();
    EXPECT_FALSE(run.errors.contains("Qt:")) << run.errors.constData();
  }
}

TEST_F(ProgramErrors, ADamagedPictureIsSaidInOneLine) {
  const QString bundle = dir.filePath("a.bundle");
  ASSERT_EQ(QProcess::execute("cp", {"-RL", ORVEK_BUNDLE_DIR, bundle}), 0);
  for (const QString &name : QDir(bundle).entryList({"*.png"})) {
    ASSERT_TRUE(QFile::resize(bundle + '/' + name, 300));
  }
  const ProgramRun run =
      runHeadless({"--plugin", bundle, "--inspect", "--do", "staplingPopup=Front", "--do",
                   "staplingPopup=None", "--do", "staplingPopup=Front"});
  EXPECT_EQ(run.status, 0);
  EXPECT_FALSE(run.errors.contains("libpng")) << run.errors.constData();
  EXPECT_EQ(run.errors.count("/Stapling_Quince_Front.png: is no PNG picture, or a damaged one"), 1)
      << run.errors.constData();
}

TEST_F(ProgramErrors, ABrokenPluginThatWasNamedIsThree) {
  expectFailure(runHeadless({"--plugin", dir.filePath("none.bundle")}), 3, "none.bundle: ");
  QDir(dir.path()).mkdir("a.bundle");
  expectFailure(runHeadless({"--plugin", dir.filePath("a.bundle")}), 3, "a.bundle/Info.json: ");
  file("a.bundle/Info.json", R"({"PluginInterface": 1, "PrincipalClass": "A",
                                 "Executable": "libA.so"})");
  file("a.bundle/libA.so", "no code");
  expectFailure(runHeadless({"--plugin", dir.filePath("a.bundle")}), 3, "a.bundle/libA.so: ");
}

TEST_F(ProgramErrors, APluginThatOthersCanWriteIsRefused) {
  const QString place = dir.filePath("open");
  QDir(dir.path()).mkdir("open");
  ASSERT_EQ(QProcess::execute("cp", {"-RL", ORVEK_BUNDLE_DIR, place + "/a.bundle"}), 0);
  const QString bundle = place + "/a.bundle";
  EXPECT_EQ(runHeadless({"--plugin", bundle, "--inspect"}).status, 0);
  ASSERT_EQ(QProcess::execute("chmod", {"o+w", place}), 0);
  expectFailure(runHeadless({"--plugin", bundle, "--inspect"}), 3,
                "/open: can be written by others");
  const ProgramRun installed =
      runHeadless({"--inspect"}, {{"ORVEK_PRINT_PLUGIN_PATH=" + place}, {}, {}});
  EXPECT_EQ(installed.status, 0);
  EXPECT_EQ(installed.errorLines().size(), 1) << installed.errors.constData();
}

TEST_F(ProgramErrors, ABrokenInstalledPluginIsReportedAndLeftOut) {
  QDir(dir.path()).mkdir("a.bundle");
  const ProgramRun run =
      runHeadless({"--inspect"}, {{"ORVEK_PRINT_PLUGIN_PATH=" + dir.path()}, {}, {}});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errorLines().size(), 1);
  EXPECT_TRUE(run.json().value("panel").isObject());
}

// Away from the build tree, whose own plug-in would take the broken one's place.
TEST_F(ProgramErrors, AnActionOnTheOnlyPluginWhichIsBrokenIsThreeInOneLine) {
  QDir(dir.path()).mkpath("place/bin");
  QDir(dir.path()).mkpath("plugins/a.bundle");
  Surroundings elsewhere{{"ORVEK_PRINT_PLUGIN_PATH=" + dir.filePath("plugins")}, {}, {}};
  elsewhere.program = dir.filePath("place/bin/orvek-print");
  ASSERT_TRUE(QFile::copy(ORVEK_BINARY_DIR "/bin/orvek-print", elsewhere.program));
  expectFailure(runHeadless({"--do", "foldingPopup=#0", "--inspect"}, elsewhere), 3,
                "a.bundle/Info.json: ");
  EXPECT_EQ(runHeadless({"--inspect"}, elsewhere).status, 0);
}

TEST_F(ProgramErrors, AnActionOnWhatIsNotThereIsTwo) {
  expectFailure(runHeadless({"--inspect", "--do", "flyPopup=#0"}), 2, "--do flyPopup=#0: ");
  expectFailure(runHeadless({"--inspect", "--do", "staplingLbl=x"}), 2, "user can change");
  expectFailure(runHeadless({"--inspect", "--do", "staplingPopup=#3"}), 2, "no such item");
  expectFailure(runHeadless({"--inspect", "--do", "staplingPopup=#-1"}), 2, "no such item");
  expectFailure(runHeadless({"--inspect", "--do", "staplingPopup=Triple"}), 2, "no such item");
}

TEST_F(ProgramErrors, AnActionWithAMalformedValueIsTwo) {
  expectFailure(runHeadless({"--inspect", "--do", "staplingPopup=#x"}), 2, "integer");
  expectFailure(runHeadless({"--inspect", "--do", "offsetChckBox=yes"}), 2, "on, off or mixed");
  expectFailure(
      runHeadless({"--inspect", "--do", "bookletChckBox=on", "--do", "gutterSlider=wide"}), 2,
      "integer");
}

// Items without a keyword are no items of that name.
TEST_F(ProgramErrors, AMenuWithoutAnItemsNameIsTwo) {
  for (const char *menu : {"staplingPopup=", "paperSizePopup="}) {
    expectFailure(runHeadless({"--inspect", "--do", "bookletChckBox=on", "--do", menu}), 2,
                  "a menu takes an item's keyword or title, or #INDEX");
  }
}

TEST_F(ProgramErrors, AnActionThatAUserCouldNotDoIsTwo) {
  expectFailure(runHeadless({"--inspect", "--do", "gutterSlider=3"}), 2, "hidden");
  expectFailure(
      runHeadless({"--inspect", "--mark", "OVKOptionFinisher=False", "--do", "staplingPopup=#0"}),
      2, "hidden");
  expectFailure(runHeadless({"--inspect", "--no-resize", "--do", "bookletChckBox=off"}), 2,
                "disabled");
  expectFailure(runHeadless({"--inspect", "--do", "punchPopup=#1"}), 2, "disabled");
}

TEST_F(ProgramErrors, AFileThatCannotBeWrittenIsOne) {
  expectFailure(runHeadless({"--ticket-out", "/nowhere/t.json", "--inspect"}), 1,
                "/nowhere/t.json");
  expectFailure(runHeadless({"--screenshot", "/nowhere/s.png", "--inspect"}), 1, "/nowhere/s.png");
  expectFailure(runHeadless({"--output", "/nowhere/o.ps", "--inspect", "/dev/null"}), 1,
                "/nowhere");
}

TEST_F(ProgramErrors, AReportStaysOneLineWhateverTheNameHolds) {
  expectFailure(runHeadless({"--ticket", "/no\nwhere\r.json"}), 1, "/no where");
}

// Hexadecimal digits stand for bytes in a PPD's texts.
TEST_F(ProgramErrors, NoTextOfAPrinterMovesATerminalsCursorOrForgesALine) {
  QFile original(testPpd("finisher.ppd"));
  ASSERT_TRUE(original.open(QIODevice::ReadOnly));
  QByteArray ppd = original.readAll();
  ASSERT_TRUE(ppd.contains("*OVKStapling Front/"));
  ppd.replace("*OVKStapling Front/", "*OVKStapling Front/A<1B>[2J<0A>Forged<9B>");
  const QString path = file("forging.ppd", ppd);
  const ProgramRun run = runProgram({"--headless", "--ppd", path, "--summary", "--mark",
                                     "OVKOptionFinisher=False", "--do", "staplingPopup=Front"});
  const ProgramRun summed =
      runProgram({"--headless", "--ppd", path, "--summary", "--do", "staplingPopup=Front"});
  EXPECT_EQ(summed.status, 0) << summed.errors.constData();
  EXPECT_THAT(summed.output.toStdString(), HasSubstr("A [2J Forged 1 Staple"));
  for (const QByteArray &said : {run.output, run.errors, summed.output, summed.errors}) {
    EXPECT_FALSE(said.contains('\x1b')) << said.constData();
    EXPECT_FALSE(said.contains("\xc2\x9b")) << said.constData();
    EXPECT_FALSE(said.contains("\nForged")) << said.constData();
  }
}

TEST_F(ProgramErrors, APresetsNameIsOneLineInTheList) {
  QDir(dir.path()).mkpath("orvek-print/presets");
  const Surroundings there{{"XDG_DATA_HOME=" + dir.path()}, {}, {}};
  const QString name = QStringLiteral("A\x1b[2J\u202eB");
  const ProgramRun saved = runHeadless({"--save-preset", name}, there);
  const ProgramRun listed = runProgram({"--list-presets"}, there);
  for (const QByteArray &said : {saved.errors, listed.output, listed.errors}) {
    EXPECT_FALSE(said.contains('\x1b')) << said.constData();
    EXPECT_FALSE(said.contains("\xe2\x80\xae")) << said.constData();
  }
}

TEST_F(ProgramErrors, AClosedStandardInputIsNoDocumentToWaitFor) {
  const QString program = Surroundings().program;
  const ProgramRun run =
      runProgram({"-c", "exec \"$0\" --headless --ppd \"$1\" --output \"$2\" - <&-", program,
                  testPpd("finisher.ppd"), dir.filePath("out.ps")},
                 {{}, {}, {}, true, "sh"});
  expectFailure(run, 1, "standard input: ");
}

TEST_F(ProgramErrors, AClosedStandardOutputLosesNothingWithoutAWord) {
  const ProgramRun run = runProgram({"-c", "exec \"$0\" --headless --ppd \"$1\" --summary >&-",
                                     Surroundings().program, testPpd("finisher.ppd")},
                                    {{}, {}, {}, true, "sh"});
  expectFailure(run, 1, "standard output: ");
}

// The toolkit by itself would end the program with a signal and some lines.
TEST_F(ProgramErrors, AToolkitThatCannotStartIsOneInOneLine) {
  const ProgramRun run = runProgram({"--ppd", testPpd("finisher.ppd")},
                                    {{"QT_QPA_PLATFORM=no-such-platform"}, {}, {}});
  expectFailure(run, 1, "window toolkit: ");
}

TEST_F(ProgramErrors, RefuseStandardInputTwiceInAWindowToo) {
  expectFailure(runProgram({"--ppd", testPpd("finisher.ppd"), "-", "-"},
                           {{"QT_QPA_PLATFORM=offscreen"}, {}, {}}),
                2, "standard input: can be printed once only");
}

}  // namespace
}  // namespace orvek::test
