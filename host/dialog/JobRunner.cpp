// SPDX-License-Identifier: Apache-2.0
// A background job with a document that can be read only once made readable again.

#include "host/dialog/JobRunner.h"

#include <QLocale>
#include <QTemporaryFile>
#include <algorithm>

#include "host/jobs/Document.h"

namespace orvek {
namespace {

const QString standardInput = QStringLiteral("-");

bool readsStandardInput(const JobRequest &request) {
  return effectiveFiles(request).contains(standardInput);
}

}  // namespace

/// Standard input, kept; used by the job's thread alone, and one job follows the other.
struct JobRunner::Spool {
  std::unique_ptr<QTemporaryFile> file;
  bool isBroken = false;

  Status fill(const JobControl &control) {
    if (file) return {};
    if (isBroken) {
      return Failure{FailureKind::Io, documentName(standardInput),
                     JobRunner::tr("only a part of it was read before the job was cancelled")};
    }
    Result<std::unique_ptr<QTemporaryFile>> spooled = spoolStandardInput(control);
    isBroken = !spooled || control.cancelled;
    if (!spooled) return spooled.failure();
    if (!isBroken) file = spooled.take();
    return {};
  }

  JobRequest withFile(JobRequest request) const {
    request.title = effectiveTitle(request);
    request.files = effectiveFiles(request);
    if (file)
      std::replace(request.files.begin(), request.files.end(), standardInput, file->fileName());
    return request;
  }
};

JobRunner::JobRunner(QObject *parent)
    : QObject(parent), m_spool(std::make_shared<Spool>()), m_job(new BackgroundJob(this)) {
  connect(m_job, &BackgroundJob::progressed, this, &JobRunner::progressed);
  connect(m_job, &BackgroundJob::finished, this, &JobRunner::finished);
  connect(m_job, &BackgroundJob::failed, this, &JobRunner::failed);
}

JobRunner::~JobRunner() = default;

void JobRunner::start(const JobRequest &request, const BackgroundJob::Work &work) {
  if (!readsStandardInput(request)) {
    m_job->start(request, work);
    return;
  }
  m_job->start(
      request,
      [spool = m_spool, work](const JobRequest &asked, JobControl &control) -> Result<JobOutcome> {
        if (const Status filled = spool->fill(control); !filled) return filled.failure();
        return work(spool->withFile(asked), control);
      });
}

void JobRunner::cancel() {
  m_job->cancel();
}

bool JobRunner::isRunning() const {
  return m_job->isRunning();
}

QString progressInWords(const JobProgress &progress) {
  if (progress.pages == 0 && progress.bytes == 0) return JobRunner::tr("Printing…");
  const QString amount = progress.pages > 0 ? JobRunner::tr("page %1").arg(progress.pages)
                                            : QLocale().formattedDataSize(progress.bytes, 1);
  if (progress.documents < 2) return JobRunner::tr("Printing: %1").arg(amount);
  return JobRunner::tr("Printing document %1 of %2: %3")
      .arg(progress.document)
      .arg(progress.documents)
      .arg(amount);
}

}  // namespace orvek
