// SPDX-License-Identifier: Apache-2.0
// What a pick brings with it: which marks can't stay beside it, and what they become instead.
// Changes marks; knows nothing of tickets, panels or words.
#pragma once

#include <QList>
#include <QString>

#include "host/ppd/Marks.h"

namespace orvek {

/// One option that gave way: its mark before and after, and the other side of the conflict. Plain
/// data.
struct ChoiceChange {
  QString option;
  /// Null where nothing was marked.
  QString oldChoice;
  QString newChoice;
  OptionChoice partner;

  bool operator==(const ChoiceChange &) const = default;
};

/// What became of a pick. Plain data.
struct Resolution {
  OptionChoice pick;
  /// False: undone, all marks are as they were.
  bool marked = false;
  /// What gave way, in the PPD's order; empty where undone.
  QList<ChoiceChange> changes;
  /// Where undone: what the pick can't be combined with.
  QList<OptionChoice> incompatible;
};

/// Every other option of a constraint that is violated once the pick is marked, one that was
/// violated before included; the marks stay as they are.
QList<OptionChoice> conflictsOf(const Marks &marks, const OptionChoice &pick);

/// Those of `conflicts` that share a constraint with the pick, by their names; all of them where
/// none does.
QList<OptionChoice> partnersAmong(const QList<OptionChoice> &conflicts,
                                  const PrinterDescription &printer, const OptionChoice &pick);

/// Marks the pick (spelled as the PPD spells it) and resolves what it conflicts with, by either
/// form of constraints. The pick never gives way, and neither does installed equipment: nobody
/// installs a finisher by picking a staple. A pick whose own conflicts can't be resolved is undone.
/// A conflict that was there before, has no part in the pick and can't be resolved, stays and
/// hinders nothing.
Resolution markAndResolve(Marks &marks, const OptionChoice &pick);

/// What markAndResolve() would come to. The marks are as before afterwards.
Resolution tryPick(Marks &marks, const OptionChoice &pick);

}  // namespace orvek
