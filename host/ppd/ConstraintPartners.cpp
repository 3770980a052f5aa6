// SPDX-License-Identifier: Apache-2.0
// Reads the option names of *UIConstraints, *NonUIConstraints and *cupsUIConstraints.

#include "host/ppd/ConstraintPartners.h"

#include <QStringList>
#include <functional>

#include "host/ppd/CustomChoice.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

bool pairNamesBoth(const ppd_const_t &pair, const QString &one, const QString &other) {
  return (sameKeyword(pair.option1, one) && sameKeyword(pair.option2, other)) ||
         (sameKeyword(pair.option1, other) && sameKeyword(pair.option2, one));
}

// "*OVKStapling Front *OVKFolding Saddle" names the words that begin with an asterisk. True as soon
// as the visitor is.
bool visitLists(const PrinterDescription &printer,
                const std::function<bool(const QStringList &words)> &visit) {
  const char *keyword = "cupsUIConstraints";
  for (const ppd_attr_t *attribute = ppdFindAttr(printer.lend(), keyword, nullptr);
       attribute != nullptr; attribute = ppdFindNextAttr(printer.lend(), keyword, nullptr)) {
    if (visit(QString::fromUtf8(attribute->value).simplified().split(u' '))) return true;
  }
  return false;
}

bool listNames(const QStringList &words, const QString &option) {
  return words.contains(u'*' + option, Qt::CaseInsensitive);
}

void addName(QSet<QString> *names, const QString &name) {
  const QString lower = name.toLower();
  names->insert(lower);
  // A custom value is constrained under a name of its own, as a choice of the option itself.
  const QLatin1String custom = CustomChoice::constraintPrefix;
  if (lower.startsWith(custom, Qt::CaseInsensitive)) names->insert(lower.mid(custom.size()));
}

}  // namespace

bool areConstrained(const PrinterDescription &printer, const QString &one, const QString &other) {
  const ppd_file_t *ppd = printer.lend();
  for (int i = 0; ppd != nullptr && i < ppd->num_consts; ++i) {
    if (pairNamesBoth(ppd->consts[i], one, other)) return true;
  }
  return visitLists(printer, [&](const QStringList &words) {
    return listNames(words, one) && listNames(words, other);
  });
}

QSet<QString> constrainedOptions(const PrinterDescription &printer) {
  QSet<QString> names;
  const ppd_file_t *ppd = printer.lend();
  for (int i = 0; ppd != nullptr && i < ppd->num_consts; ++i) {
    addName(&names, QString::fromUtf8(ppd->consts[i].option1));
    addName(&names, QString::fromUtf8(ppd->consts[i].option2));
  }
  visitLists(printer, [&](const QStringList &words) {
    for (const QString &word : words) {
      if (word.startsWith(u'*')) addName(&names, word.mid(1));
    }
    return false;
  });
  return names;
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
