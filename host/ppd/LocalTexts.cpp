// SPDX-License-Identifier: Apache-2.0
// Looks for the lines that libcups takes translations from.

#include "host/ppd/LocalTexts.h"

#include <QHash>

#include "platform/printing/PPD.h"

namespace orvek {
namespace {

constexpr int languageLetters = 2;

// How "*LanguageVersion" names the languages that the program speaks itself.
QByteArray lettersOf(const QByteArray &languageVersion) {
  static const QHash<QByteArray, QByteArray> letters{
      {"english", "en"}, {"german", "de"},     {"french", "fr"},   {"spanish", "es"},
      {"italian", "it"}, {"portuguese", "pt"}, {"japanese", "ja"}, {"chinese", "zh"},
      {"korean", "ko"},  {"arabic", "ar"}};
  return letters.value(languageVersion.toLower().split('-').first());
}

// A PPD that names no language is written in English by custom.
QByteArray ownLanguage(const ppd_file_t *ppd) {
  return ppd->lang_encoding == nullptr && ppd->lang_version == nullptr
             ? QByteArray("en")
             : lettersOf(QByteArray(ppd->lang_version));
}

}  // namespace

LocalTexts::LocalTexts(ppd_file_s *ppd, const QByteArray &language) : m_ppd(ppd) {
  const QByteArray letters =
      language.size() < languageLetters ? QByteArray("en") : language.left(languageLetters);
  m_names << language << letters;
  if (letters == "ja") m_names << "jp";
  if (letters == "nb" || letters == "no") {
    m_names.append({"nb", "no"});
  }
  m_isEnglish = letters == "en";
  m_isOwn = ppd != nullptr && ownLanguage(ppd) == letters;
}

bool LocalTexts::has(const char *section, const char *keyword) const {
  for (const QByteArray &name : m_names) {
    const QByteArray line = name + '.' + section;
    if (ppdFindAttr(m_ppd, line.constData(), keyword) != nullptr) return true;
  }
  return false;
}

bool LocalTexts::hasOption(const char *option) const {
  return m_isOwn || has("Translation", option);
}

bool LocalTexts::hasChoice(const char *option, const char *choice) const {
  return m_isOwn || has(option, choice);
}

}  // namespace orvek
