// SPDX-License-Identifier: Apache-2.0
// Picks with all that they bring: marks, constraints, and the ticket's record.
// Where a choice that is picked gets marked and recorded; a session's first marks are FirstMarks'.
#pragma once

#include <QString>
#include <memory>
#include <optional>

#include "host/ppd/Constraints.h"
#include "host/ppd/Marks.h"
#include "platform/printing/PrintSettings.h"

namespace orvek {

/// Works on the marks of a borrowed PPD (may be null: no choice is known then) and on a ticket that
/// it shares. Belongs to the interface's thread. What fails is a value: a pick that was undone.
class Picks {
 public:
  Picks(const PrinterDescription &printer, std::shared_ptr<Ticket> ticket);

  Marks &marks() { return m_marks; }
  const Marks &marks() const { return m_marks; }
  Ticket &ticket() const { return *m_ticket; }

  /// Marks the choice, resolves its conflicts, and records it and whatever gave way in the ticket,
  /// each under its option's keyword. An undone pick leaves marks and ticket as they were, unless
  /// the choice was marked already: then its option goes back to its default and leaves the ticket.
  /// Nothing where the choice is empty or the PPD lacks it: nothing is marked or recorded then.
  std::optional<Resolution> pick(const QString &option, const QString &choice);

 private:
  void record(const OptionChoice &choice);
  void giveUp(const OptionChoice &choice);

  Marks m_marks;
  std::shared_ptr<Ticket> m_ticket;
};

}  // namespace orvek
