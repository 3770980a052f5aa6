// SPDX-License-Identifier: Apache-2.0
// Reads the option names of *UIConstraints, *NonUIConstraints and *cupsUIConstraints.

#include "host/ppd/ConstraintPartners.h"

#include <QStringList>

namespace orvek {
namespace {

bool same(const QString &one, const QString &other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

bool pairNamesBoth(const ppd_const_t &pair, const QString &one, const QString &other) {
  const QString first = QString::fromUtf8(pair.option1);
  const QString second = QString::fromUtf8(pair.option2);
  return (same(first, one) && same(second, other)) || (same(first, other) && same(second, one));
}

// "*OVKStapling Front *OVKFolding Saddle" names the words that begin with an asterisk.
bool listNames(const QString &constraint, const QString &option) {
  const QStringList words = constraint.simplified().split(QLatin1Char(' '));
  return words.contains(QLatin1Char('*') + option, Qt::CaseInsensitive);
}

bool someListNamesBoth(ppd_file_t *ppd, const QString &one, const QString &other) {
  const char *keyword = "cupsUIConstraints";
  for (const ppd_attr_t *attribute = ppdFindAttr(ppd, keyword, nullptr); attribute != nullptr;
       attribute = ppdFindNextAttr(ppd, keyword, nullptr)) {
    const QString constraint = QString::fromUtf8(attribute->value);
    if (listNames(constraint, one) && listNames(constraint, other)) return true;
  }
  return false;
}

}  // namespace

bool areConstrained(ppd_file_t *ppd, const QString &one, const QString &other) {
  for (int i = 0; i < ppd->num_consts; ++i) {
    if (pairNamesBoth(ppd->consts[i], one, other)) return true;
  }
  return someListNamesBoth(ppd, one, other);
}

OptionChoice partnerOf(const Marks &marks, const OptionChoice &side, const OptionChoice &pick) {
  if (areConstrained(marks.ppd(), side.option, pick.option)) return pick;
  for (const OptionChoice &conflict : marks.conflicts()) {
    if (same(conflict.option, side.option)) continue;
    if (areConstrained(marks.ppd(), side.option, conflict.option)) return conflict;
  }
  return pick;
}

QList<OptionChoice> partnersAmong(const Marks &marks, const QList<OptionChoice> &conflicts,
                                  const OptionChoice &pick) {
  QList<OptionChoice> partners = conflicts;
  partners.removeIf([&](const OptionChoice &conflict) {
    return same(conflict.option, pick.option) ||
           !areConstrained(marks.ppd(), conflict.option, pick.option);
  });
  return partners.isEmpty() ? conflicts : partners;
}

}  // namespace orvek
