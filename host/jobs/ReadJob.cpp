// SPDX-License-Identifier: Apache-2.0
// Puts files in the place of documents, and documents' names in the place of theirs.

#include "host/jobs/ReadJob.h"

#include "host/jobs/Document.h"

namespace orvek {

JobRequest ReadJob::onFiles() const {
  JobRequest job = request;
  job.title = effectiveTitle(request);
  job.files = files;
  return job;
}

Failure ReadJob::named(Failure failure) const {
  const qsizetype document = files.indexOf(failure.what);
  if (document >= 0) failure.what = documentName(effectiveFiles(request).value(document));
  return failure;
}

}  // namespace orvek
