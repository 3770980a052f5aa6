// SPDX-License-Identifier: Apache-2.0
// The information dictionary and the stapling pictures that its two tables name.

#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "tests/printers/PrinterFamily.h"
#include "tests/resources/BundleFolder.h"

namespace orvek::test {
namespace {

constexpr QSize pictureSize(104, 96);

const QStringList tables = {QStringLiteral("OVStaplingPICTs"),
                            QStringLiteral("OVStaplingPICTsQuince")};

QJsonObject table(const QString &name) {
  return bundleJson(QStringLiteral("Info.json")).value(name).toObject();
}

// How a panel looks up the picture of a stapling choice.
QString imageKey(const std::string &keyword) {
  const QString text = QString::fromStdString(keyword);
  return text.endsWith(QStringLiteral("Flip")) ? text.chopped(4) + QStringLiteral(", flipped")
                                               : text;
}

QImage picture(const QString &fileName, const QString &density = {}) {
  return QImage(bundleFile(fileName.chopped(4) + density + QStringLiteral(".png")));
}

TEST(InformationDictionary, NamesTheCodeAndItsFactory) {
  const QJsonObject info = bundleJson(QStringLiteral("Info.json"));
  EXPECT_EQ(info.value(QStringLiteral("PrincipalClass")).toString(), "OrvekFinishingPlugin");
  EXPECT_EQ(info.value(QStringLiteral("Executable")).toString(), "libOrvekFinishing.so");
  EXPECT_EQ(info.value(QStringLiteral("PluginInterface")).toInt(), 1);
  for (const char *key : {"Identifier", "DisplayName", "Version"}) {
    EXPECT_FALSE(info.value(QLatin1String(key)).toString().isEmpty()) << key;
  }
}

TEST(PictureTables, HoldAPictureForEveryStaplingChoiceOfThePrinters) {
  for (const std::string &model : models) {
    const PPD ppd = openPrinter(model);
    ASSERT_NE(ppd, nullptr);
    for (const std::string &keyword : choiceKeywords(ppd.get(), "OVKStapling")) {
      for (const QString &name : tables) {
        EXPECT_TRUE(table(name).contains(imageKey(keyword))) << name.toStdString() << keyword;
      }
    }
  }
}

TEST(PictureTables, HoldAPictureForASaddleFoldAndForNothingAtAll) {
  for (const QString &name : tables) {
    EXPECT_TRUE(table(name).contains(QStringLiteral("Saddle")));
    EXPECT_TRUE(table(name).contains(QStringLiteral("None")));
  }
  EXPECT_EQ(table(tables[0]).value(QStringLiteral("None")).toString(), "Stapling_None.png");
}

TEST(PictureTables, HaveTheSameKeysAndDifferentPictures) {
  const QJsonObject usual = table(tables[0]);
  const QJsonObject quince = table(tables[1]);
  EXPECT_EQ(usual.keys(), quince.keys());
  for (const QString &key : usual.keys()) {
    const QString one = usual.value(key).toString();
    const QString other = quince.value(key).toString();
    EXPECT_NE(one, other) << key.toStdString();
    EXPECT_NE(picture(one), picture(other)) << key.toStdString();
  }
}

TEST(PictureTables, NameADifferentPictureForEveryKey) {
  for (const QString &name : tables) {
    const QJsonObject pictures = table(name);
    for (const QString &key : pictures.keys()) {
      for (const QString &other : pictures.keys()) {
        if (key >= other) continue;
        EXPECT_NE(picture(pictures.value(key).toString()),
                  picture(pictures.value(other).toString()))
            << key.toStdString() << " and " << other.toStdString();
      }
    }
  }
}

TEST(Pictures, AreThereInBothDensities) {
  for (const QString &name : tables) {
    for (const QJsonValue file : table(name)) {
      const QString fileName = file.toString();
      ASSERT_TRUE(fileName.endsWith(QStringLiteral(".png")));
      EXPECT_EQ(picture(fileName).size(), pictureSize) << fileName.toStdString();
      EXPECT_EQ(picture(fileName, QStringLiteral("@2x")).size(), 2 * pictureSize)
          << fileName.toStdString();
    }
  }
}

TEST(Pictures, LeaveTheirBackgroundToTheDialog) {
  for (const QString &name : tables) {
    for (const QJsonValue file : table(name)) {
      const QImage image = picture(file.toString());
      EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << file.toString().toStdString();
      EXPECT_EQ(qAlpha(image.pixel(image.width() / 2, image.height() / 2)), 255);
    }
  }
}

TEST(Pictures, AreWhatTheirScriptDraws) {
  const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
  if (python.isEmpty()) GTEST_SKIP() << "python3 is not installed";
  const QTemporaryDir folder;
  const QDir sources(QStringLiteral(ORVEK_SOURCE_DIR "/resources/pictures"));
  const QString script = folder.filePath(QStringLiteral("draw.py"));
  ASSERT_TRUE(QFile::copy(sources.filePath(QStringLiteral("draw.py")), script));
  ASSERT_EQ(QProcess::execute(python, {QStringLiteral("-B"), script}), 0);
  const QStringList drawings = sources.entryList({QStringLiteral("*.svg")});
  EXPECT_EQ(drawings, QDir(folder.path()).entryList({QStringLiteral("*.svg")}));
  for (const QString &drawing : drawings) {
    QFile committed(sources.filePath(drawing));
    QFile drawn(folder.filePath(drawing));
    ASSERT_TRUE(committed.open(QIODevice::ReadOnly) && drawn.open(QIODevice::ReadOnly));
    EXPECT_EQ(committed.readAll(), drawn.readAll())
        << drawing.toStdString() << ": run resources/pictures/draw.py again";
  }
}

}  // namespace
}  // namespace orvek::test
