// SPDX-License-Identifier: Apache-2.0
// Every step is checked where it is made: a buffer would put off a full disk's answer to where
// nobody looks for it.

#include "platform/system/WholeFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <cerrno>

#include "platform/system/OpenStream.h"
#include "platform/system/WriteAll.h"

namespace orvek {
namespace {

Failure failureOf(const QString &path, int error) {
  return {FailureKind::Io, path, Phrase::ofSystem(error)};
}

/// The system's error number, or 0. File systems that have no such thing say so, which is no
/// failure.
int synchronize(int descriptor) {
  while (::fsync(descriptor) != 0) {
    if (errno == EINVAL || errno == ENOTSUP || errno == ENOSYS) return 0;
    if (errno != EINTR) return errno;
  }
  return 0;
}

/// Only then does the new name outlast a power cut. Who may not read the folder can't ask for it.
int synchronizeFolderOf(const QString &path) {
  const QString folder = QFileInfo(QFileInfo(path).canonicalFilePath()).path();
  const int opened =
      ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (opened < 0) return 0;
  const int error = synchronize(opened);
  ::close(opened);
  return error;
}

Status writeIntoStream(const QString &path, const QByteArray &bytes) {
  const int stream = openForWriting(path);
  if (stream < 0) return failureOf(path, errno);
  const int error = writeAll(stream, bytes);
  ::close(stream);
  return error == 0 ? Status() : Status(failureOf(path, error));
}

Status checkWritable(const QString &path) {
  // Replacing needs no right to write into what is replaced; whoever took that right away meant it.
  const QByteArray place = QFile::encodeName(path);
  if (::access(place.constData(), F_OK) == 0 && ::access(place.constData(), W_OK) != 0) {
    return failureOf(path, errno);
  }
  return {};
}

}  // namespace

Failure WholeFile::failure(int error) const {
  return failureOf(m_file.fileName(), error);
}

Result<std::unique_ptr<WholeFile>> WholeFile::begin(const QString &path) {
  if (const Status writable = checkWritable(path); !writable) return writable.failure();
  std::unique_ptr<WholeFile> file(new WholeFile(path));
  if (file->m_file.open(QIODevice::WriteOnly)) return file;
  return Failure{FailureKind::Io, path, Phrase::ofSystem(file->m_file.errorString())};
}

Status WholeFile::add(const QByteArray &bytes) {
  const int error = writeAll(m_file.handle(), bytes);
  return error == 0 ? Status() : Status(failure(error));
}

Status WholeFile::commit(const QDateTime &modified) {
  if (modified.isValid()) m_file.setFileTime(modified, QFileDevice::FileModificationTime);
  if (const int error = synchronize(m_file.handle()); error != 0) return failure(error);
  if (!m_file.commit()) {
    return Failure{FailureKind::Io, m_file.fileName(), Phrase::ofSystem(m_file.errorString())};
  }
  const int error = synchronizeFolderOf(m_file.fileName());
  return error == 0 ? Status() : Status(failure(error));
}

bool isReplaceable(const QString &path) {
  if (openStreamNumber(path) >= 0) return false;
  struct stat entry {};
  if (::stat(QFile::encodeName(path).constData(), &entry) != 0) return true;
  return S_ISREG(entry.st_mode);
}

Status writeFile(const QString &path, const QByteArray &bytes) {
  if (!isReplaceable(path)) return writeIntoStream(path, bytes);
  const auto file = WholeFile::begin(path);
  if (!file) return file.failure();
  if (Status added = file.value()->add(bytes); !added) return added;
  return file.value()->commit();
}

}  // namespace orvek
