// SPDX-License-Identifier: Apache-2.0
// Hands a session's settings to those who print.

#include "host/cli/PrintJob.h"

#include "host/jobs/FilterChain.h"

namespace orvek {
namespace {

Status printIntoFile(const JobRequest &request) {
  JobControl control;
  const Result<JobOutcome> outcome = printThroughFilters(request, control);
  return outcome ? Status() : outcome.failure();
}

}  // namespace

JobRequest jobRequestFor(const CommandLine &line, const PrintSession &session) {
  JobRequest request;
  request.files = line.files;
  request.title = line.title;
  request.user = line.user;
  request.priority = line.priority.value_or(0);
  request.options = session.jobOptions();
  request.ppdFile = session.printer() ? session.printer()->path() : QString();
  request.outputFile = line.output;
  request.server = line.server;
  return request;
}

Status printAsAsked(const CommandLine &line, const PrintSession &session) {
  if (!line.output.isNull()) return printIntoFile(jobRequestFor(line, session));
  if (!line.print) return {};
  return Failure{FailureKind::Io, QStringLiteral("--print"),
                 QStringLiteral("a job needs a print queue; use --output with --ppd")};
}

}  // namespace orvek
