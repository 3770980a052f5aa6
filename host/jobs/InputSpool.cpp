// SPDX-License-Identifier: Apache-2.0
// Copies block by block.

#include "host/jobs/InputSpool.h"

#include "host/jobs/DocumentReader.h"

namespace orvek {
namespace {

constexpr std::chrono::milliseconds patience{100};

Status copyInto(ScratchFile &file, const QString &document, const QByteArray &begin,
                const std::atomic<bool> &cancelled) {
  auto reader = DocumentReader::open(document);
  if (!reader) return reader.failure();
  if (Status written = file.add(begin); !written) return written;
  while (!cancelled) {
    const auto block = reader.value()->read();
    if (!block) return block.failure();
    if (Status written = file.add(block.value()); !written) return written;
    if (reader.value()->atEnd()) return {};
  }
  return jobCancelled();
}

Result<std::unique_ptr<ScratchFile>> spool(const QString &document, const QByteArray &begin,
                                           const std::atomic<bool> &cancelled) {
  // Without a suffix: the type is to be found from the contents, not from a name that we made up.
  auto file = ScratchFile::create();
  if (!file) return file;
  const Status copied = copyInto(*file.value(), document, begin, cancelled);
  if (!copied) return copied.failure();
  if (file.value()->size() > 0) return file;
  return emptyDocument(document);
}

}  // namespace

Status InputSpool::fill(const std::atomic<bool> &cancelled, const QByteArray &begin) {
  if (m_file) return {};
  if (m_broken) return *m_broken;
  auto spooled = spool(m_document, begin, cancelled);
  if (spooled) {
    m_file = spooled.take();
    return {};
  }
  m_broken = spooled.failure();
  if (m_broken->kind == FailureKind::Cancelled) {
    m_broken =
        Failure{FailureKind::Io, documentName(m_document),
                Phrase(QT_TRANSLATE_NOOP(
                    "orvek::Failure", "only a part of it was read before the job was cancelled"))};
  }
  return spooled.failure();
}

Result<QStringList> DocumentFiles::of(const QStringList &documents,
                                      const std::atomic<bool> &cancelled,
                                      const QByteArray &beginOfStandardInput) {
  while (!m_mutex.try_lock_for(patience)) {
    if (cancelled) return jobCancelled();
  }
  const std::lock_guard<std::timed_mutex> lock(m_mutex, std::adopt_lock);
  QStringList files;
  for (const QString &document : documents) {
    if (const auto other = m_replaced.find(document); other != m_replaced.end()) {
      files << other->second->path();
      continue;
    }
    if (!comesOnce(document)) {
      files << document;
      continue;
    }
    InputSpool &copy = m_copies.try_emplace(document, document).first->second;
    const QByteArray begin = isStandardInput(document) ? beginOfStandardInput : QByteArray();
    if (const Status filled = copy.fill(cancelled, begin); !filled) return filled.failure();
    files << copy.path();
  }
  return files;
}

void DocumentFiles::replace(const QString &document, std::shared_ptr<ScratchFile> file) {
  const std::lock_guard<std::timed_mutex> lock(m_mutex);
  m_replaced[document] = std::move(file);
}

}  // namespace orvek
