// SPDX-License-Identifier: Apache-2.0
// Spells names in percent signs and hexadecimal digits where a file system could stumble.

#include "host/presets/PresetName.h"

#include <QCryptographicHash>
#include <QUrl>
#include <algorithm>

#include "host/ppd/Keyword.h"

namespace orvek {
namespace {

/// File systems take 255 bytes; the rest is room for a digest, the suffix and a temporary name.
constexpr qsizetype longestStem = 160;
constexpr qsizetype keptOfLongStem = 90;

const QString fileSuffix = QStringLiteral(".json");

}  // namespace

Status checkPresetName(const QString &name) {
  const auto fail = [](const Phrase &why) {
    return Failure{FailureKind::Usage, Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "preset name")),
                   why};
  };
  if (name.trimmed().isEmpty()) {
    return fail(Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is empty; give the preset a name")));
  }
  const auto isControl = [](QChar c) { return c.category() == QChar::Other_Control; };
  if (std::any_of(name.cbegin(), name.cend(), isControl)) {
    return fail(Phrase(
        QT_TRANSLATE_NOOP("orvek::Failure", "can't hold line breaks or control characters")));
  }
  return {};
}

Failure takenPresetName(const QString &name) {
  return {FailureKind::Usage, Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "preset name")),
          Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                   "\"%1\" has a meaning of its own in the list; choose another"),
                 {name})};
}

Status checkNewPresetName(const QString &name) {
  if (isAnyOf(name.trimmed(), {"None", "Last used"})) return takenPresetName(name);
  return checkPresetName(name);
}

QString presetFileName(const QString &name) {
  const QByteArray composed = name.normalized(QString::NormalizationForm_C).toUtf8();
  QByteArray stem = composed.toPercentEncoding({}, ".~");
  if (stem.size() > longestStem) {
    const auto digest = QCryptographicHash::hash(composed, QCryptographicHash::Sha256).toHex();
    stem = stem.left(keptOfLongStem) + '~' + digest;
  }
  return QString::fromLatin1(stem) + fileSuffix;
}

}  // namespace orvek
