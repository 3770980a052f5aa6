// SPDX-License-Identifier: Apache-2.0
// What a user should know before a job goes: settings that are allowed, and hardly meant. Pure
// functions that return words; window and headless run show the same.
#pragma once

#include <QStringList>

#include "host/ppd/Marks.h"
#include "host/ticket/JobSettings.h"
#include "host/ticket/TicketFile.h"
#include "imposition/FilterLayout.h"

namespace orvek {

class PrintSession;

/// A document as page ranges meet it, which count the sides that the print system's filters make of
/// its pages. A value.
struct DocumentSides {
  /// 0: unknown.
  int pages = 0;
  /// What the job says of sides, but for its page ranges.
  imposition::FilterJob filters;
};

/// That of a session's document as its job stands now.
DocumentSides documentSides(PrintSession &session);

/// Why nothing can be printed with these settings, in one sentence without a full stop; null where
/// something can: page ranges that can't be read, or that the document has no page or side of
/// (which is not judged where its pages are not known).
QString pagesProblem(const JobSettings &settings, const DocumentSides &document);

/// One sentence, without a full stop, for each of: staples in copies that are not collated; a
/// booklet that the printer is to fold, of more sheets than it folds. `pages` is the document's
/// page count; 0: unknown.
QStringList jobWarnings(const Marks &marks, const TicketValues &ticket, const JobSettings &settings,
                        int pages);

/// The same for a session as it stands, and a sentence on choices that the PPD forbids beside the
/// two sides a booklet is printed on.
QStringList jobWarnings(const PrintSession &session, int pages);

/// The one of them about a booklet of more sheets than the printer folds, for a session that knows
/// how many pages its document has; null where there is nothing to say.
QString thickBooklet(const PrintSession &session);

/// Whether jobWarnings() needs to know the page count: where the printer folds sheets. Counting the
/// pages of a PDF takes longer than sending it.
bool warningsDependOnPages(const Marks &marks, const TicketValues &ticket);

/// How many sheets the printer folds into one booklet: *OVKBookletMaximumSheets of its PPD, or what
/// booklet makers commonly do.
int maximumBookletSheets(const PrinterDescription &printer);

}  // namespace orvek
