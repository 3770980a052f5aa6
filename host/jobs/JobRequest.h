// SPDX-License-Identifier: Apache-2.0
// What a job is made of, and how whoever waits for it watches and stops it. Plain data.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>

#include "host/printers/ServerAccess.h"
#include "platform/system/Result.h"

namespace orvek {

/// One job, for a queue or for a file.
struct JobRequest {
  QStringList files;   ///< documents in order; none, or "-", is standard input
  QString title;       ///< null: the first document's name, "(stdin)" for standard input
  QString user;        ///< null: the user who runs the program
  int copies = 0;      ///< 0: not asked for
  int priority = 0;    ///< 1 to 100; 0: not asked for
  QString pageRanges;  ///< "1-3,7"; null: all
  QMap<QString, QString>
      options;            ///< keyword or attribute to its value, neither quoted nor escaped
  QStringList texts;      ///< to a queue: options whose value is text even in braces
  QStringList overruled;  ///< to a queue: options saved for it that must not go with the job

  QString ppdFile;     ///< into a file: the printer description
  QString outputFile;  ///< into a file: where to; a device is fine, "-" is standard output

  QString queue;     ///< to a queue: its name
  QString instance;  ///< to a queue: whose saved options to begin with; null: the queue's own
  QString server;    ///< to a queue: HOST[:PORT] or a socket's path; null: the server in force
  std::chrono::milliseconds patience =
      kServerPatience;  ///< to a queue: how long its server may keep silent
  std::shared_ptr<PasswordSource>
      passwords;  ///< to a queue: asked on the job's thread; null: nobody can be asked
};

/// How far a job is. Sizes are bytes.
struct JobProgress {
  int document = 1;      ///< the document under way, from 1
  int documents = 1;     ///< how many there are
  qint64 bytes = 0;      ///< of all documents: sent to the queue, or written to the file
  qint64 expected = -1;  ///< what `bytes` will come to; -1 while nobody can know
  int pages = 0;         ///< into a file: pages that the filters have reported
};

/// How a job ended that did not fail.
struct JobOutcome {
  int jobId = 0;      ///< on a queue; 0 for a job into a file
  QString queue;      ///< where it went; null for a file
  int documents = 0;  ///< how many documents were taken
  qint64 bytes = 0;   ///< as in JobProgress
};

/// Between a running job and whoever waits for it. `cancelled` may be set from any thread;
/// `progress` is called on the thread that runs the job.
struct JobControl {
  std::atomic<bool> cancelled = false;
  std::function<void(const JobProgress &)> progress;

  void report(const JobProgress &now) const {
    if (progress) progress(now);
  }
};

/// The failure of a job that was cancelled.
Failure jobCancelled();

/// The title that a request without one gets.
QString effectiveTitle(const JobRequest &request);

/// The options of a request with copies, page ranges and priority among them, under the names that
/// CUPS gives them. What the fields say wins over `options`.
QMap<QString, QString> effectiveOptions(const JobRequest &request);

/// The documents of a request: its files, or standard input where it names none.
QStringList effectiveFiles(const JobRequest &request);

}  // namespace orvek
