// SPDX-License-Identifier: Apache-2.0
// A job in the background reports, ends and can be cancelled, without the event loop ever waiting.

#include "host/jobs/BackgroundJob.h"

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QThread>

namespace orvek {
namespace {

constexpr int kPatience = 5000;

Result<JobOutcome> untilCancelled(const JobRequest &, JobControl &control) {
  while (!control.cancelled) QThread::msleep(1);
  return Failure{FailureKind::Io, QStringLiteral("job"), QStringLiteral("cancelled")};
}

TEST(BackgroundJob, TellsItsOutcomeOnTheOwnersThread) {
  BackgroundJob job;
  QThread *heardOn = nullptr;
  int id = 0;
  QObject::connect(&job, &BackgroundJob::finished, &job, [&](const JobOutcome &outcome) {
    heardOn = QThread::currentThread();
    id = outcome.jobId;
  });
  QSignalSpy finished(&job, &BackgroundJob::finished);
  job.start({}, [](const JobRequest &, JobControl &) { return JobOutcome{7, {}, 1, 0}; });
  ASSERT_TRUE(finished.wait(kPatience));
  EXPECT_EQ(heardOn, QThread::currentThread());
  EXPECT_EQ(id, 7);
  EXPECT_FALSE(job.isRunning());
}

TEST(BackgroundJob, ReportsProgressFarLessOftenThanBlocksComeIn) {
  BackgroundJob job;
  QSignalSpy progressed(&job, &BackgroundJob::progressed);
  QSignalSpy finished(&job, &BackgroundJob::finished);
  job.start({}, [](const JobRequest &, JobControl &control) {
    for (int i = 0; i < 10000; ++i) control.report({});
    return JobOutcome{};
  });
  ASSERT_TRUE(finished.wait(kPatience));
  EXPECT_GE(progressed.count(), 1);
  EXPECT_LT(progressed.count(), 1000);
}

TEST(BackgroundJob, FailsAsCancelledOnceAskedTo) {
  BackgroundJob job;
  QSignalSpy failed(&job, &BackgroundJob::failed);
  job.start({}, untilCancelled);
  EXPECT_TRUE(job.isRunning());
  job.cancel();
  ASSERT_TRUE(failed.wait(kPatience));
  EXPECT_EQ(failed.takeFirst().at(0).value<Failure>().why, QStringLiteral("cancelled"));
}

TEST(BackgroundJob, MayBeDestroyedWhileItRuns) {
  auto job = std::make_unique<BackgroundJob>();
  job->start({}, untilCancelled);
  job.reset();
}

TEST(BackgroundJob, CanBeStartedAgainAfterItsEnd) {
  BackgroundJob job;
  QSignalSpy finished(&job, &BackgroundJob::finished);
  const auto work = [](const JobRequest &, JobControl &) { return JobOutcome{}; };
  job.start({}, work);
  ASSERT_TRUE(finished.wait(kPatience));
  job.start({}, work);
  ASSERT_TRUE(finished.wait(kPatience));
}

}  // namespace
}  // namespace orvek
