// SPDX-License-Identifier: Apache-2.0
// Checks and spools documents.

#include "host/jobs/Document.h"

#include <poll.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cerrno>
#include <cstring>

namespace orvek {
namespace {

constexpr qint64 kBlock = 65536;
constexpr int kPollMilliseconds = 100;

const QString kStandardInput = QStringLiteral("-");

Failure unreadable(const QString &file, const QString &why) {
  return {FailureKind::Io, documentName(file), why};
}

Status checkDocument(const QString &file) {
  if (file == kStandardInput) return {};
  if (QFileInfo(file).isDir()) return unreadable(file, QStringLiteral("is a folder"));
  QFile document(file);
  if (!document.open(QIODevice::ReadOnly)) return unreadable(file, document.errorString());
  return {};
}

}  // namespace

QString documentName(const QString &file) {
  return file == kStandardInput ? QStringLiteral("standard input") : file;
}

Status checkAllDocuments(const QStringList &files) {
  if (files.count(kStandardInput) > 1)
    return Failure{FailureKind::Usage, documentName(kStandardInput),
                   QStringLiteral("can be printed once only, and \"-\" is given more than once")};
  for (const QString &file : files)
    if (Status document = checkDocument(file); !document) return document;
  return {};
}

qint64 documentSize(const QString &file) {
  const QFileInfo info(file);
  return file != kStandardInput && info.isFile() ? info.size() : -1;
}

Result<qint64> readStandardInput(char *bytes, qint64 capacity) {
  pollfd ready{STDIN_FILENO, POLLIN, 0};
  if (::poll(&ready, 1, kPollMilliseconds) <= 0) return qint64{-1};
  const ssize_t count = ::read(STDIN_FILENO, bytes, static_cast<size_t>(capacity));
  if (count >= 0) return qint64{count};
  if (errno == EINTR || errno == EAGAIN) return qint64{-1};
  return unreadable(kStandardInput, QString::fromLocal8Bit(std::strerror(errno)));
}

Result<std::unique_ptr<QTemporaryFile>> spoolStandardInput(const JobControl &control) {
  // Without a suffix: the type is to be found from the contents, not from a name that we made up.
  auto spool = std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/orvek-XXXXXX"));
  if (!spool->open()) return Failure{FailureKind::Io, QDir::tempPath(), spool->errorString()};
  std::array<char, kBlock> block{};
  qint64 total = 0;
  while (!control.cancelled) {
    const auto count = readStandardInput(block.data(), kBlock);
    if (!count) return count.failure();
    if (count.value() == 0) break;
    if (count.value() < 0) continue;
    if (spool->write(block.data(), count.value()) != count.value() || !spool->flush())
      return Failure{FailureKind::Io, QDir::tempPath(), spool->errorString()};
    total += count.value();
  }
  if (total == 0 && !control.cancelled)
    return unreadable(kStandardInput, QStringLiteral("is empty, so there is nothing to print"));
  return spool;
}

}  // namespace orvek
