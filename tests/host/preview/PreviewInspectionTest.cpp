// SPDX-License-Identifier: Apache-2.0
// The preview as scripts read it.

#include "host/preview/PreviewInspection.h"

#include <gtest/gtest.h>

#include <QJsonArray>

#include "host/session/ActionScope.h"
#include "host/session/PrintSession.h"

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
    session->ticket().setValue(QStringLiteral("OVKEnableBooklet"), QStringLiteral("True"));
  }
  const QJsonObject preview = inspectPreview(*session, {sample});
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
  const QJsonObject preview = inspectPreview(*session, {sample});
  EXPECT_EQ(preview["copies"].toInt(), 3);
  ASSERT_EQ(preview["sides"].toArray().size(), 1);
  EXPECT_TRUE(preview["sides"].toArray()[0].toObject()["fold"].isNull());
}

TEST(PreviewInspection, CountsTheSheetsOfSeveralDocumentsOn) {
  const auto session = familySession();
  session->pick(QStringLiteral("Duplex"), QStringLiteral("DuplexNoTumble"));
  const QJsonObject preview = inspectPreview(*session, {sample, sample});
  EXPECT_EQ(preview["sheets"].toInt(), 8);
  EXPECT_EQ(preview["sides"].toArray()[8].toObject()["sheet"].toInt(), 5);
}

TEST(PreviewInspection, HasNoSidesOfADocumentThatCannotBeRead) {
  const auto session = familySession();
  const QJsonObject preview = inspectPreview(*session, {QStringLiteral("/no/such/file")});
  EXPECT_EQ(preview["sheets"].toInt(), 0);
  EXPECT_TRUE(preview["sides"].toArray().isEmpty());
}

}  // namespace
}  // namespace orvek
