// SPDX-License-Identifier: Apache-2.0
// Takes the names out of constraints.

#include "host/ppd/ConstrainedPairs.h"

#include <QStringList>

#include "host/ppd/CustomChoice.h"
#include "platform/printing/PPD.h"

namespace orvek {

void ConstrainedPairs::addPair(const QString &one, const QString &other) {
  m_pairs.insert({one.toLower(), other.toLower()});
  m_pairs.insert({other.toLower(), one.toLower()});
}

void ConstrainedPairs::addName(const QString &name) {
  const QString lower = name.toLower();
  m_names.insert(lower);
  // A custom value is constrained under a name of its own, as a choice of the option itself.
  const QLatin1String custom = CustomChoice::constraintPrefix;
  if (lower.startsWith(custom, Qt::CaseInsensitive)) m_names.insert(lower.mid(custom.size()));
}

// "*OVKStapling Front *OVKFolding Saddle" names the words that begin with an asterisk.
void ConstrainedPairs::addList(const QString &list) {
  QStringList names;
  for (const QString &word : list.simplified().split(u' ')) {
    if (word.startsWith(u'*')) names << word.mid(1);
  }
  for (const QString &one : names) {
    addName(one);
    for (const QString &other : names) addPair(one, other);
  }
}

ConstrainedPairs ConstrainedPairs::of(const ppd_file_s *ppd) {
  ConstrainedPairs pairs;
  for (int i = 0; ppd != nullptr && i < ppd->num_consts; ++i) {
    const QString one = QString::fromUtf8(ppd->consts[i].option1);
    const QString other = QString::fromUtf8(ppd->consts[i].option2);
    pairs.addPair(one, other);
    pairs.addName(one);
    pairs.addName(other);
  }
  for (int i = 0; ppd != nullptr && i < ppd->num_attrs; ++i) {
    const ppd_attr_t *attribute = ppd->attrs[i];
    if (qstricmp(attribute->name, "cupsUIConstraints") != 0) continue;
    pairs.addList(QString::fromUtf8(attribute->value));
  }
  return pairs;
}

}  // namespace orvek
