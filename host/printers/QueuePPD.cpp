// SPDX-License-Identifier: Apache-2.0
// Keeps a copy under the date that the server gave it.

#include "host/printers/QueuePPD.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStandardPaths>

#include "host/printers/PPDDownload.h"
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

time_t keptDate(const QString &path) {
  const QFileInfo kept(path);
  return kept.isFile() && kept.size() > 0
             ? static_cast<time_t>(kept.lastModified().toSecsSinceEpoch())
             : 0;
}

Status keep(const PPDAnswer &fetched, const QString &path) {
  QDir().mkpath(QFileInfo(path).path());
  QSaveFile kept(path);
  if (!kept.open(QIODevice::WriteOnly) || kept.write(fetched.ppd) != fetched.ppd.size() ||
      !kept.commit()) {
    return Failure{FailureKind::Io, path, Phrase::ofSystem(kept.errorString())};
  }
  QFile dated(path);
  // Undated, it would only be fetched again the next time.
  if (dated.open(QIODevice::ReadWrite)) {
    dated.setFileTime(QDateTime::fromSecsSinceEpoch(fetched.date),
                      QFileDevice::FileModificationTime);
  }
  return {};
}

/// No PPD is an answer as long as there is such a queue.
Result<QString> withoutPPD(const CupsConnection &connection, const QString &queue) {
  const auto found = findPrinter(connection, queue);
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
  auto connection = CupsConnection::open(access);
  if (!connection) return connection.failure();
  return fetch(*connection.value(), queue);
}

Result<QString> QueuePPD::fetch(const CupsConnection &connection, const QString &queue) const {
  const QString path = keptPath(m_folder, connection.serverName(), queue);
  const PPDAnswer answer = downloadPPD(connection.http(), queue, keptDate(path));
  if (connection.isBroken() || connection.lacksPassword()) return connection.lastFailure(queue);
  if (answer.status == HTTP_STATUS_NOT_MODIFIED) return path;
  if (answer.status == HTTP_STATUS_NOT_FOUND) return withoutPPD(connection, queue);
  if (answer.status != HTTP_STATUS_OK) {
    return Failure{
        FailureKind::Io, queue,
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                 "the print server does not give its printer description (%1)"),
               {QString::fromUtf8(httpStatus(answer.status))})};
  }
  const Status kept = keep(answer, path);
  return kept ? Result<QString>(path) : Result<QString>(kept.failure());
}

}  // namespace orvek
