// SPDX-License-Identifier: Apache-2.0
// English texts that can be said again in another language. May be included anywhere.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstring>
#include <utility>
#include <vector>

namespace orvek {

/// An English text that remembers how it was made: a sentence, and the parts in its places %1 to
/// %9. A command line shows the text as it is; a window has the sentence translated and puts the
/// parts, translated in their turn, into it (host/translations/FailureText.h). A text that was
/// given as a whole (a name, a file, a server's own words) has no sentence and is the same in every
/// language. A value: owns all that it holds, and may be copied and used on any thread.
class Phrase : public QString {
 public:
  Phrase() = default;
  Phrase(const QString &text) : QString(text) {}

  /// `sentence`: one that lupdate has found, QT_TRANSLATE_NOOP("orvek::Failure", "...").
  explicit Phrase(const char *sentence, std::vector<Phrase> parts = {})
      : QString(filled(QString::fromUtf8(sentence), parts)),
        m_sentence(sentence),
        m_parts(std::move(parts)) {}

  /// Words of the system or of the toolkit, as they give them; they are their own sentence.
  static Phrase ofSystem(const QString &words) {
    Phrase phrase(words);
    phrase.m_sentence = words.toUtf8();
    return phrase;
  }

  /// What the system says of an error number.
  static Phrase ofSystem(int error) {
    return ofSystem(QString::fromLocal8Bit(std::strerror(error)));
  }

  /// Null where the text was given as a whole.
  const QByteArray &sentence() const { return m_sentence; }
  const std::vector<Phrase> &parts() const { return m_parts; }

  /// `sentence` with the parts in their places; a place in a part stays what it is.
  template <typename Text>
  static QString filled(const QString &sentence, const std::vector<Text> &parts) {
    QString text;
    for (qsizetype i = 0; i < sentence.size(); ++i) {
      const bool mayBePlace = sentence[i] == u'%' && i + 1 < sentence.size();
      const int part = mayBePlace ? sentence[i + 1].unicode() - u'1' : -1;
      if (part < 0 || static_cast<std::size_t>(part) >= parts.size()) {
        text += sentence[i];
      } else {
        text += parts[static_cast<std::size_t>(part)];
        ++i;
      }
    }
    return text;
  }

 private:
  QByteArray m_sentence;
  std::vector<Phrase> m_parts;
};

}  // namespace orvek
