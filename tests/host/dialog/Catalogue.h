// SPDX-License-Identifier: Apache-2.0
// The catalogues of translations, read as files.
#pragma once

#include <QFile>
#include <QList>
#include <QStringList>
#include <QXmlStreamReader>

namespace orvek::test {

/// One text of a catalogue. Plain data.
struct Message {
  QString source;
  /// One, or for a text about a number one of each of the language's forms.
  QStringList translations;
  bool isFinished = true;
  bool isCounted = false;
  QString context;
};

/// The catalogue of a language.
inline QString catalogueOf(const QString &language) {
  return QStringLiteral(ORVEK_SOURCE_DIR "/host/translations/orvek-print_%1.ts").arg(language);
}

// At the start of one "translation".
inline QStringList translationsAt(QXmlStreamReader &reader, bool isCounted) {
  if (!isCounted) return {reader.readElementText()};
  QStringList forms;
  while (reader.readNextStartElement()) forms << reader.readElementText();
  return forms;
}

/// Empty where there is no such file.
inline QList<Message> messagesIn(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader reader(&file);
  QList<Message> messages;
  QString context;
  bool isCounted = false;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == u"name") context = reader.readElementText();
    if (reader.name() == u"message") {
      isCounted = reader.attributes().hasAttribute(QStringLiteral("numerus"));
    }
    if (reader.name() == u"source") {
      messages.append({reader.readElementText(), {}, true, isCounted, context});
    }
    if (reader.name() == u"translation") {
      messages.last().isFinished = !reader.attributes().hasAttribute(QStringLiteral("type"));
      messages.last().translations = translationsAt(reader, isCounted);
    }
  }
  return messages;
}

}  // namespace orvek::test
