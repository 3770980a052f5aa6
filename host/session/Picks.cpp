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
  Step step{m_marks.snapshot(), {}};
  const Resolution resolution = markAndResolve(m_marks, *wanted);
  if (resolution.marked) {
    record(*wanted, &step);
  } else {
    giveUp(*wanted, &step);
  }
  for (const ChoiceChange &change : resolution.changes) {
    record({change.option, change.newChoice}, &step);
  }
  keep(std::move(step));
  return resolution;
}

void Picks::record(const OptionChoice &choice, Step *step) {
  const QVariant old = m_ticket->value(choice.option);
  const QVariant recorded(choice.choice);
  if (old == recorded && old.metaType() == recorded.metaType()) return;
  step->ticket.insert(choice.option, old);
  m_ticket->setValue(choice.option, recorded);
}

// It may have been marked before, against the constraints: what is said not to be set must not go
// into the job.
void Picks::giveUp(const OptionChoice &choice, Step *step) {
  if (m_marks.marked(choice.option) != choice.choice) return;
  const QString usual = m_marks.printer().option(choice.option).defaultChoice();
  const auto standard = m_marks.spelled(choice.option, usual);
  if (!standard || standard == choice || !conflictsOf(m_marks, *standard).isEmpty()) return;
  m_marks.mark(standard->option, standard->choice);
  const QVariant recorded = m_ticket->value(choice.option);
  if (!recorded.isValid()) return;
  step->ticket.insert(choice.option, recorded);
  m_ticket->setValue(choice.option, QVariant());
}

void Picks::keep(Step step) {
  // A restore announces every choice again; that changes nothing and must not cost the step back.
  if (step.ticket.isEmpty() && step.marks == m_marks.snapshot()) return;
  if (!m_stepIsOpen || !m_step) {
    m_step = std::move(step);
    m_stepIsOpen = true;
    return;
  }
  for (auto entry = step.ticket.begin(); entry != step.ticket.end(); ++entry) {
    if (!m_step->ticket.contains(entry.key())) m_step->ticket.insert(entry.key(), entry.value());
  }
}

void Picks::beginStep() {
  m_stepIsOpen = false;
}

QStringList Picks::undo() {
  if (!m_step) return {};
  const Step step = *std::exchange(m_step, std::nullopt);
  m_stepIsOpen = false;
  QStringList options = m_marks.differingFrom(step.marks);
  m_marks.restore(step.marks);
  for (auto entry = step.ticket.begin(); entry != step.ticket.end(); ++entry) {
    m_ticket->setValue(entry.key(), entry.value());
    if (!options.contains(entry.key())) options << entry.key();
  }
  return options;
}

}  // namespace orvek
