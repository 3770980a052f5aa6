// SPDX-License-Identifier: Apache-2.0
// Copies block by block.

#include "host/jobs/InputSpool.h"

#include <QDir>

#include "host/jobs/DocumentReader.h"

namespace orvek {
namespace {

Status writeBlock(QTemporaryFile &file, const QByteArray &block) {
  if (file.write(block) == block.size() && file.flush()) return {};
  return Failure{FailureKind::Io, QDir::tempPath(), Phrase::ofSystem(file.errorString())};
}

Status copyInto(QTemporaryFile &file, const QString &document, const QByteArray &begin,
                const JobControl &control) {
  auto reader = DocumentReader::open(document);
  if (!reader) return reader.failure();
  if (Status written = writeBlock(file, begin); !written) return written;
  while (!control.cancelled) {
    const auto block = reader.value()->read();
    if (!block) return block.failure();
    if (Status written = writeBlock(file, block.value()); !written) return written;
    if (reader.value()->atEnd()) return {};
  }
  return jobCancelled();
}

Result<std::unique_ptr<QTemporaryFile>> spool(const QString &document, const QByteArray &begin,
                                              const JobControl &control) {
  // Without a suffix: the type is to be found from the contents, not from a name that we made up.
  auto file = std::make_unique<QTemporaryFile>(QDir::tempPath() + QStringLiteral("/orvek-XXXXXX"));
  if (!file->open()) {
    return Failure{FailureKind::Io, QDir::tempPath(), Phrase::ofSystem(file->errorString())};
  }
  if (Status copied = copyInto(*file, document, begin, control); !copied) return copied.failure();
  if (file->size() > 0) return file;
  return emptyDocument(document);
}

}  // namespace

Status InputSpool::fill(const JobControl &control, const QByteArray &begin) {
  if (m_file) return {};
  if (m_isBroken) {
    return Failure{
        FailureKind::Io, documentName(m_document),
        Phrase(QT_TRANSLATE_NOOP("orvek::Failure",
                                 "only a part of it was read before the job was cancelled"))};
  }
  auto spooled = spool(m_document, begin, control);
  m_isBroken = !spooled;
  if (!spooled) return spooled.failure();
  m_file = spooled.take();
  return {};
}

Result<QStringList> DocumentFiles::of(const QStringList &documents, const JobControl &control,
                                      const QByteArray &beginOfStandardInput) {
  QStringList files;
  for (const QString &document : documents) {
    if (!comesOnce(document)) {
      files << document;
      continue;
    }
    InputSpool &copy = m_copies.try_emplace(document, document).first->second;
    const QByteArray begin = isStandardInput(document) ? beginOfStandardInput : QByteArray();
    if (const Status filled = copy.fill(control, begin); !filled) return filled.failure();
    files << copy.path();
  }
  return files;
}

}  // namespace orvek
