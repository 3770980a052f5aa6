// SPDX-License-Identifier: Apache-2.0
// Blocks of a file, of standard input, or of a pipe.

#include "host/jobs/DocumentReader.h"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "host/jobs/Document.h"
#include "platform/system/OpenStream.h"

namespace orvek {
namespace {

constexpr qint64 blockBytes = 65536;
constexpr int pollMilliseconds = 100;

// Not waiting for a pipe's writer; whether there is something to read is asked each time.
int openStream(const QString &file) {
  if (isStandardInput(file)) return STDIN_FILENO;
  const int number = openStreamNumber(file);
  if (number >= 0) return ::fcntl(number, F_DUPFD_CLOEXEC, 0);
  return ::open(QFile::encodeName(file).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
}

}  // namespace

Result<std::unique_ptr<DocumentReader>> DocumentReader::open(const QString &file) {
  std::unique_ptr<DocumentReader> reader(new DocumentReader(file));
  if (comesOnce(file)) {
    reader->m_stream = openStream(file);
    if (reader->m_stream >= 0) return reader;
    return Failure{FailureKind::Io, file, Phrase::ofSystem(errno)};
  }
  if (reader->m_file.open(QIODevice::ReadOnly)) return reader;
  return Failure{FailureKind::Io, file, Phrase::ofSystem(reader->m_file.errorString())};
}

DocumentReader::~DocumentReader() {
  if (m_stream > STDIN_FILENO) ::close(m_stream);
}

Result<QByteArray> DocumentReader::read() {
  return m_stream >= 0 ? readStream() : readFile();
}

Result<QByteArray> DocumentReader::readFile() {
  QByteArray block(blockBytes, Qt::Uninitialized);
  const qint64 count = m_file.read(block.data(), block.size());
  if (count < 0) return Failure{FailureKind::Io, m_name, Phrase::ofSystem(m_file.errorString())};
  m_atEnd = count == 0;
  block.truncate(count);
  return block;
}

Result<QByteArray> DocumentReader::readStream() {
  pollfd ready{m_stream, POLLIN, 0};
  if (::poll(&ready, 1, pollMilliseconds) <= 0) return QByteArray();
  QByteArray block(blockBytes, Qt::Uninitialized);
  const ssize_t count = ::read(m_stream, block.data(), static_cast<size_t>(block.size()));
  if (count < 0) {
    if (errno == EINTR || errno == EAGAIN) return QByteArray();
    return Failure{FailureKind::Io, documentName(m_name), Phrase::ofSystem(errno)};
  }
  m_atEnd = count == 0;
  block.truncate(count);
  return block;
}

}  // namespace orvek
