// SPDX-License-Identifier: Apache-2.0
// The languages that the program speaks beside English.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QString>
#include <QTranslator>

#include "host/translations/Translations.h"

namespace orvek::test {

inline const auto otherLanguages =
    ::testing::Values("ar", "de", "es", "fr", "it", "ja", "ko", "pt", "zh_CN");
inline const auto allLanguages =
    ::testing::Values("en", "ar", "de", "es", "fr", "it", "ja", "ko", "pt", "zh_CN");

/// The program in a language from now on, until this object goes. English is what it speaks by
/// itself.
class SpokenLanguage {
 public:
  explicit SpokenLanguage(const char *language) {
    installTranslations();
    if (qstrcmp(language, "en") == 0) return;
    const QString file =
        QStringLiteral(":/translations/orvek-print_%1.qm").arg(QLatin1String(language));
    EXPECT_TRUE(m_translator.load(file)) << language;
    QCoreApplication::installTranslator(&m_translator);
  }

 private:
  QTranslator m_translator;
};

}  // namespace orvek::test
