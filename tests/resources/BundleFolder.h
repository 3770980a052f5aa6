// SPDX-License-Identifier: Apache-2.0
// The built bundle's files, read for the tests.
#pragma once

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QStringList>

namespace orvek::test {

inline const QStringList bundleLanguages = {QStringLiteral("en"), QStringLiteral("de"),
                                            QStringLiteral("fr"), QStringLiteral("ja")};

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
