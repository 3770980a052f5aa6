// SPDX-License-Identifier: Apache-2.0
// The preview as scripts read it.

#include "host/preview/PreviewInspection.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonArray>
#include <QTemporaryDir>

#include "host/session/ActionScope.h"
#include "host/session/PrintSession.h"
#include "tests/support/NumberedPages.h"

namespace orvek {
namespace {

const QString sample = QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.pdf");

std::unique_ptr<PrintSession> familySession() {
  SessionSetup setup;
  setup.printer =
      PrinterDescription::open(QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd")).take();
  return PrintSession::begin(setup).take();
}

QJsonArray numbers(std::initializer_list<double> values) {
  QJsonArray array;
  for (const double value : values) array.append(value);
  return array;
}

TEST(PreviewInspection, TellsABookletSideBySide) {
  const auto session = familySession();
  session->pick(QStringLiteral("OVKFolding"), QStringLiteral("Saddle"));
  {
    const ActionScope action(*session);
    session->setTicketValue(QStringLiteral("OVKEnableBooklet"), QStringLiteral("True"));
  }
  const QJsonObject preview = inspectPreview(*session, {sample}).json;
  EXPECT_EQ(preview["sheets"].toInt(), 2);
  EXPECT_EQ(preview["copies"].toInt(), 1);
  ASSERT_EQ(preview["sides"].toArray().size(), 4);
  const QJsonObject front = preview["sides"].toArray()[0].toObject();
  EXPECT_EQ(front["sheet"].toInt(), 1);
  EXPECT_EQ(front["side"].toString(), "front");
  EXPECT_EQ(front["size"].toArray(), numbers({842, 595}));
  EXPECT_EQ(front["fold"].toString(), "Saddle");
  EXPECT_EQ(front["marks"].toArray().size(), 2);
  EXPECT_EQ(front["marks"].toArray()[0].toObject()["kind"].toString(), "staple");
  const QJsonObject right = front["pages"].toArray()[1].toObject();
  EXPECT_EQ(right["page"].toInt(), 1);
  EXPECT_EQ(right["turn"].toInt(), 0);
  EXPECT_EQ(right["frame"].toArray(), numbers({433, 8.11, 409, 578.79}));
  EXPECT_EQ(preview["sides"].toArray()[3].toObject()["side"].toString(), "back");
}

TEST(PreviewInspection, SaysCopiesOnceAndNullForNoFold) {
  const auto session = familySession();
  JobSettings settings;
  settings.copies = 3;
  settings.pageRanges = QStringLiteral("2");
  session->job().setSettings(settings);
  const QJsonObject preview = inspectPreview(*session, {sample}).json;
  EXPECT_EQ(preview["copies"].toInt(), 3);
  ASSERT_EQ(preview["sides"].toArray().size(), 1);
  EXPECT_TRUE(preview["sides"].toArray()[0].toObject()["fold"].isNull());
}

// Every frame lies on its side; those of a booklet on their own half of it.
void expectVisible(const QJsonObject &preview, bool isBooklet) {
  for (const auto listed : preview["sides"].toArray()) {
    const QJsonObject side = listed.toObject();
    const double width = side["size"].toArray()[0].toDouble();
    const double height = side["size"].toArray()[1].toDouble();
    for (const auto page : side["pages"].toArray()) {
      const QJsonArray frame = page.toObject()["frame"].toArray();
      const double left = frame[0].toDouble();
      const double right = left + frame[2].toDouble();
      const double bottom = frame[1].toDouble() + frame[3].toDouble();
      EXPECT_TRUE(frame[2].toDouble() >= 0 && frame[3].toDouble() >= 0);
      EXPECT_TRUE(left >= 0 && frame[1].toDouble() >= 0 && right <= width && bottom <= height);
      const bool isOnOneHalf = right <= width / 2 || left >= width / 2;
      EXPECT_TRUE(isOnOneHalf || !isBooklet) << left << ' ' << right;
    }
  }
}

TEST(PreviewInspection, GivesOfEachPageWhatIsToBeSeen) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("a.pdf"));
  QList<test::NumberedPage> pages(16, {QSizeF(900, 1300), 0, {}, {}});
  pages[1].size = QSizeF(0.01, 900);
  pages[2].size = QSizeF(0.001, 0.001);
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(test::numberedPdf(pages));
  file.close();
  for (const char *scaling : {"none", "fill", "fit", "auto"}) {
    const auto session = familySession();
    const ActionScope action(*session);
    session->setTicketValue(QStringLiteral("print-scaling"), QString::fromLatin1(scaling));
    expectVisible(inspectPreview(*session, {path}).json, false);
    session->setTicketValue(QStringLiteral("OVKEnableBooklet"), QStringLiteral("True"));
    session->setTicketValue(QStringLiteral("OVKCreep"), 36);
    expectVisible(inspectPreview(*session, {path}).json, true);
  }
}

TEST(PreviewInspection, HasNoSidesWhereTheRangesLieBeyondTheDocument) {
  const auto session = familySession();
  JobSettings settings;
  settings.pageRanges = QStringLiteral("9-12");
  session->job().setSettings(settings);
  EXPECT_EQ(inspectPreview(*session, {sample}).json["sheets"].toInt(), 0);
  settings.pageRanges = QStringLiteral("8-12");
  session->job().setSettings(settings);
  EXPECT_EQ(inspectPreview(*session, {sample}).json["sheets"].toInt(), 1);
}

TEST(PreviewInspection, CountsTheSheetsOfSeveralDocumentsOn) {
  const auto session = familySession();
  session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble"));
  const QJsonObject preview = inspectPreview(*session, {sample, sample}).json;
  EXPECT_EQ(preview["sheets"].toInt(), 8);
  EXPECT_EQ(preview["sides"].toArray()[8].toObject()["sheet"].toInt(), 5);
}

TEST(PreviewInspection, HasNoSidesOfADocumentThatCannotBeRead) {
  const auto session = familySession();
  const InspectedPreview preview = inspectPreview(*session, {QStringLiteral("/no/such/file")});
  EXPECT_EQ(preview.json["sheets"].toInt(), 0);
  EXPECT_TRUE(preview.json["sides"].toArray().isEmpty());
  ASSERT_TRUE(preview.unread);
  EXPECT_EQ(preview.unread->line(), "/no/such/file: No such file or directory");
}

}  // namespace
}  // namespace orvek
