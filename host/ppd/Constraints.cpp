// SPDX-License-Identifier: Apache-2.0
// Finds and resolves conflicts through libcups.

#include "host/ppd/Constraints.h"

#include <algorithm>
#include <optional>

#include "host/ppd/CustomChoice.h"
#include "host/ppd/MarksTrial.h"
#include "platform/printing/PPD.h"

namespace orvek {
namespace {

// Owns an option list of libcups.
class OptionArray {
 public:
  OptionArray() = default;
  ~OptionArray() { cupsFreeOptions(m_count, m_options); }
  OptionArray(const OptionArray &) = delete;
  OptionArray &operator=(const OptionArray &) = delete;

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

QByteArray constrainedName(const QString &choice) {
  const std::optional<CustomChoice> custom = CustomChoice::read(choice);
  return (custom ? custom->constrainedName() : choice).toUtf8();
}

/// The pick, where the plain constraints can be asked about it; else null.
const ppd_choice_t *plainPick(const Marks &marks, const OptionChoice &pick) {
  const PlainConstraints *plain = marks.printer().plainConstraints();
  return plain == nullptr ? nullptr : plain->pickFor(pick);
}

std::optional<QList<OptionChoice>> resolutionOf(const Marks &marks, const OptionChoice &pick) {
  if (const ppd_choice_t *choice = plainPick(marks, pick)) {
    return marks.printer().plainConstraints()->resolutionOf(choice);
  }
  OptionArray changed;
  const int resolved = cupsResolveConflicts(
      marks.printer().lend(), pick.option.toUtf8().constData(),
      constrainedName(pick.choice).constData(), &changed.m_count, &changed.m_options);
  if (resolved == 0) return std::nullopt;
  return changed.list();
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
    return marks.printer().isEquipment(change.option);
  });
}

bool isInConflict(const Marks &marks, const OptionChoice &pick) {
  if (const ppd_choice_t *choice = plainPick(marks, pick)) {
    return marks.printer().plainConstraints()->isInConflict(choice);
  }
  return marks.isInConflict(pick.option);
}

// True where the changes leave the pick marked and free of conflicts; the marks stand as tried.
bool apply(Marks &marks, const QList<ChoiceChange> &changes, const OptionChoice &pick) {
  for (const ChoiceChange &change : changes) marks.mark(change.option, change.newChoice);
  return marks.marked(pick.option) == pick.choice && !isInConflict(marks, pick);
}

// The pick where a constraint names both, else the first conflicting option that shares one with
// the changed one, else the pick. Told apart while the conflict still stands.
void namePartners(const Marks &marks, QList<ChoiceChange> *changes, const OptionChoice &pick) {
  const ConstrainedPairs &pairs = marks.printer().constrainedPairs();
  std::optional<QList<OptionChoice>> conflicts;
  for (ChoiceChange &change : *changes) {
    change.partner = pick;
    if (pairs.contain(change.option, pick.option)) continue;
    if (!conflicts) conflicts = marks.conflicts();
    const auto other =
        std::find_if(conflicts->begin(), conflicts->end(), [&](const OptionChoice &conflict) {
          return !sameKeyword(conflict.option, change.option) &&
                 pairs.contain(change.option, conflict.option);
        });
    if (other != conflicts->end()) change.partner = *other;
  }
}

// A trial of its own would cost a pick a second copy of the marks, a third of its time where there
// are thousands of options.
bool resolve(Marks &marks, MarksTrial &trial, Resolution *result) {
  const auto resolution = resolutionOf(marks, result->pick);
  if (!resolution) return false;
  std::optional<QList<ChoiceChange>> changes = changesAmong(marks, *resolution, result->pick);
  if (!changes || touchesInstalledEquipment(marks, *changes)) return false;
  namePartners(marks, &*changes, result->pick);
  if (!apply(marks, *changes, result->pick)) {
    trial.startAgain();
    marks.mark(result->pick.option, result->pick.choice);
    return false;
  }
  result->changes = *changes;
  return true;
}

}  // namespace

QList<OptionChoice> conflictsOf(const Marks &marks, const OptionChoice &pick) {
  if (const ppd_choice_t *choice = plainPick(marks, pick)) {
    return marks.printer().plainConstraints()->conflictsOf(choice);
  }
  OptionArray found;
  found.m_count = cupsGetConflicts(marks.printer().lend(), pick.option.toUtf8().constData(),
                                   constrainedName(pick.choice).constData(), &found.m_options);
  return found.list();
}

QList<OptionChoice> partnersAmong(const QList<OptionChoice> &conflicts,
                                  const PrinterDescription &printer, const OptionChoice &pick) {
  const ConstrainedPairs &pairs = printer.constrainedPairs();
  QList<OptionChoice> partners = conflicts;
  partners.removeIf([&](const OptionChoice &conflict) {
    return sameKeyword(conflict.option, pick.option) ||
           !pairs.contain(conflict.option, pick.option);
  });
  return partners.isEmpty() ? conflicts : partners;
}

Resolution markAndResolve(Marks &marks, const OptionChoice &pick) {
  Resolution result{pick, true, {}, {}};
  MarksTrial trial(marks);
  marks.mark(pick.option, pick.choice);
  const QList<OptionChoice> conflicts = conflictsOf(marks, pick);
  if (conflicts.isEmpty() || resolve(marks, trial, &result) || !isInConflict(marks, pick)) {
    trial.keep();
    return result;
  }
  result.marked = false;
  result.incompatible = partnersAmong(conflicts, marks.printer(), pick);
  return result;
}

Resolution tryPick(Marks &marks, const OptionChoice &pick) {
  const MarksTrial trial(marks);
  return markAndResolve(marks, pick);
}

}  // namespace orvek
