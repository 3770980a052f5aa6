// SPDX-License-Identifier: Apache-2.0
// Constraints that say no more than "not these choices together", resolved as libcups would. For
// one pick libcups looks at all constraints some hundred times, and at all that it has resolved so
// far for each: where sixty options exclude each other that is a tenth of a second, and a page of
// them asks a hundred times.
#pragma once

#include <QHash>
#include <QList>
#include <optional>
#include <vector>

#include "host/ppd/Keyword.h"

struct ppd_choice_s;
struct ppd_file_s;
struct ppd_option_s;

namespace orvek {

class PrinterDescription;

/// A PPD's constraints, read once. Borrows the printer; belongs to its thread. Nothing fails.
class PlainConstraints {
 public:
  /// Nothing where only libcups knows what one of them comes to: paper, equipment, custom values,
  /// choices left open, resolvers of the PPD's own, options of many choices.
  static std::optional<PlainConstraints> of(const PrinterDescription &printer);

  /// What cupsResolveConflicts() gives for a pick that is marked: every option that changes, with
  /// what it becomes, and the pick itself; nothing where it finds no way out. Marks stay as they
  /// are.
  std::optional<QList<OptionChoice>> resolutionOf(const ppd_choice_s *pick) const;

  /// What cupsGetConflicts() gives for a pick: every other option of a constraint that is violated
  /// once it is marked, whether that has a part for the pick or not.
  QList<OptionChoice> conflictsOf(const ppd_choice_s *pick) const;

  /// Whether some constraint forbids the pick beside what is marked, as Marks::isInConflict() says
  /// once it is marked itself.
  bool isInConflict(const ppd_choice_s *pick) const;

  /// The choice, if the others can be asked about it; else null.
  const ppd_choice_s *pickFor(const OptionChoice &pick) const;

 private:
  friend class PlainResolution;

  struct Side {
    int option;
    const ppd_choice_s *choice;
  };
  using Constraint = std::vector<Side>;

  explicit PlainConstraints(const PrinterDescription &printer);
  bool readPairs();
  bool readLists();
  bool addSide(const char *option, const char *choice, Constraint *constraint);
  void add(Constraint constraint);

  const PrinterDescription *m_printer;
  ppd_file_s *m_ppd;
  std::vector<const ppd_option_s *> m_options;
  QHash<const ppd_option_s *, int> m_numbers;
  std::vector<Constraint> m_constraints;
  /// By option: the constraints that name it.
  std::vector<std::vector<int>> m_naming;
};

}  // namespace orvek
