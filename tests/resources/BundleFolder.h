// SPDX-License-Identifier: Apache-2.0
// The built bundle's files, read for the tests.
#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orvek::test {

inline const QStringList bundleLanguages =
    QString::fromLatin1("en ar de es fr it ja ko pt zh-CN").split(u' ');

/// A language in a test's name, which takes letters, numbers and underscores.
inline const auto nameOfLanguage = [](const auto &language) {
  return QString(language.param).replace(u'-', u'_').toStdString();
};

inline QString bundleFile(const QString &name) {
  return QStringLiteral(ORVEK_BUNDLE_DIR "/") + name;
}

/// The file's JSON object; empty where it holds none.
inline QJsonObject bundleJson(const QString &name) {
  QFile file(bundleFile(name));
  if (!file.open(QIODevice::ReadOnly)) return {};
  return QJsonDocument::fromJson(file.readAll()).object();
}

inline QJsonObject bundleStrings(const QString &language) {
  return bundleJson(language + QStringLiteral(".lproj/Localizable.json"));
}

}  // namespace orvek::test
