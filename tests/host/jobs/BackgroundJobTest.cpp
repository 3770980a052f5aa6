// SPDX-License-Identifier: Apache-2.0
// A job in the background reports, ends and can be cancelled, without the event loop ever waiting.

#include "host/jobs/BackgroundJob.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <QDir>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <QThread>

#include "host/jobs/FilterChain.h"
#include "tests/support/CapturingFilter.h"
#include "tests/support/Descendants.h"
#include "tests/support/Printers.h"
#include "tests/support/StandardInput.h"

namespace orvek::test {
namespace {

constexpr int patience = 5000;

// Nothing of it is standard input.
JobRequest requestForAFile() {
  JobRequest request;
  request.files = QStringList{QStringLiteral("report.pdf")};
  return request;
}

const JobRequest request = requestForAFile();

Result<JobOutcome> untilCancelled(const JobRequest &, JobControl &control) {
  while (!control.cancelled) QThread::msleep(1);
  return jobCancelled();
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
  job.start(request, [](const JobRequest &, JobControl &) { return JobOutcome{7, {}, 1, 0}; });
  ASSERT_TRUE(finished.wait(patience));
  EXPECT_EQ(heardOn, QThread::currentThread());
  EXPECT_EQ(id, 7);
  EXPECT_FALSE(job.isRunning());
}

TEST(BackgroundJob, ReportsProgressFarLessOftenThanBlocksComeIn) {
  BackgroundJob job;
  QSignalSpy progressed(&job, &BackgroundJob::progressed);
  QSignalSpy finished(&job, &BackgroundJob::finished);
  job.start(request, [](const JobRequest &, JobControl &control) {
    for (int i = 0; i < 10000; ++i) control.report({});
    return JobOutcome{};
  });
  ASSERT_TRUE(finished.wait(patience));
  EXPECT_GE(progressed.count(), 1);
  EXPECT_LT(progressed.count(), 1000);
}

TEST(BackgroundJob, FailsAsCancelledOnceAskedTo) {
  BackgroundJob job;
  QSignalSpy failed(&job, &BackgroundJob::failed);
  job.start(request, untilCancelled);
  EXPECT_TRUE(job.isRunning());
  job.cancel();
  ASSERT_TRUE(failed.wait(patience));
  const auto failure = failed.takeFirst().at(0).value<Failure>();
  EXPECT_EQ(failure.kind, FailureKind::Cancelled);
  EXPECT_EQ(failure.why, QStringLiteral("cancelled"));
}

TEST(BackgroundJob, MayBeDestroyedWhileItRuns) {
  auto job = std::make_unique<BackgroundJob>();
  job->start(request, untilCancelled);
  job.reset();
}

TEST(BackgroundJob, CanBeStartedAgainAfterItsEnd) {
  BackgroundJob job;
  QSignalSpy finished(&job, &BackgroundJob::finished);
  const auto work = [](const JobRequest &, JobControl &) { return JobOutcome{}; };
  job.start(request, work);
  ASSERT_TRUE(finished.wait(patience));
  job.start(request, work);
  ASSERT_TRUE(finished.wait(patience));
}

TEST(BackgroundJob, LeavesNoFilterAndNoFileBehindWhenCancelled) {
  const QTemporaryDir temporary;
  const QByteArray before = qgetenv("TMPDIR");
  const CapturingFilter filter(
      QStringLiteral("trap '' TERM INT HUP\n(setsid sleep 61 &)\nwhile :; do sleep 1; done"));
  qputenv("TMPDIR", temporary.path().toUtf8());
  const Descendants descendants;
  const QByteArrayList others = descendants.names();
  JobRequest printing;
  printing.files = QStringList{QStringLiteral(ORVEK_SOURCE_DIR "/samples/Finishing-Sample.ps")};
  printing.ppdFile = filter.ppdFile();
  printing.outputFile = temporary.filePath(QStringLiteral("out.ps"));
  BackgroundJob job;
  QSignalSpy failed(&job, &BackgroundJob::failed);
  job.start(printing, printThroughFilters);
  ASSERT_TRUE(descendants.waitFor("capture"));
  job.cancel();
  ASSERT_TRUE(failed.wait(patience));
  qputenv("TMPDIR", before);
  EXPECT_EQ(failed.takeFirst().at(0).value<Failure>().kind, FailureKind::Cancelled);
  // At once: the job has waited for them.
  EXPECT_EQ(descendants.names(), others);
  EXPECT_EQ(QDir(temporary.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
            QStringList());
}

class BackgroundJobWithInput : public ::testing::Test {
 protected:
  // What the work finds in the documents' place, of a job that reads standard input.
  QByteArray printed() {
    QByteArray contents;
    QSignalSpy finished(&job, &BackgroundJob::finished);
    job.start({}, [&contents](const JobRequest &given, JobControl &) {
      contents = contentsOf(given.files.value(0)) + ' ' + given.title.toUtf8();
      return JobOutcome{};
    });
    EXPECT_TRUE(finished.wait(patience));
    return contents;
  }

  BackgroundJob job;
};

TEST_F(BackgroundJobWithInput, IsGivenItAgainAtTheSecondTry) {
  QTemporaryFile input;
  ASSERT_TRUE(input.open());
  input.write("once");
  input.flush();
  const StandardInput redirected(input.fileName());
  EXPECT_EQ(printed(), "once (stdin)");
  EXPECT_EQ(printed(), "once (stdin)");
}

TEST_F(BackgroundJobWithInput, IsCalledByItsOwnNameInAFailure) {
  const StandardInput input(QByteArray("odd"));
  QSignalSpy failed(&job, &BackgroundJob::failed);
  job.start({}, [](const JobRequest &given, JobControl &) -> Result<JobOutcome> {
    return Failure{FailureKind::Io, given.files.value(0), QStringLiteral("its type is unknown")};
  });
  ASSERT_TRUE(failed.wait(patience));
  EXPECT_EQ(failed.takeFirst().at(0).value<Failure>().line(),
            QStringLiteral("standard input: its type is unknown"));
}

TEST_F(BackgroundJobWithInput, IsCancelledWhileNothingComesIn) {
  int ends[2];
  ASSERT_EQ(::pipe(ends), 0);
  const StandardInput redirected(QStringLiteral("/dev/fd/%1").arg(ends[0]));
  QSignalSpy failed(&job, &BackgroundJob::failed);
  job.start({}, untilCancelled);
  job.cancel();
  ASSERT_TRUE(failed.wait(patience));
  EXPECT_EQ(failed.takeFirst().at(0).value<Failure>().kind, FailureKind::Cancelled);
  job.start({}, untilCancelled);
  ASSERT_TRUE(failed.wait(patience));
  EXPECT_EQ(failed.takeFirst().at(0).value<Failure>().line(),
            "standard input: only a part of it was read before the job was cancelled");
  ::close(ends[0]);
  ::close(ends[1]);
}

}  // namespace
}  // namespace orvek::test
