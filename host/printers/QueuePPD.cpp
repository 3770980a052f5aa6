// SPDX-License-Identifier: Apache-2.0
// Keeps a copy under the date that the server gave it.

#include "host/printers/QueuePPD.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QFileInfo>
#include <QStandardPaths>

#include "host/printers/KeptPPD.h"
#include "host/printers/PrinterList.h"

namespace orvek {
namespace {

constexpr qsizetype longestName = 200;

QByteArray digestOf(const QString &text) {
  return QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Sha256).toHex();
}

/// Keeps the queue's name readable, as messages about the PPD show it. Each server has a folder of
/// its own: two of them may have queues of one name.
QString keptPath(const QString &folder, const QString &server, const QString &queue) {
  QByteArray name = queue.toUtf8().toPercentEncoding();
  if (name.size() > longestName) name = digestOf(queue);
  return QStringLiteral("%1/ppd/%2/%3.ppd")
      .arg(folder, QString::fromLatin1(digestOf(server)), QString::fromLatin1(name));
}

qint64 keptDate(const QString &path) {
  const QFileInfo kept(path);
  return kept.isFile() && kept.size() > 0 ? kept.lastModified().toSecsSinceEpoch() : 0;
}

/// No PPD is an answer as long as there is such a queue.
Result<QString> withoutPPD(ServerTalk &talk, const QString &queue) {
  const auto found = findPrinter(talk, queue);
  if (!found) return found.failure();
  return QString();
}

}  // namespace

QueuePPD::QueuePPD(const QString &cacheFolder) : m_folder(cacheFolder) {}

QString QueuePPD::standardFolder() {
  return QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
         QStringLiteral("/orvek-print");
}

Result<QString> QueuePPD::fetch(const ServerAccess &access, const QString &queue) const {
  auto talk = ServerTalk::open(access);
  if (!talk) return talk.failure();
  return fetch(*talk.value(), queue);
}

Result<QString> QueuePPD::fetch(ServerTalk &talk, const QString &queue) const {
  const QString path = keptPath(m_folder, talk.serverName(), queue);
  auto answer = talk.ask(ServerTask::Description, {{QLatin1String("queue"), fieldOf(queue)},
                                                   {QLatin1String("date"), keptDate(path)}});
  if (!answer) return answer.failure();
  const bool exists = answer.value().flag("exists");
  const bool isNew = answer.value().flag("new");
  const qint64 date = answer.value().number("date");
  if (!answer.value().isSound() || isNew == talk.description().isNull()) return talk.unreadable();
  if (!exists) return withoutPPD(talk, queue);
  if (!isNew) return path;
  return keepPPD(talk.description(), date, path);
}

}  // namespace orvek
