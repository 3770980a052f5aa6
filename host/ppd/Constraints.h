// SPDX-License-Identifier: Apache-2.0
// What a pick brings with it: which marks can't stay beside it, and what they become instead.
// Changes marks; knows nothing of tickets, panels or words.
#pragma once

#include <QList>
#include <QString>

#include "host/ppd/Marks.h"

namespace orvek {

/// One option that gave way: its mark before and after, and the other side of the conflict.
struct ChoiceChange {
  QString option;
  QString oldChoice;  ///< null where nothing was marked
  QString newChoice;
  OptionChoice partner;

  bool operator==(const ChoiceChange &) const = default;
};

/// What became of a pick.
struct Resolution {
  OptionChoice pick;
  bool marked = false;               ///< false: undone, all marks are as they were
  QList<ChoiceChange> changes;       ///< what gave way, in the PPD's order; empty where undone
  QList<OptionChoice> incompatible;  ///< where undone: what the pick can't be combined with
};

/// What takes part in a constraint that the pick would violate, the pick itself included; the marks
/// stay as they are.
QList<OptionChoice> conflictsOf(const Marks &marks, const OptionChoice &pick);

/// Marks the pick (spelled as the PPD spells it) and resolves what it conflicts with, by either
/// form of constraints. The pick never gives way, and neither does installed equipment: nobody
/// installs a finisher by picking a staple. A pick whose own conflicts can't be resolved is undone.
/// A conflict that was there before, has no part in the pick and can't be resolved, stays and
/// hinders nothing.
Resolution markAndResolve(Marks &marks, const OptionChoice &pick);

/// True for an option of the PPD's group of installed equipment.
bool isInstalledEquipment(ppd_file_t *ppd, const QString &option);

}  // namespace orvek
