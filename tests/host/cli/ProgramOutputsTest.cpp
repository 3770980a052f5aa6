// SPDX-License-Identifier: Apache-2.0
// No file that is read is written over, whatever names and streams lead to it.

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"

namespace orvek::test {
namespace {

using testing::HasSubstr;
using testing::StartsWith;

const QStringList outputOptions{"--output", "--screenshot", "--ticket-out"};
constexpr const char *sample = ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps";

class ProgramOutputs : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(QFile::copy(sample, folder.filePath("doc.ps")));
    ASSERT_TRUE(QFile::copy(testPpd("finisher.ppd"), folder.filePath("my.ppd")));
    QFile ticket(folder.filePath("my.json"));
    ASSERT_TRUE(ticket.open(QIODevice::WriteOnly));
    ticket.write("{\"OVKStapling\": \"Front\"}\n");
  }

  /// Runs a script in the folder with $program, on whose standard output nothing may come.
  ProgramRun run(const QString &script) const {
    return runScript(QStringLiteral("cd %1; export XDG_DATA_HOME=%1\n").arg(folder.path()) +
                     script);
  }

  QByteArray contents(const QString &name) const {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  /// Nothing is written, and why is said in one line of these words.
  void expectRefused(const QString &script, const QByteArray &line) const {
    const QByteArrayList before{contents("doc.ps"), contents("my.ppd"), contents("my.json")};
    const QStringList names = entries();
    const ProgramRun done = run(script);
    EXPECT_EQ(done.status, 1) << script.toStdString();
    EXPECT_EQ(done.output, "") << script.toStdString();
    EXPECT_EQ(done.errors, "orvek-print: " + line + "; name another file\n")
        << script.toStdString();
    EXPECT_EQ((QByteArrayList{contents("doc.ps"), contents("my.ppd"), contents("my.json")}), before)
        << script.toStdString();
    QFile::remove(folder.filePath("link.ps"));
    EXPECT_TRUE(names == entries()) << script.toStdString();
  }

  QStringList entries() const { return QDir(folder.path()).entryList(QDir::AllEntries); }

  const QTemporaryDir folder;
};

constexpr const char *document = ": is the document itself, which would be lost";

TEST_F(ProgramOutputs, AreNotTheDocumentUnderAnyName) {
  for (const QString &option : outputOptions) {
    const QString call = QStringLiteral("$program %1 ").arg(option);
    expectRefused(call + "doc.ps doc.ps", QByteArray("doc.ps") + document);
    expectRefused(call + "./doc.ps doc.ps", QByteArray("./doc.ps") + document);
    expectRefused("ln doc.ps link.ps; " + call + "link.ps doc.ps",
                  QByteArray("link.ps") + document);
    expectRefused("ln -s doc.ps link.ps; " + call + "link.ps doc.ps",
                  QByteArray("link.ps") + document);
    expectRefused("ln -s doc.ps link.ps; " + call + "doc.ps " + sample + " link.ps",
                  QByteArray("doc.ps") + document);
    expectRefused(call + "/dev/fd/3 doc.ps 3<>doc.ps", QByteArray("/dev/fd/3") + document);
    expectRefused(call + "/dev/stdout doc.ps 1<>doc.ps", QByteArray("/dev/stdout") + document);
  }
}

TEST_F(ProgramOutputs, AreNotTheDocumentThatComesByStandardInput) {
  expectRefused("$program --output doc.ps - <doc.ps", QByteArray("doc.ps") + document);
  expectRefused("$program --output doc.ps <doc.ps", QByteArray("doc.ps") + document);
  expectRefused("$program --screenshot doc.ps - <doc.ps", QByteArray("doc.ps") + document);
}

TEST_F(ProgramOutputs, DoNotGoByStandardOutputIntoTheDocument) {
  const QByteArray line = QByteArray("standard output") + document;
  expectRefused("$program --output - doc.ps >>doc.ps", line);
  expectRefused("$program --output - 1<>doc.ps <doc.ps", line);
}

TEST_F(ProgramOutputs, AreNotThePrinterDescription) {
  const QByteArray line = "my.ppd: is the printer description itself, which would be lost";
  for (const QString &option : outputOptions) {
    expectRefused(QStringLiteral("$program --ppd my.ppd %1 my.ppd doc.ps").arg(option), line);
  }
}

TEST_F(ProgramOutputs, AreNotTheTicketButForTheTicketItself) {
  const QByteArray line = "my.json: is the ticket itself, which would be lost";
  expectRefused("$program --ticket my.json --output my.json doc.ps", line);
  expectRefused("$program --ticket my.json --screenshot my.json", line);
  expectRefused("$program --ticket my.json --ticket-out /dev/stdout >>my.json",
                "/dev/stdout: is the ticket itself, which would be lost");
  const ProgramRun updated =
      run("$program --ticket my.json --do foldingPopup=None --ticket-out my.json");
  EXPECT_EQ(updated.status, 0) << updated.errors.constData();
  EXPECT_EQ(updated.errorLines(), QByteArrayList());
  EXPECT_THAT(contents("my.json").toStdString(), HasSubstr("\"OVKStapling\": \"Front\""));
  EXPECT_NE(contents("my.json"), "{\"OVKStapling\": \"Front\"}\n");
}

TEST_F(ProgramOutputs, AreNotThePresetButForThePresetItself) {
  ASSERT_EQ(run("$program --do staplingPopup=Front --save-preset Mine").status, 0);
  const ProgramRun refused =
      run("set -- orvek-print/presets/*; $program --preset Mine --output \"$1\" doc.ps");
  EXPECT_EQ(refused.status, 1);
  EXPECT_THAT(refused.errors.toStdString(),
              HasSubstr(": is the preset itself, which would be lost"));
  const ProgramRun updated = run("$program --preset Mine --save-preset Mine --inspect");
  EXPECT_EQ(updated.status, 0) << updated.errors.constData();
}

TEST_F(ProgramOutputs, MayLieBesideWhatIsRead) {
  const ProgramRun done =
      run("cp doc.ps other.ps; $program --ticket my.json --ticket-out new.json "
          "--screenshot new.png --output other.ps doc.ps");
  EXPECT_EQ(done.status, 0) << done.errors.constData();
  EXPECT_THAT(contents("other.ps").toStdString(), StartsWith("%!PS"));
  EXPECT_NE(contents("other.ps"), contents("doc.ps"));
}

}  // namespace
}  // namespace orvek::test
