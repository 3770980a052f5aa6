// SPDX-License-Identifier: Apache-2.0
// The translations as files: every text of the program and no other, complete, and with every value
// in its place.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QXmlStreamReader>

#include "tests/support/Printers.h"

namespace {

struct Message {
  QString source;
  QString translation;
  bool isFinished = true;
  QString context;
};

QString fileOf(const QString &language) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/host/translations/orvek-print_%1.ts").arg(language);
}

QList<Message> messagesIn(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader reader(&file);
  QList<Message> messages;
  QString context;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"name") context = reader.readElementText();
    if (reader.name() == u"source") messages.append({reader.readElementText(), {}, true, context});
    if (reader.name() == u"translation") {
      messages.last().isFinished = !reader.attributes().hasAttribute(QStringLiteral("type"));
      messages.last().translation = reader.readElementText();
    }
  }
  return messages;
}

QStringList sourcesOf(const QList<Message> &messages) {
  QStringList sources;
  for (const Message &message : messages) sources << message.context + u": " + message.source;
  sources.sort();
  return sources;
}

// Everything that may speak to users.
QStringList programSources() {
  QStringList sources;
  QDirIterator files(QStringLiteral(ORVEK_SOURCE_DIR "/host"),
                     {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (files.hasNext()) sources << files.next();
  return sources;
}

// What Qt's tool makes of a translation when it reads the sources again.
QList<Message> messagesReadAgain(const QString &language) {
  const QTemporaryDir folder;
  const QString copy = folder.filePath(QStringLiteral("again.ts"));
  if (!QFile::copy(fileOf(language), copy)) return {};
  const QStringList options{QStringLiteral("-silent"),    QStringLiteral("-no-obsolete"),
                            QStringLiteral("-locations"), QStringLiteral("none"),
                            QStringLiteral("-I"),         QStringLiteral(ORVEK_SOURCE_DIR)};
  const int status = QProcess::execute(QStringLiteral(ORVEK_LUPDATE),
                                       options + programSources() + QStringList{"-ts", copy});
  EXPECT_EQ(status, 0);
  return messagesIn(copy);
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
  QList<Message> messages = messagesIn(fileOf(QLatin1String(GetParam())));
};

TEST_P(Translations, AreComplete) {
  ASSERT_FALSE(messages.isEmpty());
  for (const Message &message : messages) {
    EXPECT_TRUE(message.isFinished && !message.translation.isEmpty())
        << message.source.toStdString();
  }
}

TEST_P(Translations, HaveEveryTextOfTheProgramAndNoOther) {
  EXPECT_EQ(sourcesOf(messages), sourcesOf(messagesReadAgain(QLatin1String(GetParam()))));
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
