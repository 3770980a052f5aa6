// SPDX-License-Identifier: Apache-2.0
// Blocks of a file, or of standard input.

#include "host/jobs/DocumentReader.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "host/jobs/Document.h"

namespace orvek {
namespace {

constexpr qint64 blockBytes = 65536;
constexpr int pollMilliseconds = 100;

}  // namespace

Result<std::unique_ptr<DocumentReader>> DocumentReader::open(const QString &file) {
  std::unique_ptr<DocumentReader> reader(new DocumentReader(file));
  if (isStandardInput(file) || reader->m_file.open(QIODevice::ReadOnly)) return reader;
  return Failure{FailureKind::Io, file, Phrase::ofSystem(reader->m_file.errorString())};
}

Result<QByteArray> DocumentReader::read() {
  return isStandardInput(m_name) ? readStandardInput() : readFile();
}

Result<QByteArray> DocumentReader::readFile() {
  QByteArray block(blockBytes, Qt::Uninitialized);
  const qint64 count = m_file.read(block.data(), block.size());
  if (count < 0) return Failure{FailureKind::Io, m_name, Phrase::ofSystem(m_file.errorString())};
  m_atEnd = count == 0;
  block.truncate(count);
  return block;
}

Result<QByteArray> DocumentReader::readStandardInput() {
  pollfd ready{STDIN_FILENO, POLLIN, 0};
  if (::poll(&ready, 1, pollMilliseconds) <= 0) return QByteArray();
  QByteArray block(blockBytes, Qt::Uninitialized);
  const ssize_t count = ::read(STDIN_FILENO, block.data(), static_cast<size_t>(block.size()));
  if (count < 0) {
    if (errno == EINTR || errno == EAGAIN) return QByteArray();
    return Failure{FailureKind::Io, documentName(m_name), Phrase::ofSystem(errno)};
  }
  m_atEnd = count == 0;
  block.truncate(count);
  return block;
}

}  // namespace orvek
