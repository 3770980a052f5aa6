// SPDX-License-Identifier: Apache-2.0
// Tables of names; everything else is spelled out from its keyword.

#include "host/server/SettingTitles.h"

#include <cups/cups.h>
#include <cups/pwg.h>

#include <QMap>

namespace orvek {
namespace {

const QMap<QString, QString> &settingTitles() {
  static const QMap<QString, QString> titles{
      {QStringLiteral("media"), QStringLiteral("Paper size")},
      {QStringLiteral("sides"), QStringLiteral("Two-sided")},
      {QStringLiteral("print-color-mode"), QStringLiteral("Color")},
      {QStringLiteral("print-quality"), QStringLiteral("Quality")},
      {QStringLiteral("number-up"), QStringLiteral("Pages per sheet")},
      {QStringLiteral("output-bin"), QStringLiteral("Output tray")},
      {QStringLiteral("finishings"), QStringLiteral("Finishing")},
  };
  return titles;
}

const QMap<QString, QString> &choiceTitles() {
  static const QMap<QString, QString> titles{
      {QStringLiteral("one-sided"), QStringLiteral("Off")},
      {QStringLiteral("two-sided-long-edge"), QStringLiteral("Long edge")},
      {QStringLiteral("two-sided-short-edge"), QStringLiteral("Short edge")},
      {QStringLiteral("monochrome"), QStringLiteral("Black and white")},
  };
  return titles;
}

QString wordsOf(QString keyword) {
  keyword.replace(u'-', u' ');
  keyword.replace(u'_', u' ');
  return keyword.left(1).toUpper() + keyword.mid(1);
}

bool isEnumeration(const QString &setting) {
  return setting == QStringLiteral("finishings") || setting == QStringLiteral("print-quality");
}

QString mediaTitle(const QString &keyword) {
  const pwg_media_t *media = pwgMediaForPWG(keyword.toUtf8().constData());
  return media && media->ppd ? QString::fromLatin1(media->ppd) : wordsOf(keyword);
}

}  // namespace

QString plainSettingTitle(const QString &keyword) {
  return settingTitles().value(keyword, wordsOf(keyword));
}

QString plainChoiceTitle(const QString &setting, const QString &keyword) {
  if (setting == QStringLiteral("media")) return mediaTitle(keyword);
  if (isEnumeration(setting)) {
    return wordsOf(
        QString::fromLatin1(ippEnumString(setting.toLatin1().constData(), keyword.toInt())));
  }
  return choiceTitles().value(keyword, wordsOf(keyword));
}

}  // namespace orvek
