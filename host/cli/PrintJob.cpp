// SPDX-License-Identifier: Apache-2.0
// Hands a session's settings to those who print.

#include "host/cli/PrintJob.h"

#include "host/cli/Console.h"
#include "host/jobs/DocumentInfo.h"
#include "host/jobs/FilterChain.h"
#include "host/jobs/QueueJob.h"
#include "host/jobs/ReadJob.h"
#include "host/printers/Queue.h"
#include "host/session/JobWarnings.h"

namespace orvek {
namespace {

Status printIntoFile(const ReadJob &job) {
  JobControl control;
  const Result<JobOutcome> outcome = printThroughFilters(job.onFiles(), control);
  return outcome ? Status() : job.named(outcome.failure());
}

// The state as JSON must stay all there is on the standard output.
Status tellJob(const CommandLine &line, const QString &words) {
  if (line.silent) return {};
  if (!line.inspect && !line.summary) return writeLines({words});
  tell(words);
  return {};
}

void tellDriver(const JobOutcome &outcome) {
  if (outcome.driver == ServerDriver::Works) return;
  const QString lost = QLatin1String(outcome.lacksBanners ? ", without banner pages" : "");
  tell(QStringLiteral("%1: %2; the sheets were made here and sent finished%3")
           .arg(outcome.queue, lackOfDriver(outcome.driver), lost));
}

Status printOnQueue(const CommandLine &line, const ReadJob &job) {
  JobControl control;
  // Nobody can be asked, and without its sheets the job would not be what was asked for.
  JobRequest whole = job.onFiles();
  whole.mayMakeSheets = true;
  const Result<JobOutcome> outcome = submitToQueue(whole, control);
  if (!outcome) return job.named(outcome.failure());
  tellDriver(outcome.value());
  return tellJob(line, requestIdLine(job.request, outcome.value()));
}

// Only one document's pages are sure to end up in one set. That it has none of those asked for is
// said by the job itself, which fails.
int pagesOfOneSet(const PrintSession &session, const JobRequest &request) {
  const bool matters = warningsDependOnPages(session.marks(), session.ticket().values());
  return matters && request.files.size() == 1 ? documentInfo(request.files.first()).pages : 0;
}

void tellWarnings(const PrintSession &session, const JobRequest &request) {
  const int pages = pagesOfOneSet(session, request);
  for (const QString &warning : jobWarnings(session, pages)) tell(warning);
}

}  // namespace

JobRequest jobRequestFor(const CommandLine &line, PrintSession &session,
                         const std::shared_ptr<PasswordSource> &passwords) {
  JobRequest request;
  request.files = line.files;
  request.title = line.title;
  request.user = line.user;
  request.priority = line.priority.value_or(0);
  request.options = session.job().options();
  request.saved = session.job().savedOptions(request.options);
  request.overruled = session.job().overruledOptions();
  request.texts = session.job().optionsWithCustomValues();
  request.sheetPaper = session.job().sheetPaper();
  request.ppdFile = session.origin().printer ? session.origin().printer->path() : QString();
  request.outputFile = line.output;
  const Destination destination = destinationFrom(session.origin().destination);
  request.queue = destination.queue;
  request.instance = destination.instance;
  request.server = line.server;
  request.passwords = passwords;
  return request;
}

Status printAsAsked(const CommandLine &line, PrintSession &session, const QStringList &files,
                    const std::shared_ptr<PasswordSource> &passwords) {
  if (line.output.isNull() && !line.print) return {};
  const ReadJob job{jobRequestFor(line, session, passwords), files};
  tellWarnings(session, job.request);
  return line.output.isNull() ? printOnQueue(line, job) : printIntoFile(job);
}

}  // namespace orvek
