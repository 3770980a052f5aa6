// SPDX-License-Identifier: Apache-2.0
// What a job must say of itself so that it prints as the dialog showed it: from marks, ticket and
// job settings to CUPS options. Pure functions of their arguments, but that looking up the print
// server's words moves the marks for a moment; nothing fails.
//
//   host/session/SessionJob   has the sources
//   here                      makes options of them
//   host/jobs/JobRequest      takes the options along
//   host/jobs/QueueJob        sends them to a queue; FilterChain gives them to the filters
#pragma once

#include <QList>
#include <QMap>
#include <QString>
#include <QStringList>

#include "host/ppd/Marks.h"
#include "host/ticket/AskedOptions.h"
#include "host/ticket/TicketFile.h"

namespace orvek {

/// What a job's options come from, beside the marks. Plain data.
struct JobSources {
  /// The queue's and the user's, and what the words among them stand for.
  QList<OptionChoice> queueOptions;
  TicketValues ticket;
  JobSettings settings;
  AskedOptions asked;
  /// What the queue's options say of job settings.
  AskedOptions saved;
};

/// Option or key to text: every marked choice that differs from the PPD's default or from what the
/// queue would take by itself, every ticket key (an option's key with its marked choice),
/// "number-up" where several pages go on a sheet, and the job settings. A word of the ticket or the
/// queue that is still true ("sides" for "Duplex") goes as it was written, and what it stands for
/// goes without saying; one that is not is left out, and the options it speaks of are all said. Of
/// job settings, too, what the queue has saved goes without saying, and what contradicts it is said
/// even where it is a default.
QMap<QString, QString> jobOptionsFor(Marks &marks, const JobSources &job);

/// What differs from the defaults of a JobSettings, by CUPS' names: "copies", "Collate",
/// "page-ranges" and "orientation-requested" (RFC 8011), "outputorder".
QMap<QString, QString> jobSettingOptions(const JobSettings &settings);

/// As above; a setting that still is what was asked for is said in the words it was asked in.
QMap<QString, QString> jobSettingOptions(const JobSettings &settings, const AskedOptions &asked);

/// How many pages per sheet an option asks for; 0 where it is another option, or asks for one page.
int pagesPerSheetIn(const OptionChoice &option);

/// The words among the queue's options that must not go with the job, as they are no longer true.
QStringList overruledOptions(Marks &marks, const JobSources &job);

/// The options whose marked choice is custom: its values look like a collection to libcups.
QStringList optionsWithCustomValues(const Marks &marks);

}  // namespace orvek
