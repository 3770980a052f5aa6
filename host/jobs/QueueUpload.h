// SPDX-License-Identifier: Apache-2.0
// A job's documents on their way to a queue, block by block.
#pragma once

#include <memory>

#include "host/jobs/DocumentReader.h"
#include "host/jobs/JobRequest.h"
#include "host/printers/Queue.h"
#include "host/printers/ServerTalk.h"

namespace orvek {

/// Makes one job and sends what belongs to it. Borrows the talk and the control; owns the document
/// that it reads, of which it holds a few blocks, and the beginning of one whose bytes come once,
/// so that it can be sent again. Use it once, on one thread.
class QueueUpload {
 public:
  /// `begin`: what has been read of standard input already.
  QueueUpload(ServerTalk &talk, JobControl &control, const QByteArray &begin)
      : m_talk(talk), m_control(control), m_beginOfInput(begin) {}

  /// Sends the request's documents, with these options, to a queue that was found. There is no
  /// limit on how long that takes as long as the server takes them.
  Result<JobOutcome> send(const Queue &queue, const JobRequest &request,
                          const QMap<QString, QString> &options);

  /// 0: none has been made.
  int jobId() const { return m_jobId; }

 private:
  bool maySend() const;
  Result<bool> step();
  Status handle(const Message &message);
  Status beginDocument(int number);
  Status openDocument(bool isAgain);
  Status sendNextBlock();
  void sendBlock(const QByteArray &block);
  void keep(const QByteArray &block);
  Failure named(const Failure &failure) const;

  ServerTalk &m_talk;
  JobControl &m_control;
  QByteArray m_beginOfInput;
  QStringList m_files;
  QString m_file;
  /// The document under way; null: none yet.
  std::unique_ptr<DocumentReader> m_reader;
  bool m_isReading = false;
  bool m_comesOnce = false;
  /// Of a document whose bytes come once: the beginning, as far as it is kept.
  QByteArray m_kept;
  /// Whether that is all that was read of it.
  bool m_keepsAll = true;
  /// How much of what is kept has been sent in this attempt.
  qsizetype m_replayed = 0;
  /// The document's, from 0.
  int m_number = -1;
  int m_jobId = 0;
  JobProgress m_progress;
  /// Bytes of the documents before this one.
  qint64 m_before = 0;
  /// Sent to the helper, and not yet taken by the server.
  qint64 m_waiting = 0;
};

}  // namespace orvek
