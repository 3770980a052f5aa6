// SPDX-License-Identifier: Apache-2.0
// The search for a way out of conflicts, for PlainConstraints alone.
#pragma once

#include "host/ppd/PlainConstraints.h"

namespace orvek {

/// One search, from the marks as they are. Borrows the constraints. Goes the way that libcups goes:
/// as long as a constraint is violated, the first one that has an option whose default, or else
/// another of its choices, violates nothing.
class PlainResolution {
 public:
  PlainResolution(const PlainConstraints &constraints, const ppd_choice_s *pick);

  bool isPickForbidden() const { return isAnyViolated(m_pick); }
  QList<OptionChoice> conflicts() const;
  std::optional<QList<OptionChoice>> found();

 private:
  using Side = PlainConstraints::Side;

  bool isViolated(int constraint) const;
  bool isAnyViolated(int option) const;
  std::vector<int> violated() const;
  QList<OptionChoice> inOrder(const std::vector<const char *> &choices) const;
  bool changeOne(const std::vector<int> &constraints, std::size_t first);
  bool change(const Side &side);
  bool mayBecome(int option, const char *choice);

  const PlainConstraints &m_constraints;
  int m_pick;
  /// By option, its choice now; null where none, or one that the PPD lacks.
  std::vector<const ppd_choice_s *> m_choices;
  /// By option, what it becomes; null: it stays.
  std::vector<const char *> m_changes;
};

}  // namespace orvek
