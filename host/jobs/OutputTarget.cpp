// SPDX-License-Identifier: Apache-2.0
// Files are written apart from their place; everything else is a descriptor that is polled.

#include "host/jobs/OutputTarget.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <climits>

#include "host/jobs/OpenStream.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 100;

/// Descriptor number of an open stream, or -1.
int streamNumber(const QString &path) {
  return path == QStringLiteral("-") ? STDOUT_FILENO : openStreamNumber(path);
}

bool isPlainFileOrAbsent(const QString &path) {
  struct stat entry {};
  if (::stat(QFile::encodeName(path).constData(), &entry) != 0) return true;
  return S_ISREG(entry.st_mode);
}

int openStream(const QString &path) {
  const int number = streamNumber(path);
  if (number >= 0) return ::fcntl(number, F_DUPFD_CLOEXEC, 0);
  return ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC | O_NOCTTY);
}

}  // namespace

OutputTarget::~OutputTarget() {
  if (m_stream >= 0) ::close(m_stream);
}

Failure OutputTarget::failure(const Phrase &why) const {
  const Phrase name = m_path == QStringLiteral("-")
                          ? Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "standard output"))
                          : Phrase(m_path);
  return {FailureKind::Io, name, why};
}

Result<std::unique_ptr<OutputTarget>> OutputTarget::open(const QString &path) {
  std::unique_ptr<OutputTarget> target(new OutputTarget(path));
  if (streamNumber(path) >= 0 || !isPlainFileOrAbsent(path)) {
    target->m_stream = openStream(path);
    if (target->m_stream < 0) return target->failure(Phrase::ofSystem(errno));
    return target;
  }
  // Replacing needs no right to write into what is replaced; whoever took that right away meant it.
  const QByteArray place = QFile::encodeName(path);
  if (::access(place.constData(), F_OK) == 0 && ::access(place.constData(), W_OK) != 0) {
    return target->failure(Phrase::ofSystem(errno));
  }
  target->m_file = std::make_unique<QSaveFile>(path);
  if (target->m_file->open(QIODevice::WriteOnly)) return target;
  return target->failure(Phrase::ofSystem(target->m_file->errorString()));
}

Status OutputTarget::writeToFile(const QByteArray &bytes) {
  // Unbuffered: a buffer would put off a full disk's answer and lose the system's reason.
  qsizetype done = 0;
  while (done < bytes.size()) {
    const auto left = static_cast<size_t>(bytes.size() - done);
    const ssize_t taken = ::write(m_file->handle(), bytes.constData() + done, left);
    if (taken >= 0) {
      done += taken;
    } else if (errno != EINTR) {
      return failure(Phrase::ofSystem(errno));
    }
  }
  return {};
}

Result<qsizetype> OutputTarget::writeSomeToStream(const char *bytes, qsizetype count) {
  pollfd ready{m_stream, POLLOUT, 0};
  if (::poll(&ready, 1, pollMilliseconds) <= 0) return qsizetype{0};
  // A pipe that polls as writable takes PIPE_BUF bytes without blocking, more might block.
  const ssize_t taken = ::write(m_stream, bytes, std::min<qsizetype>(count, PIPE_BUF));
  if (taken >= 0) return qsizetype{taken};
  if (errno == EINTR || errno == EAGAIN) return qsizetype{0};
  return failure(Phrase::ofSystem(errno));
}

Status OutputTarget::commit() {
  if (!m_file || m_file->commit()) return {};
  return failure(Phrase::ofSystem(m_file->errorString()));
}

}  // namespace orvek
