// SPDX-License-Identifier: Apache-2.0
// The translations as files: every text of the program and no other, complete, and with every value
// in its place.

#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "tests/host/dialog/Catalogue.h"
#include "tests/host/dialog/Languages.h"
#include "tests/support/Printers.h"

using namespace orvek::test;
using namespace Qt::Literals::StringLiterals;

namespace {

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
  if (!QFile::copy(catalogueOf(language), copy)) return {};
  const QStringList options{QStringLiteral("-silent"),    QStringLiteral("-no-obsolete"),
                            QStringLiteral("-locations"), QStringLiteral("none"),
                            QStringLiteral("-I"),         QStringLiteral(ORVEK_SOURCE_DIR)};
  const int status = QProcess::execute(QStringLiteral(ORVEK_LUPDATE),
                                       options + programSources() + QStringList{"-ts", copy});
  EXPECT_EQ(status, 0);
  return messagesIn(copy);
}

QStringList placesIn(const QString &text) {
  static const QRegularExpression place(QStringLiteral("%[\\dn]"));
  QStringList found;
  for (auto match = place.globalMatch(text); match.hasNext();) found << match.next().captured();
  found.sort();
  return found;
}

class Translations : public ::testing::TestWithParam<const char *> {
 protected:
  QList<Message> messages = messagesIn(catalogueOf(QLatin1String(GetParam())));
};

TEST_P(Translations, AreComplete) {
  ASSERT_FALSE(messages.isEmpty());
  for (const Message &message : messages) {
    EXPECT_TRUE(message.isFinished) << message.source.toStdString();
    EXPECT_FALSE(message.translations.contains(QString())) << message.source.toStdString();
  }
}

TEST_P(Translations, HaveEveryTextOfTheProgramAndNoOther) {
  EXPECT_EQ(sourcesOf(messages), sourcesOf(messagesReadAgain(QLatin1String(GetParam()))));
}

// Forms for one and for two may say the number as a word.
TEST_P(Translations, HaveTheSameValuesInThem) {
  for (const Message &message : messages) {
    for (QString translation : message.translations) {
      if (message.isCounted && !translation.contains(u"%n")) translation += u"%n";
      EXPECT_EQ(placesIn(translation), placesIn(message.source)) << message.source.toStdString();
    }
  }
}

TEST_P(Translations, HaveEveryFormThatTheLanguageCountsWith) {
  const QHash<QString, int> forms{{u"ja"_s, 1}, {u"zh_CN"_s, 1}, {u"ko"_s, 1}, {u"ar"_s, 6}};
  for (const Message &message : messages) {
    const int wanted = message.isCounted ? forms.value(QLatin1String(GetParam()), 2) : 1;
    EXPECT_EQ(message.translations.size(), wanted) << message.source.toStdString();
  }
}

TEST_P(Translations, KeepAKeyWhereTheTextHasOne) {
  for (const Message &message : messages) {
    for (const QString &translation : message.translations) {
      EXPECT_EQ(translation.count(u'&'), message.source.count(u'&'))
          << message.source.toStdString();
    }
  }
}

TEST(FrenchTranslations, KeepTheirSignsOnTheLineOfTheirWords) {
  static const QRegularExpression loose(QStringLiteral("[ ][:;?!»]|«[ ]"));
  int signs = 0;
  for (const Message &message : messagesIn(catalogueOf(QStringLiteral("fr")))) {
    for (const QString &text : message.translations) {
      EXPECT_FALSE(loose.match(text).hasMatch()) << text.toStdString();
      signs += static_cast<int>(text.count(QChar::Nbsp));
    }
  }
  EXPECT_GT(signs, 0);
}

/// The program as it starts for a user of this locale.
class SystemLanguage : public ::testing::Test {
 protected:
  static void startIn(const char *locale) {
    QLocale::setDefault(QLocale(QLatin1String(locale)));
    orvek::installTranslations();
  }
  void TearDown() override {
    qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator *>());
    QLocale::setDefault(QLocale::c());
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  }

  static QString spoken() {
    return QCoreApplication::translate("orvek::StandardNames", "Two-sided");
  }
};

TEST_F(SystemLanguage, IsSpokenInEveryCountryOfIt) {
  startIn("pt_BR");
  EXPECT_EQ(spoken(), u"Frente e verso"_s);
  startIn("zh_CN");
  EXPECT_EQ(spoken(), u"双面"_s);
  startIn("es_MX");
  EXPECT_EQ(spoken(), u"Doble cara"_s);
  EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::LeftToRight);
}

TEST_F(SystemLanguage, IsNotTakenForAnotherOneOfTheSameName) {
  startIn("zh_TW");
  EXPECT_EQ(spoken(), u"Two-sided"_s);
}

TEST_F(SystemLanguage, TurnsTheWindowAroundWhereItIsReadFromTheRight) {
  startIn("ar_EG");
  EXPECT_EQ(QGuiApplication::layoutDirection(), Qt::RightToLeft);
}

INSTANTIATE_TEST_SUITE_P(Each, Translations, otherLanguages);

}  // namespace
