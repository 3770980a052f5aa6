// SPDX-License-Identifier: Apache-2.0
// Blocks of a file, or of standard input.

#include "host/jobs/DocumentReader.h"

#include "host/jobs/Document.h"

namespace orvek {
namespace {

constexpr qint64 kBlock = 65536;

}  // namespace

Result<std::unique_ptr<DocumentReader>> DocumentReader::open(const QString &file) {
  std::unique_ptr<DocumentReader> reader(new DocumentReader(file));
  if (file != QStringLiteral("-") && !reader->m_file.open(QIODevice::ReadOnly))
    return Failure{FailureKind::Io, file, reader->m_file.errorString()};
  return reader;
}

Result<QByteArray> DocumentReader::read() {
  return m_name == QStringLiteral("-") ? readStandardInputBlock() : readFile();
}

Result<QByteArray> DocumentReader::readFile() {
  QByteArray block(kBlock, Qt::Uninitialized);
  const qint64 count = m_file.read(block.data(), block.size());
  if (count < 0) return Failure{FailureKind::Io, m_name, m_file.errorString()};
  m_atEnd = count == 0;
  block.truncate(count);
  return block;
}

Result<QByteArray> DocumentReader::readStandardInputBlock() {
  QByteArray block(kBlock, Qt::Uninitialized);
  const auto count = readStandardInput(block.data(), block.size());
  if (!count) return count.failure();
  m_atEnd = count.value() == 0;
  block.truncate(std::max<qint64>(count.value(), 0));
  return block;
}

}  // namespace orvek
