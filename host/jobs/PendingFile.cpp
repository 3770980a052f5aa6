// SPDX-License-Identifier: Apache-2.0
// Unnamed files are linked beside their place and renamed: a link alone replaces nothing.

#include "host/jobs/PendingFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <cerrno>
#include <cstdio>

namespace orvek {
namespace {

constexpr mode_t newFileMode = 0666;  // less what the user's mask takes away
constexpr mode_t permissionBits = 07777;
constexpr int mostNames = 100;

Failure because(int error) {
  return {FailureKind::Io, QString(), Phrase::ofSystem(error)};
}

QString pastLinks(const QString &path) {
  const QFileInfo info(path);
  if (!info.isSymLink()) return path;
  const QString target = info.canonicalFilePath();
  return target.isEmpty() ? info.symLinkTarget() : target;  // the latter where nothing is there yet
}

QByteArray nameBeside(const QString &path) {
  constexpr int nameBase = 36;
  return QFile::encodeName(path) + '.' +
         QByteArray::number(QRandomGenerator::global()->generate(), nameBase);
}

// A descriptor's name in /proc needs no privilege, as linking by number alone would.
int linkTo(int file, const QByteArray &path) {
  const QByteArray source = "/proc/self/fd/" + QByteArray::number(file);
  const int linked =
      ::linkat(AT_FDCWD, source.constData(), AT_FDCWD, path.constData(), AT_SYMLINK_FOLLOW);
  return linked == 0 ? 0 : errno;
}

int replace(int file, const QString &path) {
  int error = EEXIST;
  for (int attempt = 0; attempt < mostNames && error == EEXIST; ++attempt) {
    const QByteArray beside = nameBeside(path);
    error = linkTo(file, beside);
    if (error != 0) continue;
    if (::rename(beside.constData(), QFile::encodeName(path).constData()) == 0) return 0;
    error = errno;
    ::unlink(beside.constData());
    return error;
  }
  return error;
}

}  // namespace

PendingFile::PendingFile(const QString &path) : m_path(pastLinks(path)) {}

PendingFile::~PendingFile() {
  if (m_unnamed >= 0) ::close(m_unnamed);
}

Result<std::unique_ptr<PendingFile>> PendingFile::open(const QString &path) {
  std::unique_ptr<PendingFile> file(new PendingFile(path));
  const QByteArray place = QFile::encodeName(file->m_path);
  // Replacing needs no right to write into what is replaced; whoever took that right away meant it.
  if (::access(place.constData(), F_OK) == 0 && ::access(place.constData(), W_OK) != 0) {
    return because(errno);
  }
  if (file->openUnnamed()) return file;
  file->m_named = std::make_unique<QSaveFile>(path);
  if (file->m_named->open(QIODevice::WriteOnly)) return file;
  return Failure{FailureKind::Io, QString(), Phrase::ofSystem(file->m_named->errorString())};
}

bool PendingFile::openUnnamed() {
  const QByteArray folder = QFile::encodeName(QFileInfo(m_path).path());
  m_unnamed = ::open(folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, newFileMode);
  if (m_unnamed < 0) return false;
  struct stat old {};
  if (::stat(QFile::encodeName(m_path).constData(), &old) == 0) {
    ::fchmod(m_unnamed, old.st_mode & permissionBits);
  }
  return true;
}

Status PendingFile::commit() {
  if (m_named) {
    if (m_named->commit()) return {};
    return Failure{FailureKind::Io, QString(), Phrase::ofSystem(m_named->errorString())};
  }
  // In place means on the disk: a file without its bytes is what nobody wants after a power cut.
  if (::fdatasync(m_unnamed) != 0) return because(errno);
  int error = linkTo(m_unnamed, QFile::encodeName(m_path));
  if (error == EEXIST) error = replace(m_unnamed, m_path);
  return error == 0 ? Status() : Status(because(error));
}

}  // namespace orvek
