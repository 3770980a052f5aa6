// SPDX-License-Identifier: Apache-2.0
// Files are written apart from their place; everything else is a descriptor that is polled.

#include "host/jobs/OutputTarget.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "platform/system/OpenStream.h"

namespace orvek {
namespace {

constexpr int pollMilliseconds = 100;

QString placeOf(const QString &path) {
  return path == QStringLiteral("-") ? QStringLiteral("/dev/stdout") : path;
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
  if (const QString place = placeOf(path); !isReplaceable(place)) {
    target->m_stream = openForWriting(place);
    if (target->m_stream < 0) return target->failure(Phrase::ofSystem(errno));
    return target;
  }
  auto file = WholeFile::begin(path);
  if (!file) return file.failure();
  target->m_file = file.take();
  return target;
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
  return m_file ? m_file->commit() : Status();
}

}  // namespace orvek
