// SPDX-License-Identifier: Apache-2.0
// The translations as files: complete, and with every value in its place.

#include <gtest/gtest.h>

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>

#include "tests/support/Printers.h"

namespace {

struct Message {
  QString source;
  QString translation;
  bool isFinished = true;
};

QList<Message> messagesOf(const QString &language) {
  QFile file(QStringLiteral(ORVEK_SOURCE_DIR "/host/translations/orvek-print_%1.ts").arg(language));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader reader(&file);
  QList<Message> messages;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"source") messages.append({reader.readElementText(), {}, true});
    if (reader.name() == u"translation") {
      messages.last().isFinished = !reader.attributes().hasAttribute(QStringLiteral("type"));
      messages.last().translation = reader.readElementText();
    }
  }
  return messages;
}

QStringList placesIn(const QString &text) {
  static const QRegularExpression place(QStringLiteral("%\\d"));
  QStringList found;
  for (auto match = place.globalMatch(text); match.hasNext();) found << match.next().captured();
  found.sort();
  return found;
}

class Translations : public ::testing::TestWithParam<const char *> {
 protected:
  QList<Message> messages = messagesOf(QLatin1String(GetParam()));
};

TEST_P(Translations, AreComplete) {
  ASSERT_FALSE(messages.isEmpty());
  for (const Message &message : messages) {
    EXPECT_TRUE(message.isFinished && !message.translation.isEmpty())
        << message.source.toStdString();
  }
}

TEST_P(Translations, HaveTheSameValuesInThem) {
  for (const Message &message : messages) {
    EXPECT_EQ(placesIn(message.translation), placesIn(message.source))
        << message.source.toStdString();
  }
}

TEST_P(Translations, KeepAKeyWhereTheTextHasOne) {
  for (const Message &message : messages) {
    EXPECT_EQ(message.translation.count(u'&'), message.source.count(u'&'))
        << message.source.toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Each, Translations, ::testing::Values("de", "fr", "ja"));

}  // namespace
