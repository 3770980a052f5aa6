// SPDX-License-Identifier: Apache-2.0
// Which of a PPD's texts are in the user's language: libcups leaves the others as the PPD's own
// language has them and does not tell which.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

struct ppd_file_s;

namespace orvek {

/// Borrows the PPD, which must outlive it. To be used on the PPD's thread; nothing fails.
class LocalTexts {
 public:
  /// Of no PPD: has none.
  LocalTexts() = default;

  /// For the user's language as libcups has it ("de", "pt_BR").
  LocalTexts(ppd_file_s *ppd, const QByteArray &language);

  /// Whether the option's own text, as libcups gives it now, is one in the user's language.
  bool hasOption(const char *option) const;
  bool hasChoice(const char *option, const char *choice) const;

  /// Whether the user's language is English.
  bool isEnglish() const { return m_isEnglish; }

 private:
  bool has(const char *section, const char *keyword) const;

  ppd_file_s *m_ppd = nullptr;
  /// What lines of the language may begin with.
  QByteArrayList m_names;
  bool m_isEnglish = true;
  /// The PPD is written in the user's language.
  bool m_isOwn = false;
};

}  // namespace orvek
