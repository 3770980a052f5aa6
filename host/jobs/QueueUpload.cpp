// SPDX-License-Identifier: Apache-2.0
// Keeps some blocks on the way at once, so that reading and sending go on side by side.

#include "host/jobs/QueueUpload.h"

#include <QFileInfo>

#include "host/jobs/Document.h"

namespace orvek {
namespace {

constexpr const char *queueAddress = "printer-uri-supported";
constexpr qint64 mostWaiting = 1 << 19;
constexpr qsizetype replayedBytes = 65536;
/// How much can be sent again of what comes once.
constexpr qsizetype mostKept = 4 << 20;

qint64 expectedBytes(const QStringList &files) {
  qint64 sum = 0;
  for (const QString &file : files) {
    const qint64 size = documentSize(file);
    if (size < 0) return -1;
    sum += size;
  }
  return sum;
}

// Standard input has no name of its own.
QStringList namesOf(const QStringList &files) {
  QStringList names;
  for (const QString &file : files) {
    names << (isStandardInput(file) ? QString() : QFileInfo(file).fileName());
  }
  return names;
}

QCborMap fieldsOf(const Queue &queue, const JobRequest &request,
                  const QMap<QString, QString> &options) {
  return {{QLatin1String("queue"), fieldOf(queue.name)},
          {QLatin1String("address"), fieldOf(queue.options.value(QLatin1String(queueAddress)))},
          {QLatin1String("title"), fieldOf(effectiveTitle(request))},
          {QLatin1String("options"), fieldOf(options)},
          {QLatin1String("texts"), fieldOf(request.texts)},
          {QLatin1String("documents"), fieldOf(namesOf(effectiveFiles(request)))}};
}

}  // namespace

Result<JobOutcome> QueueUpload::send(const Queue &queue, const JobRequest &request,
                                     const QMap<QString, QString> &options) {
  m_files = effectiveFiles(request);
  m_progress.documents = static_cast<int>(m_files.size());
  m_progress.expected = expectedBytes(m_files);
  m_talk.begin(ServerTask::Send, fieldsOf(queue, request, options));
  while (true) {
    const auto isDone = step();
    if (!isDone) return m_control.cancelled ? jobCancelled() : named(isDone.failure());
    if (isDone.value()) break;
  }
  return JobOutcome{m_jobId, queue.name, m_progress.documents, m_progress.bytes};
}

bool QueueUpload::maySend() const {
  return m_isReading && m_waiting < mostWaiting;
}

// Whether the job is there.
Result<bool> QueueUpload::step() {
  if (maySend()) {
    if (const Status sent = sendNextBlock(); !sent) return sent.failure();
  }
  const auto heard = m_talk.hear(!maySend());
  if (!heard) return heard.failure();
  // Whoever writes the document may take the time they like.
  if (m_isReading && m_waiting == 0) m_talk.beginStep();
  if (!heard.value()) return false;
  if (heard.value()->kind == MessageKind::Answer) return true;
  const Status handled = handle(*heard.value());
  return handled ? Result<bool>(false) : Result<bool>(handled.failure());
}

Status QueueUpload::handle(const Message &message) {
  Fields fields = Fields::of(message.bytes);
  if (message.kind == MessageKind::JobMade) {
    m_jobId = static_cast<int>(fields.number("job"));
    return m_jobId > 0 ? Status() : Status(m_talk.unreadable());
  }
  if (message.kind == MessageKind::DocumentWanted) {
    return beginDocument(static_cast<int>(fields.number("number")));
  }
  const qint64 bytes = fields.number("bytes");
  const bool isTaken = message.kind == MessageKind::Taken && fields.isSound();
  if (!isTaken || bytes <= 0 || bytes > m_waiting) return m_talk.unreadable();
  m_talk.beginStep();
  m_waiting -= bytes;
  m_progress.bytes += bytes;
  m_control.report(m_progress);
  return {};
}

Status QueueUpload::beginDocument(int number) {
  const bool isAgain = number == m_number && number >= 0;
  if (!isAgain && number != m_number + 1) return m_talk.unreadable();
  if (number >= m_files.size()) return m_talk.unreadable();
  if (!isAgain) m_before = m_progress.bytes;
  m_number = number;
  m_progress.document = number + 1;
  m_progress.bytes = m_before;
  m_waiting = 0;
  m_replayed = 0;
  if (const Status opened = openDocument(isAgain); !opened) return opened;
  m_isReading = true;
  m_talk.send({MessageKind::DocumentBegin, {}});
  return {};
}

Status QueueUpload::openDocument(bool isAgain) {
  m_file = m_files[m_number];
  if (isAgain && m_comesOnce) {
    if (m_keepsAll) return {};
    return Failure{FailureKind::Io, documentName(m_file),
                   Phrase(QT_TRANSLATE_NOOP(
                       "orvek::Failure",
                       "the print server wants it once more; print it from a file instead"))};
  }
  m_comesOnce = comesOnce(m_file);
  m_keepsAll = true;
  m_kept = isStandardInput(m_file) ? m_beginOfInput : QByteArray();
  auto reader = DocumentReader::open(m_file);
  if (!reader) return reader.failure();
  m_reader = reader.take();
  return {};
}

Status QueueUpload::sendNextBlock() {
  if (m_replayed < m_kept.size()) {
    const QByteArray block = m_kept.mid(m_replayed, replayedBytes);
    m_replayed += block.size();
    sendBlock(block);
    return {};
  }
  if (!m_reader->atEnd()) {
    const auto block = m_reader->read();
    if (!block) return block.failure();
    if (m_comesOnce) keep(block.value());
    if (!block.value().isEmpty()) sendBlock(block.value());
  }
  if (m_reader->atEnd()) {
    m_isReading = false;
    m_talk.send({MessageKind::DocumentEnd, {}});
  }
  return {};
}

void QueueUpload::sendBlock(const QByteArray &block) {
  m_waiting += block.size();
  m_talk.send({MessageKind::Block, block});
}

void QueueUpload::keep(const QByteArray &block) {
  if (m_keepsAll) m_kept += block;
  m_keepsAll = m_keepsAll && m_kept.size() <= mostKept;
  if (!m_keepsAll) m_kept.clear();
  m_replayed = m_kept.size();
}

// The helper leaves it open what a failure of a document is about.
Failure QueueUpload::named(const Failure &failure) const {
  if (!failure.what.isEmpty()) return failure;
  return {failure.kind, documentName(m_file), failure.why};
}

}  // namespace orvek
