// SPDX-License-Identifier: Apache-2.0
// Reads a bundle's information dictionary, its texts and the places of its resources.

#include "platform/ui/Bundle.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QLocale>

namespace orvek {
namespace {

constexpr const char *fallbackLanguage = "en";

// "de-AT" is served by "de-AT.lproj", else by "de.lproj".
QStringList withBaseLanguages(const QStringList &languages) {
  QStringList all;
  for (const QString &language : languages) {
    all << language << language.section(QLatin1Char('-'), 0, 0).section(QLatin1Char('_'), 0, 0);
  }
  all.removeDuplicates();
  return all;
}

// The first language that the bundle has decides; later wishes of the user do not mix in.
QStringList lookUpFolders(const QDir &bundle, const QStringList &languages) {
  QStringList folders;
  for (const QString &language : withBaseLanguages(languages)) {
    const QString folder = bundle.filePath(language + QStringLiteral(".lproj"));
    if (!QFileInfo(folder).isDir()) continue;
    folders << folder;
    break;
  }
  folders << bundle.filePath(QLatin1String(fallbackLanguage) + QStringLiteral(".lproj"))
          << bundle.path();
  folders.removeDuplicates();
  return folders;
}

}  // namespace

std::shared_ptr<Bundle> Bundle::atPath(const QString &path, const QStringList &languages) {
  if (path.isEmpty() || !QFileInfo(path).isDir()) return nullptr;
  const QStringList wished = languages.isEmpty() ? QLocale().uiLanguages() : languages;
  return std::shared_ptr<Bundle>(new Bundle(QFileInfo(path).absoluteFilePath(), wished));
}

Bundle::Bundle(QString path, const QStringList &languages)
    : m_path(std::move(path)), m_folders(lookUpFolders(QDir(m_path), languages)) {
  readInfo();
}

void Bundle::readInfo() {
  QFile file(QDir(m_path).filePath(QStringLiteral("Info.json")));
  if (!file.open(QIODevice::ReadOnly)) {
    m_infoProblem = QStringLiteral("can't be read (%1)").arg(file.errorString());
    return;
  }
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(file.readAll(), &error);
  if (file.error() != QFileDevice::NoError) {
    m_infoProblem = QStringLiteral("can't be read (%1)").arg(file.errorString());
  } else if (document.isObject()) {
    m_info = document.object();
  } else {
    m_infoProblem = error.error == QJsonParseError::NoError
                        ? QStringLiteral("is not a JSON object")
                        : QStringLiteral("is not JSON: %1 at byte %2")
                              .arg(error.errorString())
                              .arg(error.offset);
  }
}

void Bundle::readStrings() const {
  m_strings.emplace();
  const QString path = pathForResource(QStringLiteral("Localizable"), QStringLiteral("json"));
  if (path.isNull()) return;
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return;
  const QJsonObject table = QJsonDocument::fromJson(file.readAll()).object();
  for (auto entry = table.begin(); entry != table.end(); ++entry) {
    if (entry.value().isString()) m_strings->insert(entry.key(), entry.value().toString());
  }
}

QString Bundle::localizedString(const QString &key) const {
  if (!m_strings) readStrings();
  return m_strings->value(key, key);
}

QString Bundle::pathForResource(const QString &name, const QString &type) const {
  const QString fileName = type.isEmpty() ? name : QString(name + QLatin1Char('.') + type);
  for (const QString &folder : m_folders) {
    QString candidate = folder + QLatin1Char('/') + fileName;
    if (QFileInfo(candidate).isFile()) return candidate;
  }
  return {};
}

QString Bundle::pathForOnlyResource(const QString &type) const {
  QStringList names;
  for (const QString &folder : m_folders) {
    for (const QFileInfo &file :
         QDir(folder).entryInfoList({QStringLiteral("*.") + type}, QDir::Files)) {
      names << file.completeBaseName();
    }
  }
  names.removeDuplicates();
  return names.size() == 1 ? pathForResource(names.constFirst(), type) : QString();
}

QString localizedString(const Bundle *bundle, const QString &key) {
  return bundle == nullptr ? QString() : bundle->localizedString(key);
}

QString pathForResource(const Bundle *bundle, const QString &name, const QString &type) {
  return bundle == nullptr ? QString() : bundle->pathForResource(name, type);
}

std::optional<QJsonObject> infoDictionary(const Bundle *bundle) {
  return bundle == nullptr ? std::nullopt : bundle->infoDictionary();
}

}  // namespace orvek
