// SPDX-License-Identifier: Apache-2.0
// What of a preset a printer can take, and in words what it can't.
#pragma once

#include <QList>

#include "host/presets/Preset.h"
#include "platform/printing/PPD.h"

namespace orvek {

/// One choice of a preset that a printer can't take.
struct PresetMisfit {
  QString option;  ///< its keyword
  QString choice;  ///< its keyword
  QString why;     ///< a sentence in the words of the printer where it has them

  /// "OVKStapling=Dual: ..." for a log or a command line.
  QString line() const;
};

struct PresetFit {
  QMap<QString, QString> options;  ///< what fits, spelled as the PPD spells it
  TicketValues ticket;             ///< all of it: tickets are not the printer's
  QList<PresetMisfit> misfits;     ///< the rest, by keyword
};

/// Fits `preset` to the printer of `ppd` (borrowed; null is a printer without options). Installed
/// equipment belongs to a printer and not to a preset, so a preset never changes it. Whether the
/// choices go together is for the printer's constraints and not looked at here.
PresetFit fitPreset(const Preset &preset, ppd_file_t *ppd);

}  // namespace orvek
