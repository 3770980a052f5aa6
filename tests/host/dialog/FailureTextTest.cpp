// SPDX-License-Identifier: Apache-2.0
// Failures as the window says them: in the user's language, while the command line keeps English.

#include "host/translations/FailureText.h"

#include <QTranslator>
#include <cerrno>

#include "host/jobs/Document.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/FilterMessages.h"
#include "host/jobs/QueueJob.h"
#include "host/presets/PresetName.h"
#include "host/printers/PrinterList.h"
#include "host/ticket/PageRanges.h"
#include "host/translations/Translations.h"
#include "tests/host/dialog/DialogKit.h"
#include "tests/host/dialog/Languages.h"

using namespace orvek;
using namespace orvek::test;

namespace {

// No server answers there: the port takes no connections.
const ServerAccess nobody{QStringLiteral("127.0.0.1:1"), QString()};

Failure ofFilters(const QByteArray &said) {
  FilterMessages messages;
  messages.add(said + '\n');
  return messages.reason(documentName(standardInput()), QStringLiteral("a.ppd"), 1);
}

JobRequest intoFile(const QString &ppd, const QString &document, const QString &output) {
  JobRequest request;
  request.files = QStringList{document};
  request.ppdFile = ppd;
  request.outputFile = output;
  return request;
}

JobRequest onNobodysQueue(const QString &document) {
  JobRequest request;
  request.files = QStringList{document};
  request.server = nobody.server;
  return request;
}

// One of each kind that a user can bring about in the window.
QList<Failure> failuresOfTheWindow() {
  const QString ppd = QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd");
  const QString document = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");
  const QTemporaryDir folder;
  PresetStore presets(folder.path());
  JobControl control;
  return {
      listPrinters(nobody).failure(),
      submitToQueue(onNobodysQueue(document), control).failure(),
      printThroughFilters(intoFile(folder.path(), document, {}), control).failure(),
      printThroughFilters(intoFile(ppd, folder.path(), {}), control).failure(),
      printThroughFilters(intoFile(ppd, folder.filePath("none"), {}), control).failure(),
      printThroughFilters(intoFile(ppd, document, "/nowhere/out"), control).failure(),
      checkAllDocuments({"-", "-"}).failure(),
      ofFilters("ERROR: pstops (PID 7) stopped with status 3"),
      ofFilters("ERROR: pstops (PID 7) crashed on signal 11"),
      ofFilters("cupsfilter: Unable to determine MIME type of \"x\""),
      presets.load(QStringLiteral("none")).failure(),
      checkPresetName({}).failure(),
      presetFromJson("[]", QStringLiteral("a.json")).failure(),
      presetFromJson(R"({"ticket": {"a": null}})", QStringLiteral("a.json")).failure(),
      PrinterDescription::open(document).failure(),
      normalizedPageRanges(QStringLiteral("x")).failure(),
      jobCancelled(),
  };
}

class FailureTextIn : public DialogTest, public ::testing::WithParamInterface<const char *> {
 protected:
  void SetUp() override { speech = std::make_unique<SpokenLanguage>(GetParam()); }

  std::unique_ptr<SpokenLanguage> speech;
};

TEST_P(FailureTextIn, IsNotTheEnglishOne) {
  for (const Failure &failure : failuresOfTheWindow()) {
    const std::string line = failure.line().toStdString();
    EXPECT_NE(translated(failure.why), failure.why) << line;
    EXPECT_FALSE(failureText(failure).contains(failure.why)) << line;
  }
}

TEST_P(FailureTextIn, LeavesTheCommandLinesEnglish) {
  EXPECT_EQ(checkPresetName({}).failure().line(),
            QStringLiteral("preset name: is empty; give the preset a name"));
  EXPECT_EQ(normalizedPageRanges(QStringLiteral("x")).failure().line(),
            QStringLiteral("x: not a page range; write for example 1-3,7"));
}

TEST_P(FailureTextIn, StandsInTheWindow) {
  open();
  dialog->showProblem(checkPresetName({}).failure());
  ASSERT_EQ(notices().sentences().size(), 1);
  EXPECT_FALSE(notices().sentences().first().contains(QStringLiteral("give the preset a name")));
}

INSTANTIATE_TEST_SUITE_P(Each, FailureTextIn, otherLanguages);

TEST(FailureText, TranslatesThePartsOfASentenceToo) {
  installTranslations();
  QTranslator german;
  ASSERT_TRUE(german.load(QStringLiteral(":/translations/orvek-print_de.qm")));
  QCoreApplication::installTranslator(&german);
  const Failure failure{
      FailureKind::Io, QStringLiteral("server:631"),
      Phrase("no print server answers there (%1)", {Phrase::ofSystem(ECONNREFUSED)})};
  EXPECT_EQ(failure.line(), "server:631: no print server answers there (Connection refused)");
  EXPECT_EQ(failureText(failure),
            QStringLiteral("server:631: dort antwortet kein Druckserver (Verbindungsaufbau "
                           "abgelehnt)"));
}

TEST(FailureText, NamesNoOptionsToThoseWhoHaveAWindow) {
  const Failure unknown{FailureKind::Io, QStringLiteral("office"),
                        Phrase("no such printer on %1; \"orvek-print --list-printers\" lists them",
                               {QString("srv")})};
  EXPECT_EQ(failureText(unknown), "office: no such printer on srv; choose another one");
  EXPECT_TRUE(unknown.line().contains("--list-printers"));
}

TEST(FailureText, IsTheLineOfTheCommandLineInEnglish) {
  for (const Failure &failure : failuresOfTheWindow()) {
    const bool isForTheCommandLine = failure.line().contains("orvek-print --");
    EXPECT_EQ(failureText(failure) == failure.line(), !isForTheCommandLine)
        << failureText(failure).toStdString();
  }
}

}  // namespace
