// SPDX-License-Identifier: Apache-2.0
// What a job is made of, and how whoever waits for it watches and stops it. Plain data.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>

#include "host/jobs/ServerDriver.h"
#include "host/printers/ServerAccess.h"
#include "platform/system/Result.h"

namespace orvek {

/// One job, for a queue or for a file. Plain data that a job's thread gets a copy of; passwords
/// alone are shared.
struct JobRequest {
  /// Documents in order; none, or "-", is standard input.
  QStringList files;
  /// Null: the first document's name, "(stdin)" for standard input.
  QString title;
  /// Null: the user who runs the program.
  QString user;
  /// 1 to 100; 0: not asked for.
  int priority = 0;
  /// Keyword or attribute to its value, neither quoted nor escaped.
  QMap<QString, QString> options;
  /// Into a file: what was saved for the queue that the session is about, and no server adds.
  QMap<QString, QString> saved;
  /// To a queue: options whose value is text even in braces.
  QStringList texts;
  /// To a queue: options saved for it that must not go with the job.
  QStringList overruled;

  /// Into a file: the printer description. To a queue: what is known of its printer; replaced by
  /// the queue's own where the driver matters.
  QString ppdFile;
  /// Into a file: where to; a device is fine, "-" is standard output.
  QString outputFile;

  /// To a queue: its name.
  QString queue;
  /// To a queue: whose saved options to begin with; null: the queue's own.
  QString instance;
  /// To a queue: HOST[:PORT] or a socket's path; null: the server in force.
  QString server;
  /// To a queue: how long its server may keep silent.
  std::chrono::milliseconds patience = serverPatience();
  /// To a queue whose server lacks the driver: the sheets are made here and sent finished. Without
  /// it nothing is sent there, and the outcome says so.
  bool mayMakeSheets = false;
  /// A booklet's: which choice of PageSize its sheets are; null: the job's own paper.
  QString sheetPaper;
  /// To a queue: asked on the job's thread; null: nobody can be asked.
  std::shared_ptr<PasswordSource> passwords;
};

/// How far a job is. Sizes are bytes. Plain data.
struct JobProgress {
  /// The document under way, from 1.
  int document = 1;
  /// How many there are.
  int documents = 1;
  /// Of all documents: sent to the queue, or written to the file.
  qint64 bytes = 0;
  /// What `bytes` will come to; -1 while nobody can know.
  qint64 expected = -1;
  /// Into a file: pages that the filters have reported.
  int pages = 0;
};

/// How a job ended that did not fail. Plain data.
struct JobOutcome {
  /// On a queue; 0 for a job into a file.
  int jobId = 0;
  /// Where it went; null for a file.
  QString queue;
  /// How many documents were taken.
  int documents = 0;
  /// As in JobProgress.
  qint64 bytes = 0;
  /// Of a queue's server. Where it does not work, the sheets were made here, or the job was held
  /// back.
  ServerDriver driver = ServerDriver::Works;
  /// Nothing was sent, and nothing failed: the driver does not work, and whoever asked for the job
  /// has not said that its sheets may be made here.
  bool isHeldBack = false;
  /// Banner pages were asked for and are left out: the server could not print them.
  bool lacksBanners = false;
};

/// Between a running job and whoever waits for it, who owns it until the job has ended. `cancelled`
/// may be set from any thread; `progress` is called on the thread that runs the job, and has no way
/// to fail.
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

/// The options of a request with its priority among them, under the name that CUPS gives it, where
/// it wins over what `options` say; into a file, with what was saved besides.
QMap<QString, QString> effectiveOptions(const JobRequest &request);

/// The documents of a request: its files, or standard input where it names none.
QStringList effectiveFiles(const JobRequest &request);

}  // namespace orvek
