// SPDX-License-Identifier: Apache-2.0
// Prints into a file through the CUPS filters of this machine; needs no print server.
#pragma once

#include "host/jobs/JobRequest.h"
#include "platform/system/Result.h"

namespace orvek {

/// Runs the request's documents through the filter chain of `request.ppdFile`, one after the other,
/// and writes the device-ready bytes to `request.outputFile`: a file appears whole or not at all.
/// Blocks; for a window run it through BackgroundJob. Every option goes to the filters as it is,
/// whether or not the PPD knows it. Memory does not grow with the documents.
///
/// Failures: the PPD, a document or the output can't be opened; the filter tool is not installed; a
/// document's type is unknown, it is empty, has no page of those asked for, or is the output file
/// itself; a filter failed (its own last words); the disk is full; cancelled.
Result<JobOutcome> printThroughFilters(const JobRequest &request, JobControl &control);

/// What is looked at before a job into a file begins: its PPD, its documents, and that it is not
/// written over one of them.
Status checkIntoFile(const JobRequest &request);

/// Whether `file`, which stands for the document of this name, can be printed and has any of the
/// pages asked for.
Status checkPagesOf(const QString &file, const Phrase &name, const JobRequest &request,
                    const JobControl &control);

/// The filter tool's path, or a null string where it is not installed. `searchPath` as in PATH; the
/// administrator's folders are searched as well, as a user's PATH often lacks them.
QString findFilterTool(const QString &searchPath);

/// The same by this program's PATH; fails where it is not installed.
Result<QString> requiredFilterTool();

}  // namespace orvek
