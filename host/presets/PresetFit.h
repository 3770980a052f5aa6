// SPDX-License-Identifier: Apache-2.0
// What of a preset a printer can take, and in words what it can't.
#pragma once

#include <QList>

#include "host/ppd/PrinterDescription.h"
#include "host/presets/Preset.h"

namespace orvek {

/// One choice of a preset that a printer can't take. Plain data.
struct PresetMisfit {
  /// Its keyword.
  QString option;
  /// Its keyword.
  QString choice;
  /// A sentence in the words of the printer where it has them.
  QString why;

  /// "OVKStapling=Dual: ..." for a log or a command line.
  QString line() const;
};

/// What fits a printer and what does not. Plain data.
struct PresetFit {
  /// What fits, spelled as the PPD spells it.
  QMap<QString, QString> options;
  /// All of it: tickets are not the printer's. But a booklet that is asked of a printer which makes
  /// none is left out: no control would show it, and it would be printed all the same.
  TicketValues ticket;
  /// The rest, by keyword.
  QList<PresetMisfit> misfits;
};

/// Fits `preset` to the printer. Installed
/// equipment belongs to a printer and not to a preset, so a preset never changes it. Whether the
/// choices go together is for the printer's constraints and not looked at here.
PresetFit fitPreset(const Preset &preset, const PrinterDescription &printer);

}  // namespace orvek
