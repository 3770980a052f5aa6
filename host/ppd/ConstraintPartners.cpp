// SPDX-License-Identifier: Apache-2.0
// Looks up who is named together.

#include "host/ppd/ConstraintPartners.h"

namespace orvek {
bool areConstrained(const PrinterDescription &printer, const QString &one, const QString &other) {
  return printer.constrainedPairs().contain(one, other);
}

const QSet<QString> &constrainedOptions(const PrinterDescription &printer) {
  return printer.constrainedPairs().names();
}

OptionChoice partnerOf(const Marks &marks, const OptionChoice &side, const OptionChoice &pick) {
  if (areConstrained(marks.printer(), side.option, pick.option)) return pick;
  for (const OptionChoice &conflict : marks.conflicts()) {
    if (sameKeyword(conflict.option, side.option)) continue;
    if (areConstrained(marks.printer(), side.option, conflict.option)) return conflict;
  }
  return pick;
}

QList<OptionChoice> partnersAmong(const Marks &marks, const QList<OptionChoice> &conflicts,
                                  const OptionChoice &pick) {
  QList<OptionChoice> partners = conflicts;
  partners.removeIf([&](const OptionChoice &conflict) {
    return sameKeyword(conflict.option, pick.option) ||
           !areConstrained(marks.printer(), conflict.option, pick.option);
  });
  return partners.isEmpty() ? conflicts : partners;
}

}  // namespace orvek
