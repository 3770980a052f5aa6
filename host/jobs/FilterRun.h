// SPDX-License-Identifier: Apache-2.0
// One program of filters at work for a job: started, its output carried to where it belongs, its
// messages understood, ended with the job.
#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

#include "host/jobs/JobRequest.h"
#include "host/jobs/OutputTarget.h"
#include "platform/system/Result.h"

namespace orvek {

/// What is run. Plain data.
struct FilterProgram {
  /// Its path.
  QString path;
  QStringList arguments;
  /// Added to this program's own.
  QMap<QString, QString> environment = {};
};

/// A job under way: where its bytes go and how far it is. Borrows; lives on the job's thread.
struct FilterRun {
  /// Named where a failure is the printer description's.
  QString ppdFile;
  JobControl &control;
  OutputTarget &target;
  JobProgress progress = {};
  int pagesOfEarlierDocuments = 0;
};

/// Runs the program on one document and carries what it writes to the run's target. `document`
/// names it in failures.
///
/// Failures: the program can't be started, ended badly or wrote nothing (its own last words); the
/// target takes no more; cancelled, and then the program and all that it started are gone.
Status runFilters(FilterRun &run, const FilterProgram &program, const Phrase &document);

/// The filter tool, called to make `format` (printer/foo: what the request's printer takes) of a
/// document by a PPD. What the request says of copies, pages and options goes with it.
FilterProgram filterToolCall(const JobRequest &request, const QString &tool, const QString &ppd,
                             const QString &format, const QString &document);

}  // namespace orvek
