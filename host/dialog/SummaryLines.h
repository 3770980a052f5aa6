// SPDX-License-Identifier: Apache-2.0
// What the dialog says about a job as it stands: which settings, in words, and which of them are
// not the printer's own. Reads a session, changes nothing.
#pragma once

#include <QList>
#include <QString>

#include "host/session/PrintSession.h"

namespace orvek {

/// One setting in words. Plain data.
struct SummaryLine {
  QString title;
  QString value;
  /// Not what the printer does by itself.
  bool changed = false;

  bool operator==(const SummaryLine &) const = default;
};

/// Changed settings first: the panels' lines, then whatever else differs from the PPD's defaults;
/// then the panels' other lines. A panel's line counts as changed where it speaks of an option
/// whose choice is not the default; one about something else where it is not what the panel says of
/// a job that nobody changed, as far as the session knows that.
/// Installed equipment is no setting of a job and is left out.
QList<SummaryLine> summaryLines(const PrintSession &session);

}  // namespace orvek
