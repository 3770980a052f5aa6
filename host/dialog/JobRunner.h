// SPDX-License-Identifier: Apache-2.0
// The window's way to a job: runs it in the background, reads standard input once, and puts its
// progress into words.
#pragma once

#include <QObject>
#include <QString>
#include <memory>

#include "host/jobs/BackgroundJob.h"

namespace orvek {

/// One job at a time; a failed or cancelled one can be tried again.
class JobRunner final : public QObject {
  Q_OBJECT

 public:
  explicit JobRunner(QObject *parent = nullptr);
  ~JobRunner() override;

  /// Starts; does nothing while a job runs. Standard input is kept for a second try.
  void start(const JobRequest &request, const BackgroundJob::Work &work);
  void cancel();
  bool isRunning() const;

 Q_SIGNALS:
  void progressed(const orvek::JobProgress &progress);
  void finished(const orvek::JobOutcome &outcome);
  void failed(const orvek::Failure &failure);

 private:
  struct Spool;

  std::shared_ptr<Spool> m_spool;  // shared with the job's thread
  BackgroundJob *m_job;
};

/// "Printing page 3", "Printing document 2 of 3: 1.2 MB"; what is known of the progress in words.
QString progressInWords(const JobProgress &progress);

}  // namespace orvek
