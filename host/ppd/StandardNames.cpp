// SPDX-License-Identifier: Apache-2.0
// Looks keywords up in the tables; numbers, places and sizes are read out of them.

#include "host/ppd/StandardNames.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <QCoreApplication>
#include <QHash>
#include <QRegularExpression>
#include <algorithm>

#include "host/ppd/StandardWords.h"

namespace orvek {
namespace {

constexpr double millimetresPerPoint = 25.4 / 72;

/// The sentences of this file, for translation.
struct Text {
  Q_DECLARE_TR_FUNCTIONS(orvek::StandardNames)
};

QString named(const char *name) {
  return name == nullptr ? QString() : QCoreApplication::translate(standardNamesContext, name);
}

bool isAmong(const char *keywords, const QString &keyword) {
  for (const QLatin1String each : QLatin1String(keywords).tokenize(u' ')) {
    if (each == keyword) return true;
  }
  return false;
}

const char *find(StandardWords words, const QString &keyword) {
  const auto found = std::find_if(words.begin(), words.end(), [&](const StandardWord &word) {
    return isAmong(word.keywords, keyword);
  });
  return found == words.end() ? nullptr : found->name;
}

// IPP's enumerations come as numbers.
QString enumerated(const QString &option, const QString &choice) {
  bool isNumber = false;
  const int number = choice.toInt(&isNumber);
  if (!isNumber || option != u"finishings") return plainKeyword(choice);
  return plainKeyword(QString::fromLatin1(ippEnumString("finishings", number)));
}

bool choosesPaperSize(const QString &option) {
  return option == u"pagesize" || option == u"media" || option == u"pageregion";
}

// By keyword: thousands of options are asked for, and few are standard ones.
const StandardOption *optionOf(const QString &keyword) {
  static const QHash<QString, const StandardOption *> known = [] {
    QHash<QString, const StandardOption *> options;
    for (const StandardOption &option : standardOptions()) {
      const QString keywords = QString::fromLatin1(option.keywords);
      for (const QString &each : keywords.split(u' ', Qt::SkipEmptyParts)) {
        options.insert(each, &option);
      }
    }
    return options;
  }();
  return known.value(keyword);
}

QString numbered(StandardWords words, const QString &choice) {
  static const QRegularExpression pattern(QStringLiteral("^([a-z]+)([0-9]{1,3})$"));
  const QRegularExpressionMatch match = pattern.match(choice);
  if (words.empty() || !match.hasMatch()) return {};
  const char *name = find(words, match.captured(1));
  return name == nullptr ? QString() : named(name).arg(match.captured(2).toInt());
}

QString placed(StandardWords words, const QString &choice) {
  if (words.empty()) return {};
  for (const StandardWord &place : placesOfTheSheet()) {
    const QLatin1String keyword(place.keywords);
    if (!choice.endsWith(keyword)) continue;
    const char *kind = find(words, choice.chopped(keyword.size()));
    return kind == nullptr ? QString() : Text::tr("%1, %2").arg(named(kind), named(place.name));
  }
  return {};
}

// "600dpi" and "1200x600dpi", in every standard option: some choose a quality by it.
QString resolution(const QString &choice) {
  static const QRegularExpression pattern(QStringLiteral("^([0-9]{2,5})(?:x([0-9]{2,5}))?dpi$"));
  const QRegularExpressionMatch match = pattern.match(choice);
  if (!match.hasMatch()) return {};
  const QString other = match.captured(2);
  const bool isSquare = other.isEmpty() || other == match.captured(1);
  if (isSquare) return Text::tr("%1 dpi").arg(match.captured(1));
  return Text::tr("%1 × %2 dpi").arg(match.captured(1), other);
}

// Names that are letters and numbers, in all languages.
bool speaksForItself(const QString &paper) {
  static const QRegularExpression pattern(QStringLiteral("^[abc]([0-9]|10)$"));
  return pattern.match(paper).hasMatch();
}

// A name that says a size in points and nothing else; null for any other.
QString bareSize(const QString &keyword) {
  static const QRegularExpression pattern(
      QStringLiteral("^w([0-9]{1,4}(?:\\.[0-9]+)?)h([0-9]{1,4}(?:\\.[0-9]+)?)$"));
  const QRegularExpressionMatch match = pattern.match(keyword);
  if (!match.hasMatch()) return {};
  const auto millimetres = [&](int which) {
    return QString::number(qRound(match.captured(which).toDouble() * millimetresPerPoint));
  };
  return Text::tr("%1 × %2 mm").arg(millimetres(1), millimetres(2));
}

QString paperWithoutSuffix(const QString &keyword) {
  const QString plain = plainKeyword(keyword);
  if (const char *name = find(standardPapers(), plain)) return named(name);
  if (speaksForItself(plain)) return plain.toUpper();
  return bareSize(keyword);
}

}  // namespace

QString standardPaperName(const QString &keyword) {
  const pwg_media_t *media = pwgMediaForPWG(keyword.toUtf8().constData());
  const QString size =
      media != nullptr && media->ppd != nullptr ? QString::fromLatin1(media->ppd) : keyword;
  if (const QString name = paperWithoutSuffix(size); !name.isNull()) return name;
  for (const StandardWord &suffix : paperSuffixes()) {
    const QLatin1String end(suffix.keywords);
    if (!size.endsWith(end, Qt::CaseInsensitive)) continue;
    QString base = size.chopped(end.size());
    if (base.endsWith(u'.') || base.endsWith(u'_')) base.chop(1);
    const QString name = paperWithoutSuffix(base);
    if (!name.isNull()) return named(suffix.name).arg(name);
  }
  return {};
}

QString standardOptionName(const QString &option) {
  const QString keyword = plainKeyword(option);
  if (keyword == u"pageregion") return Text::tr("Paper size for manual feed");
  if (choosesPaperSize(keyword)) return Text::tr("Paper size");
  const StandardOption *found = optionOf(keyword);
  return found == nullptr ? QString() : named(found->name);
}

QString standardChoiceName(const QString &option, const QString &choice) {
  const QString keyword = plainKeyword(option);
  const QString plain = enumerated(keyword, choice);
  if (choosesPaperSize(keyword)) {
    return plain == u"custom" ? Text::tr("Custom") : standardPaperName(choice);
  }
  const StandardOption *found = optionOf(keyword);
  if (found == nullptr) return {};
  for (const StandardWords &words : {found->choices, found->shared, commonChoices()}) {
    if (const char *name = find(words, plain)) return named(name);
  }
  for (const QString &name :
       {numbered(found->numbered, plain), placed(found->placed, plain), resolution(plain)}) {
    if (!name.isNull()) return name;
  }
  return {};
}

QString switchName(const QString &choice) {
  const QString plain = plainKeyword(choice);
  return plain == u"true" || plain == u"false" ? named(find(commonChoices(), plain)) : QString();
}

QString standardGroupName(const QString &group) {
  const QString plain = plainKeyword(group);
  if (plain == u"general") return Text::tr("General");
  if (plain == u"installableoptions") return Text::tr("Installed equipment");
  if (plain == u"extra") return Text::tr("Further options");
  return {};
}

bool standardNamesAreTranslated() {
  return Text::tr("Two-sided") != QLatin1String("Two-sided");
}

}  // namespace orvek
