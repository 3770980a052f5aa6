// SPDX-License-Identifier: Apache-2.0
// A job whose sheets are made on this machine, for a print server that lacks the driver.
#pragma once

#include <QLatin1String>
#include <QTemporaryDir>
#include <memory>

#include "host/jobs/JobRequest.h"
#include "host/jobs/ServerDriver.h"
#include "platform/system/Result.h"

namespace orvek {

/// Marks the jobs that are sent as the printer takes them to a server that stops every other job.
inline constexpr QLatin1String finishedSheetsMark{"orvek-finished-sheets"};

/// Whether these options ask for banner pages that finished sheets come without.
bool losesBanners(const QMap<QString, QString> &options, ServerDriver driver);

/// The files of finished sheets, which go away with the object, and the job that prints them.
class FinishedSheets {
 public:
  /// Makes the sheets of each of the request's documents. The request has all of the job's options,
  /// those saved for the queue among them, and the queue's printer description.
  ///
  /// A server that makes no booklets is to get a PDF of imposed sheets, and prints them on both
  /// sides: what has been done is not asked for again, and each copy is a booklet. One that stops
  /// every job is to get what the printer itself takes, copies and all, and no banners, which it
  /// could not print.
  ///
  /// Blocks. `beginOfStandardInput` has been read of that already. Failures: those of
  /// printThroughFilters; the driver is not on this machine either.
  static Result<std::unique_ptr<FinishedSheets>> of(const JobRequest &request, ServerDriver driver,
                                                    JobControl &control,
                                                    const QByteArray &beginOfStandardInput);

  /// What is to be sent instead.
  const JobRequest &request() const { return m_request; }

 private:
  FinishedSheets(const JobRequest &request, const QString &scratch)
      : m_folder(scratch + QStringLiteral("/sheets-XXXXXX")), m_request(request) {}
  Result<QString> placeFor(const QString &document, const QString &suffix);

  QTemporaryDir m_folder;
  int m_places = 0;
  JobRequest m_request;
};

}  // namespace orvek
