// SPDX-License-Identifier: Apache-2.0
// A list of names in JSON.

#include "host/presets/RecentPrinters.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "host/presets/PresetStore.h"
#include "host/ticket/TicketFile.h"
#include "platform/system/WholeFile.h"

namespace orvek {
namespace {

constexpr qsizetype mostKept = 10;
const QString listKey = QStringLiteral("printers");

QString fileIn(const QString &folder) {
  return folder + QStringLiteral("/recent-printers.json");
}

}  // namespace

RecentPrinters::RecentPrinters(const QString &folder)
    : m_folder(folder.isEmpty() ? PresetStore::standardFolder() : folder) {}

QStringList RecentPrinters::destinations() const {
  QFile file(fileIn(m_folder));
  // Something else of that name could be waited for without an end.
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return {};
  const auto json = readSettings(file, file.fileName());
  if (!json) return {};
  QStringList found;
  const QJsonObject all = QJsonDocument::fromJson(json.value()).object();
  for (const QJsonValue one : all.value(listKey).toArray()) {
    const QString destination = one.toString();
    if (!destination.isEmpty() && !found.contains(destination)) found << destination;
    if (found.size() == mostKept) break;
  }
  return found;
}

Status RecentPrinters::add(const QString &destination) {
  QStringList all = destinations();
  all.removeAll(destination);
  all.prepend(destination);
  if (!QDir().mkpath(m_folder)) {
    return Failure{FailureKind::Io, m_folder,
                   Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "can't be made"))};
  }
  const QJsonObject object{{listKey, QJsonArray::fromStringList(all.mid(0, mostKept))}};
  return writeFile(fileIn(m_folder), QJsonDocument(object).toJson());
}

}  // namespace orvek
