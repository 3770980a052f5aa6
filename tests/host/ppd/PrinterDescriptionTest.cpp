// SPDX-License-Identifier: Apache-2.0
// Opening PPD files, sound and unsound.

#include "host/ppd/PrinterDescription.h"

#include <cups/language.h>
#include <gmock/gmock.h>

#include <QFile>
#include <QTemporaryDir>
#include <clocale>
#include <string>
#include <thread>

#include "tests/host/ppd/TestPrinters.h"

namespace orvek::test {
namespace {

Failure failureOf(const QString &path) {
  const auto printer = PrinterDescription::open(path);
  EXPECT_FALSE(printer.ok());
  return printer.ok() ? Failure{} : printer.failure();
}

TEST(PrinterDescription, KnowsItsModelAndFile) {
  const auto printer = openTestPpd(QStringLiteral("finisher.ppd"));
  EXPECT_EQ(printer->modelName(), "Orvek Test 6180, 1.0");
  EXPECT_EQ(printer->path(), testPpd(QStringLiteral("finisher.ppd")));
}

TEST(PrinterDescription, TellsAFileThatCannotBeReadFromOneThatIsNoPpd) {
  EXPECT_EQ(failureOf(QStringLiteral("/nowhere/p.ppd")).kind, FailureKind::Io);
  EXPECT_EQ(failureOf(QStringLiteral("/")).kind, FailureKind::Io);
  EXPECT_EQ(failureOf(QStringLiteral("/dev/null")).kind, FailureKind::Invalid);
  EXPECT_EQ(failureOf(QString()).kind, FailureKind::Io);
}

// libcups' language is settled once a thread.
QString textOfTray(const QByteArray &language, const QByteArray &prefix) {
  QTemporaryDir dir;
  QFile original(testPpd(QStringLiteral("finisher.ppd")));
  QFile translated(dir.filePath(QStringLiteral("translated.ppd")));
  EXPECT_TRUE(original.open(QIODevice::ReadOnly) && translated.open(QIODevice::WriteOnly));
  translated.write(original.readAll() + "*" + prefix + ".Translation OutputBin/Translated: \"\"\n");
  translated.close();
  const std::string locale = std::setlocale(LC_ALL, nullptr);
  std::setlocale(LC_ALL, "C");
  qunsetenv("LC_ALL");
  qputenv("LANG", language);
  QString text;
  std::thread([&] {
    const auto printer = PrinterDescription::open(translated.fileName()).take();
    text = printer->option("OutputBin").text();
  }).join();
  qputenv("LANG", "C.UTF-8");
  std::setlocale(LC_ALL, locale.c_str());
  return text;
}

TEST(PrinterDescription, HasTheTextsOfTheUsersLanguageUnderEveryNameItGoesBy) {
  EXPECT_EQ(textOfTray("de_DE.UTF-8", "de"), "Translated");
  EXPECT_EQ(textOfTray("de_CH.UTF-8", "de_CH"), "Translated");
  EXPECT_EQ(textOfTray("nb_NO.UTF-8", "no"), "Translated");
  EXPECT_EQ(textOfTray("en_US.UTF-8", "en"), "Translated");
  EXPECT_NE(textOfTray("de_DE.UTF-8", "fr"), "Translated");
}

TEST(PrinterDescription, NamesTheLineThatIsWrong) {
  QTemporaryDir dir;
  const QString path = dir.filePath(QStringLiteral("broken.ppd"));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("*PPD-Adobe: \"4.3\"\n*OpenGroup: A\n*OpenGroup: B\n");
  file.close();
  const Failure failure = failureOf(path);
  EXPECT_EQ(failure.kind, FailureKind::Invalid);
  EXPECT_EQ(failure.what, path + ":3");
}

}  // namespace
}  // namespace orvek::test
