// SPDX-License-Identifier: Apache-2.0
// The sheets of a job as a PDF, made by the filters and the driver of this machine.
#pragma once

#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// One document on its way to sheets. Plain data.
struct OneDocument {
  /// As the request names it.
  QString document;
  /// Where its bytes are.
  QString file;
  QString output;

  Phrase name() const;
};

/// The job as filters on this machine get it; all of its options are the request's.
JobRequest jobForFilters(const JobRequest &request);

/// The same for sheets, which are not repeated: whoever prints them makes the copies.
JobRequest jobForSheets(const JobRequest &request);

/// Makes a PDF of the document's sheets: of a booklet's where the request asks for one, else as the
/// filters place its pages. Blocks. Failures: those of the filters; the driver is not on this
/// machine; the output can't be written; cancelled.
Status makeSheets(const OneDocument &document, const JobRequest &request, JobControl &control);

/// Prints into one PDF that has the sheets of all documents, under the request's outputFile.
/// Blocks. Failures: those of printThroughFilters, and of makeSheets.
Result<JobOutcome> printIntoPdf(const JobRequest &request, JobControl &control);

}  // namespace orvek
