// SPDX-License-Identifier: Apache-2.0
// libcups' own list of marks, for the sources of Marks alone.
#pragma once

#include <QList>
#include <QString>

#include "platform/printing/PPD.h"

namespace orvek {

/// The choices in a list of marks. libcups offers no walk over the marks, but keeps them in a
/// public one. Walking the options instead, and looking up the mark of each, takes longer than all
/// else in a pick where a PPD has thousands of them.
QList<ppd_choice_t *> choicesIn(cups_array_t *marked);

/// The marked choices of a PPD (may be null: none).
QList<ppd_choice_t *> markedChoices(const ppd_file_t *ppd);

/// Those that are not among the others.
QList<ppd_choice_t *> without(const QList<ppd_choice_t *> &choices,
                              const QList<ppd_choice_t *> &others);

/// By keyword without regard to case, as libcups lists options; its list of marks goes by keyword
/// with regard to it.
QList<ppd_choice_t *> inOrder(QList<ppd_choice_t *> choices);

/// The keyword of a choice's option.
QString optionOf(const ppd_choice_t *choice);

/// True for the choice that stands for all custom values.
bool isCustom(const ppd_choice_t *choice);

/// What libcups has no call for: taking one mark away.
void takeMark(ppd_file_t *ppd, ppd_choice_t *choice);

/// True for an option whose mark is its own affair: no values, and no other option's mark goes with
/// it, as with paper and its source.
bool isMarkedAlone(ppd_option_t *option);

/// Marks a choice of such an option in the place of another one (null: of none). libcups' call
/// looks at all constraints after each mark, and a pick may move as many marks as there are
/// options.
void moveMark(ppd_file_t *ppd, ppd_choice_t *from, ppd_choice_t *choice);

}  // namespace orvek
