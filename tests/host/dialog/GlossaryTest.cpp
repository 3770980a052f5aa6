// SPDX-License-Identifier: Apache-2.0
// One word for one thing, in the catalogue of the window and in the tables of the panel.

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

#include "tests/host/dialog/Catalogue.h"
#include "tests/host/dialog/Languages.h"
#include "tests/support/Printers.h"

using namespace orvek::test;

namespace {

struct Term {
  /// Finds it in English texts.
  QRegularExpression english;
  /// One of them must stand in the translation.
  QStringList stems;
};

QList<Term> glossaryOf(const QString &language) {
  QFile file(QStringLiteral(ORVEK_SOURCE_DIR "/host/translations/glossary/%1.txt").arg(language));
  if (!file.open(QIODevice::ReadOnly)) return {};
  QList<Term> terms;
  const QString all = QString::fromUtf8(file.readAll());
  for (const QString &line : all.split(u'\n', Qt::SkipEmptyParts)) {
    if (line.startsWith(u'#')) continue;
    const QString english = QRegularExpression::escape(line.section(u'=', 0, 0).trimmed());
    Term term{QRegularExpression(QStringLiteral("\\b%1s?\\b").arg(english),
                                 QRegularExpression::CaseInsensitiveOption),
              {}};
    for (const QString &stem : line.section(u'=', 1).split(u';')) term.stems << stem.trimmed();
    terms << term;
  }
  return terms;
}

QJsonObject panelTexts(QString language) {
  language.replace(u'_', u'-');
  QFile file(QStringLiteral(ORVEK_SOURCE_DIR "/resources/%1.lproj/Localizable.json").arg(language));
  return file.open(QIODevice::ReadOnly) ? QJsonDocument::fromJson(file.readAll()).object()
                                        : QJsonObject();
}

QList<Message> allTexts(const QString &language) {
  QList<Message> texts = messagesIn(catalogueOf(language));
  const QJsonObject english = panelTexts(QStringLiteral("en"));
  const QJsonObject translated = panelTexts(language);
  for (const QString &key : english.keys()) {
    Message text;
    text.source = english.value(key).toString();
    text.translations << translated.value(key).toString();
    texts << text;
  }
  return texts;
}

// Commands in quotation marks are no words, and a letter's mark may stand inside one.
QString words(QString text) {
  static const QRegularExpression quoted(QStringLiteral("\"[^\"]*\""));
  return text.remove(quoted).remove(u'&');
}

bool speaksOf(const QString &text, const Term &term) {
  return std::any_of(term.stems.begin(), term.stems.end(), [&](const QString &stem) {
    return words(text).contains(stem, Qt::CaseInsensitive);
  });
}

class Glossary : public ::testing::TestWithParam<const char *> {};

TEST_P(Glossary, IsWhatAllTextsKeepTo) {
  const QString language = QLatin1String(GetParam());
  const QList<Term> terms = glossaryOf(language);
  ASSERT_GE(terms.size(), 20);
  for (const Message &message : allTexts(language)) {
    for (const Term &term : terms) {
      if (!words(message.source).contains(term.english)) continue;
      for (const QString &translation : message.translations) {
        EXPECT_TRUE(speaksOf(translation, term))
            << message.source.toStdString() << ": " << translation.toStdString() << " lacks "
            << term.stems.join(QStringLiteral(" or ")).toStdString();
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Each, Glossary, otherLanguages);

}  // namespace
