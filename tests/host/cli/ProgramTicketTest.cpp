// SPDX-License-Identifier: Apache-2.0
// A ticket or preset that the printer's equipment rules out: what is said, shown and printed agree.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include "tests/host/cli/Program.h"

namespace orvek::test {
namespace {

class ProgramTicket : public testing::Test {
 protected:
  QString file(const QString &name, const QByteArray &bytes) {
    QFile made(dir.filePath(name));
    EXPECT_TRUE(made.open(QIODevice::WriteOnly));
    made.write(bytes);
    return made.fileName();
  }

  ProgramRun run(const QStringList &more) {
    return runProgram(QStringList{"--headless", "--inspect", "--ppd",
                                  ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"} +
                          QStringList{"--output", dir.filePath("out.ps")} + more +
                          QStringList{ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf"},
                      {{"XDG_CONFIG_HOME=" + dir.path(), "XDG_DATA_HOME=" + dir.path()}, {}, {}});
  }

  static QJsonObject ticketFor(const QStringList &more) {
    const ProgramRun done = runProgram(QStringList{"--headless", "--inspect", "--ppd",
                                                   ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd"} +
                                       more);
    EXPECT_EQ(done.status, 0) << done.errors.constData();
    return done.json().value("ticket").toObject();
  }

  QByteArray printed() const {
    QFile out(dir.filePath("out.ps"));
    EXPECT_TRUE(out.open(QIODevice::ReadOnly));
    return out.readAll();
  }

  void expectUnstapled(const ProgramRun &done) const {
    ASSERT_EQ(done.status, 0) << done.errors.constData();
    EXPECT_EQ(done.errors.count("Stapling was not set to One staple, front: it can't be combined "
                                "with Finisher: Not installed\n"),
              1);
    const QJsonObject state = done.json();
    EXPECT_EQ(state.value("marks").toObject().value("OVKStapling"), QJsonValue("None"));
    EXPECT_FALSE(state.value("ticket").toObject().contains("OVKStapling"));
    EXPECT_EQ(state.value("conflicts").toArray(), QJsonArray());
    EXPECT_EQ(state.value("summary").toObject().value("Stapling"), QJsonValue("Off"));
    EXPECT_EQ(state.value("selections").toObject().value("stapling"), QJsonValue("None"));
    EXPECT_FALSE(printed().contains("/Staple 3"));
  }

  const QStringList noFinisher{"--mark", "OVKOptionFinisher=False"};
  QTemporaryDir dir;
};

TEST_F(ProgramTicket, StaplesWhereItCan) {
  const ProgramRun done = run({"--ticket", file("t.json", R"({"OVKStapling": "Front"})")});
  ASSERT_EQ(done.status, 0) << done.errors.constData();
  EXPECT_TRUE(printed().contains("/Staple 3"));
}

TEST_F(ProgramTicket, StaplesNothingWhereItSaysSo) {
  expectUnstapled(
      run(noFinisher + QStringList{"--ticket", file("t.json", R"({"OVKStapling": "Front"})")}));
}

TEST_F(ProgramTicket, StaplesNothingForAPresetEither) {
  ASSERT_EQ(run({"--do", "staplingPopup=Front", "--save-preset", "stapled"}).status, 0);
  expectUnstapled(run(noFinisher + QStringList{"--preset", "stapled"}));
}

TEST_F(ProgramTicket, StaplesNothingForAnOptionEither) {
  expectUnstapled(run(noFinisher + QStringList{"-o", "OVKStapling=Front"}));
}

// A panel takes any other word for a flag that is on.
TEST_F(ProgramTicket, SpellsTheBookletsFlagsAsPanelsDo) {
  const QStringList keys{"OVKEnableBooklet", "OVKRightToLeft", "OVKPrintPageBorders"};
  for (const QString &key : keys) {
    for (const char *off : {"%1=false", "%1=Off", "%1=no", "%1=0", "no%1"}) {
      const QString option = QString(off).arg(key);
      EXPECT_EQ(ticketFor({"-o", option}).value(key), QJsonValue("False")) << option.toStdString();
    }
    for (const char *on : {"%1", "%1=true", "%1=yes", "%1=1"}) {
      const QString option = QString(on).arg(key);
      EXPECT_EQ(ticketFor({"-o", option}).value(key), QJsonValue("True")) << option.toStdString();
    }
  }
}

TEST_F(ProgramTicket, HasTheBookletsKeysOnceInWhateverLettersTheyWereAskedFor) {
  const QJsonObject usual = ticketFor({"-o", "OVKEnableBooklet=true", "-o", "OVKGutter=36"});
  EXPECT_EQ(usual.value("OVKEnableBooklet"), QJsonValue("True"));
  EXPECT_EQ(usual.value("OVKGutter"), QJsonValue("36"));
  EXPECT_EQ(ticketFor({"-o", "ovkenablebooklet=true", "-o", "OVKGUTTER=36"}), usual);
}

}  // namespace
}  // namespace orvek::test
