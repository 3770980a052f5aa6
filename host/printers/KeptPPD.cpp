// SPDX-License-Identifier: Apache-2.0
// A file in the cache, or one that lies in memory.

#include "host/printers/KeptPPD.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <cerrno>
#include <mutex>

#include "platform/system/Log.h"
#include "platform/system/WholeFile.h"

namespace orvek {
namespace {

Status keepInCache(const QByteArray &ppd, qint64 date, const QString &path) {
  QDir().mkpath(QFileInfo(path).path());
  const auto file = WholeFile::begin(path);
  if (!file) return file.failure();
  if (Status added = file.value()->add(ppd); !added) return added;
  return file.value()->commit(QDateTime::fromSecsSinceEpoch(date));
}

/// The descriptors live as long as the process, as somebody may still read what they stand for; so
/// the same bytes share one.
Result<QString> keepInMemory(const QByteArray &ppd, const QString &path) {
  static std::mutex mutex;
  static QMap<QByteArray, QString> kept;
  const std::lock_guard<std::mutex> lock(mutex);
  if (const auto found = kept.constFind(ppd); found != kept.constEnd()) return *found;
  const int memory = ::memfd_create("orvek-ppd", MFD_CLOEXEC);
  if (memory < 0) return Failure{FailureKind::Io, path, Phrase::ofSystem(errno)};
  const QString place = QStringLiteral("/proc/%1/fd/%2").arg(::getpid()).arg(memory);
  // A name under /proc/PID, unlike an open stream's, is opened anew by each reader.
  if (const Status written = writeFile(QStringLiteral("/dev/fd/%1").arg(memory), ppd); !written) {
    ::close(memory);
    return Failure{FailureKind::Io, path, written.failure().why};
  }
  kept.insert(ppd, place);
  return place;
}

}  // namespace

Result<QString> keepPPD(const QByteArray &ppd, qint64 date, const QString &path) {
  const Status cached = keepInCache(ppd, date, path);
  if (cached) return path;
  logLine(cached.failure().line() + QStringLiteral("; going on without keeping the PPD file"));
  return keepInMemory(ppd, path);
}

}  // namespace orvek
