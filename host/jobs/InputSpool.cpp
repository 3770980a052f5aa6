// SPDX-License-Identifier: Apache-2.0
// Copies standard input block by block.

#include "host/jobs/InputSpool.h"

#include <QDir>

#include "host/jobs/Document.h"
#include "host/jobs/DocumentReader.h"

namespace orvek {
namespace {

Status writeBlock(QTemporaryFile &file, const QByteArray &block) {
  if (file.write(block) == block.size() && file.flush()) return {};
  return Failure{FailureKind::Io, QDir::tempPath(), Phrase::ofSystem(file.errorString())};
}

Status copyInto(QTemporaryFile &file, const JobControl &control) {
  auto reader = DocumentReader::open(standardInput());
  if (!reader) return reader.failure();
  while (!control.cancelled) {
    const auto block = reader.value()->read();
    if (!block) return block.failure();
    if (Status written = writeBlock(file, block.value()); !written) return written;
    if (reader.value()->atEnd()) return {};
  }
  return jobCancelled();
}

Result<std::unique_ptr<QTemporaryFile>> spool(const JobControl &control) {
  // Without a suffix: the type is to be found from the contents, not from a name that we made up.
  auto file = std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/orvek-XXXXXX"));
  if (!file->open()) {
    return Failure{FailureKind::Io, QDir::tempPath(), Phrase::ofSystem(file->errorString())};
  }
  if (Status copied = copyInto(*file, control); !copied) return copied.failure();
  if (file->size() > 0) return file;
  return Failure{
      FailureKind::Io, documentName(standardInput()),
      Phrase(QT_TRANSLATE_NOOP("orvek::Failure", "is empty, so there is nothing to print"))};
}

}  // namespace

Status InputSpool::fill(const JobControl &control) {
  if (m_file) return {};
  if (m_isBroken) {
    return Failure{
        FailureKind::Io, documentName(standardInput()),
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                 "only a part of it was read before the job was cancelled"))};
  }
  auto spooled = spool(control);
  m_isBroken = !spooled;
  if (!spooled) return spooled.failure();
  m_file = spooled.take();
  return {};
}

}  // namespace orvek
