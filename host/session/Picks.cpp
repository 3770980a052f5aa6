// SPDX-License-Identifier: Apache-2.0
// Ties marks, constraints and ticket together.

#include "host/session/Picks.h"

#include <utility>

namespace orvek {

Picks::Picks(const PrinterDescription &printer, std::shared_ptr<Ticket> ticket)
    : m_marks(printer), m_ticket(std::move(ticket)) {}

std::optional<Resolution> Picks::pick(const QString &option, const QString &choice) {
  const std::optional<OptionChoice> wanted = m_marks.spelled(option, choice);
  if (!wanted) return std::nullopt;
  const Resolution resolution = markAndResolve(m_marks, *wanted);
  if (resolution.marked) {
    record(*wanted);
  } else {
    giveUp(*wanted);
  }
  for (const ChoiceChange &change : resolution.changes) {
    record({change.option, change.newChoice});
  }
  return resolution;
}

void Picks::record(const OptionChoice &choice) {
  const QVariant old = m_ticket->value(choice.option);
  const QVariant recorded(choice.choice);
  if (old == recorded && old.metaType() == recorded.metaType()) return;
  m_ticket->setValue(choice.option, recorded);
}

// It may have been marked before, against the constraints: what is said not to be set must not go
// into the job.
void Picks::giveUp(const OptionChoice &choice) {
  if (m_marks.marked(choice.option) != choice.choice) return;
  const QString usual = m_marks.printer().option(choice.option).defaultChoice();
  const auto standard = m_marks.spelled(choice.option, usual);
  if (!standard || standard == choice || !conflictsOf(m_marks, *standard).isEmpty()) return;
  m_marks.mark(standard->option, standard->choice);
  if (m_ticket->value(choice.option).isValid()) m_ticket->setValue(choice.option, QVariant());
}

}  // namespace orvek
