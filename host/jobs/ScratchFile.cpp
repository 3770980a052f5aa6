// SPDX-License-Identifier: Apache-2.0
// A helper knows the folder before it is there, and removes it once it hears no more of this
// program.

#include "host/jobs/ScratchFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <mutex>

#include "host/jobs/GuardCall.h"
#include "host/jobs/GuardedTool.h"
#include "platform/system/SocketProgram.h"
#include "platform/system/WriteAll.h"

namespace orvek {
namespace {

constexpr mode_t ownersOnly = 0700;
constexpr mode_t ownersFile = 0600;

Failure failureOf(int error) {
  return {FailureKind::Io, QDir::tempPath(), Phrase::ofSystem(error)};
}

// Nobody can guess it: what lies there is this program's, and may be removed.
QString newName() {
  std::array<quint32, 4> number{};
  QRandomGenerator::system()->fillRange(number.data(), qsizetype{number.size()});
  const auto bytes = QByteArray::fromRawData(reinterpret_cast<const char *>(number.data()),
                                             qsizetype{sizeof number});
  return QDir(QDir::tempPath())
      .absoluteFilePath(QStringLiteral("orvek-") + QString::fromLatin1(bytes.toHex()));
}

/// The folder and the process that keeps it. One for the whole program.
class Folder {
 public:
  Folder() = default;
  Folder(const Folder &) = delete;
  Folder &operator=(const Folder &) = delete;

  ~Folder() {
    // A copy of this process that does not go on as another program has no part in it.
    if (m_keeper.process <= 0 || m_owner != ::getpid()) return;
    QDir(m_path).removeRecursively();
    ::kill(m_keeper.process, SIGKILL);
    ::waitpid(m_keeper.process, nullptr, 0);
    ::close(m_keeper.socket);
  }

  Result<QString> path() {
    const std::lock_guard lock(m_mutex);
    if (Status kept = keep(); !kept) return kept.failure();
    // Each time: what looks old to those who clean up is gone from a window that is left open.
    const int error = make();
    return error == 0 ? Result<QString>(m_path) : failureOf(error);
  }

 private:
  Status keep() {
    if (m_keeper.process > 0) return {};
    const QString path = newName();
    const QString guard = guardPath();
    const int error = startWithSocket({QFile::encodeName(guard).toStdString(),
                                       {guard::keepWord, QFile::encodeName(path).toStdString()},
                                       true},
                                      &m_keeper);
    if (error != 0) return Failure{FailureKind::Io, guard, Phrase::ofSystem(error)};
    m_path = path;
    return {};
  }

  int make() const {
    const QByteArray path = QFile::encodeName(m_path);
    if (::mkdir(path.constData(), ownersOnly) == 0) return 0;
    if (errno != EEXIST) return errno;
    struct stat entry {};
    if (::lstat(path.constData(), &entry) != 0) return errno;
    return S_ISDIR(entry.st_mode) && entry.st_uid == ::geteuid() ? 0 : EEXIST;
  }

  std::mutex m_mutex;
  const pid_t m_owner = ::getpid();
  SocketProgram m_keeper;
  QString m_path;
};

QString newFileIn(const QString &folder, const QString &suffix) {
  static std::atomic<int> files = 0;
  return folder + u'/' + QString::number(++files) + suffix;
}

}  // namespace

Result<QString> scratchFolder() {
  static Folder folder;
  return folder.path();
}

Result<std::unique_ptr<ScratchFile>> ScratchFile::create(const QString &suffix) {
  const auto folder = scratchFolder();
  if (!folder) return folder.failure();
  const QString path = newFileIn(folder.value(), suffix);
  const int descriptor = ::open(QFile::encodeName(path).constData(),
                                O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, ownersFile);
  if (descriptor < 0) return failureOf(errno);
  return std::unique_ptr<ScratchFile>(new ScratchFile(path, descriptor));
}

Result<std::unique_ptr<ScratchFile>> ScratchFile::with(const QByteArray &bytes,
                                                       const QString &suffix) {
  auto file = create(suffix);
  if (!file) return file;
  if (Status added = file.value()->add(bytes); !added) return added.failure();
  return file;
}

ScratchFile::~ScratchFile() {
  ::close(m_descriptor);
  QFile::remove(m_path);
}

Status ScratchFile::add(const QByteArray &bytes) {
  const int error = writeAll(m_descriptor, bytes);
  if (error != 0) return failureOf(error);
  m_size += bytes.size();
  return {};
}

}  // namespace orvek
