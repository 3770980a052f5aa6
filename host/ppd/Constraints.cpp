// SPDX-License-Identifier: Apache-2.0
// Finds and resolves conflicts through libcups.

#include "host/ppd/Constraints.h"

#include <cups/cups.h>

#include <algorithm>
#include <optional>

#include "host/ppd/ConstraintPartners.h"

namespace orvek {
namespace {

constexpr const char *installedEquipmentGroup = "InstallableOptions";

// Owns an option list of libcups.
class CupsOptions {
 public:
  CupsOptions() = default;
  ~CupsOptions() { cupsFreeOptions(m_count, m_options); }
  CupsOptions(const CupsOptions &) = delete;
  CupsOptions &operator=(const CupsOptions &) = delete;

  QList<OptionChoice> list() const {
    QList<OptionChoice> all;
    for (int i = 0; i < m_count; ++i) {
      all.append({QString::fromUtf8(m_options[i].name), QString::fromUtf8(m_options[i].value)});
    }
    return all;
  }

  int m_count = 0;
  cups_option_t *m_options = nullptr;
};

// Constraints know a custom choice by this spelling only, whatever its values are.
QByteArray constrainedName(const QString &choice) {
  return choice.startsWith(QLatin1Char('{')) ? QByteArray("Custom.values") : choice.toUtf8();
}

std::optional<QList<OptionChoice>> resolutionOf(const Marks &marks, const OptionChoice &pick) {
  CupsOptions changed;
  const int resolved = cupsResolveConflicts(marks.ppd(), pick.option.toUtf8().constData(),
                                            constrainedName(pick.choice).constData(),
                                            &changed.m_count, &changed.m_options);
  if (resolved == 0) return std::nullopt;
  return changed.list();
}

bool sameKeyword(const QString &one, const QString &other) {
  return one.compare(other, Qt::CaseInsensitive) == 0;
}

// The marks a resolution would really move; the pick itself and what already stands are none.
// Nothing where it names a choice that the PPD lacks: libcups proposes an option's default without
// looking for it, and half a resolution is none.
std::optional<QList<ChoiceChange>> changesAmong(const Marks &marks,
                                                const QList<OptionChoice> &resolution,
                                                const OptionChoice &pick) {
  QList<ChoiceChange> changes;
  for (const OptionChoice &wanted : resolution) {
    if (sameKeyword(wanted.option, pick.option)) continue;
    const auto spelled = marks.spelled(wanted.option, wanted.choice);
    if (!spelled) return std::nullopt;
    const QString old = marks.marked(spelled->option);
    if (old != spelled->choice) changes.append({spelled->option, old, spelled->choice, {}});
  }
  return changes;
}

bool touchesInstalledEquipment(const Marks &marks, const QList<ChoiceChange> &changes) {
  return std::any_of(changes.begin(), changes.end(), [&](const ChoiceChange &change) {
    return isInstalledEquipment(marks.ppd(), change.option);
  });
}

// True where the changes leave the pick marked and free of conflicts; the marks stand as tried.
bool apply(Marks &marks, const QList<ChoiceChange> &changes, const OptionChoice &pick) {
  for (const ChoiceChange &change : changes) marks.mark(change.option, change.newChoice);
  return marks.marked(pick.option) == pick.choice && !marks.isInConflict(pick.option);
}

// Other sides are told apart while the conflict still stands.
void namePartners(const Marks &marks, QList<ChoiceChange> *changes, const OptionChoice &pick) {
  for (ChoiceChange &change : *changes) {
    change.partner = partnerOf(marks, {change.option, change.oldChoice}, pick);
  }
}

bool resolve(Marks &marks, const MarksSnapshot &before, Resolution *result) {
  const auto resolution = resolutionOf(marks, result->pick);
  if (!resolution) return false;
  std::optional<QList<ChoiceChange>> changes = changesAmong(marks, *resolution, result->pick);
  if (!changes || touchesInstalledEquipment(marks, *changes)) return false;
  namePartners(marks, &*changes, result->pick);
  if (!apply(marks, *changes, result->pick)) {
    marks.restore(before);
    marks.mark(result->pick.option, result->pick.choice);
    return false;
  }
  result->changes = *changes;
  return true;
}

void undo(Marks &marks, const MarksSnapshot &before, const QList<OptionChoice> &conflicts,
          Resolution *result) {
  result->marked = false;
  result->incompatible = partnersAmong(marks, conflicts, result->pick);
  marks.restore(before);
}

}  // namespace

QList<OptionChoice> conflictsOf(const Marks &marks, const OptionChoice &pick) {
  CupsOptions found;
  found.m_count = cupsGetConflicts(marks.ppd(), pick.option.toUtf8().constData(),
                                   constrainedName(pick.choice).constData(), &found.m_options);
  return found.list();
}

Resolution markAndResolve(Marks &marks, const OptionChoice &pick) {
  Resolution result{pick, true, {}, {}};
  const MarksSnapshot before = marks.snapshot();
  marks.mark(pick.option, pick.choice);
  const QList<OptionChoice> conflicts = conflictsOf(marks, pick);
  if (conflicts.isEmpty() || resolve(marks, before, &result) || !marks.isInConflict(pick.option)) {
    return result;
  }
  undo(marks, before, conflicts, &result);
  return result;
}

bool isInstalledEquipment(ppd_file_t *ppd, const QString &option) {
  for (int i = 0; i < ppd->num_groups; ++i) {
    const ppd_group_t &group = ppd->groups[i];
    if (qstricmp(group.name, installedEquipmentGroup) != 0) continue;
    return std::any_of(group.options, group.options + group.num_options,
                       [&](const ppd_option_t &candidate) {
                         return sameKeyword(QString::fromUtf8(candidate.keyword), option);
                       });
  }
  return false;
}

}  // namespace orvek
