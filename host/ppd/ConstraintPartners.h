// SPDX-License-Identifier: Apache-2.0
// Who conflicts with whom: libcups tells which options conflict, not in which pairs. Reads the
// PPD's constraints for their option names only; whether one is violated stays libcups' business.
#pragma once

#include <QList>
#include <QSet>

#include "host/ppd/Marks.h"

namespace orvek {

/// True where one constraint of the PPD, of either form, names both options.
bool areConstrained(const PrinterDescription &printer, const QString &one, const QString &other);

/// Every option that some constraint names, in lower case; lent by the printer.
const QSet<QString> &constrainedOptions(const PrinterDescription &printer);

/// The other side of `side`'s conflict as the marks stand: the pick where a constraint names both,
/// else the first conflicting option that shares one with `side`, else the pick.
OptionChoice partnerOf(const Marks &marks, const OptionChoice &side, const OptionChoice &pick);

/// Those of `conflicts` that share a constraint with the pick; all of them where none does.
QList<OptionChoice> partnersAmong(const Marks &marks, const QList<OptionChoice> &conflicts,
                                  const OptionChoice &pick);

}  // namespace orvek
