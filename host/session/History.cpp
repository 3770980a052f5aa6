// SPDX-License-Identifier: Apache-2.0
// Compares states after each act, and goes from one to another.

#include "host/session/History.h"

#include <utility>

#include "host/session/HistoryWords.h"
#include "host/session/PrintSession.h"

namespace orvek {
namespace {

// Nobody goes further back step by step; each holds a list of all marks.
constexpr int mostSteps = 200;

}  // namespace

SessionState History::state() const {
  return {m_session.job().settings(), m_session.ticket().values(), m_session.marks().snapshot()};
}

void History::begin() {
  m_done.clear();
  m_undone.clear();
  absorb();
}

void History::notePick(const QString &option) {
  if (m_firstPick.isNull()) m_firstPick = option;
}

void History::absorb() {
  m_now = state();
  m_firstPick = QString();
}

void History::noteAct() {
  const SessionState before = std::exchange(m_now, state());
  const QString first = std::exchange(m_firstPick, QString());
  if (m_now == before) return;
  m_undone.clear();
  const QString typed = typedKey(m_session, before, m_now);
  if (joinsLast(typed)) {
    Step &last = m_done.last();
    last.after = m_now;
    last.entry.words = changeInWords(m_session, last.before, m_now, first);
  } else {
    m_done.append(
        {{++m_lastGiven, changeInWords(m_session, before, m_now, first)}, typed, before, m_now});
  }
  m_isFresh = true;
  if (m_done.constLast().before == m_now) m_done.removeLast();
  if (m_done.size() > mostSteps) m_done.removeFirst();
}

bool History::joinsLast(const QString &typed) const {
  return m_isFresh && !typed.isNull() && !m_done.isEmpty() && m_done.constLast().typed == typed;
}

QList<HistoryEntry> History::newestFirst(const QList<Step> &steps) {
  QList<HistoryEntry> entries;
  for (auto step = steps.crbegin(); step != steps.crend(); ++step) entries << step->entry;
  return entries;
}

QStringList History::undo() {
  if (m_done.isEmpty()) return {};
  m_undone << m_done.takeLast();
  m_isFresh = false;
  const Step &step = m_undone.constLast();
  return go(step.after, step.before);
}

QStringList History::redo() {
  if (m_undone.isEmpty()) return {};
  m_done << m_undone.takeLast();
  m_isFresh = false;
  const Step &step = m_done.constLast();
  return go(step.before, step.after);
}

// Keys that the act left alone stay as they are: what a panel writes by itself is no part of it.
QStringList History::go(const SessionState &from, const SessionState &to) {
  QStringList changed = m_session.marks().differingFrom(to.marks);
  m_session.marksToTry().restore(to.marks);
  for (const QString &key : differingKeys(from.ticket, to.ticket)) {
    m_session.setTicketValue(key, to.ticket.value(key));
    if (!changed.contains(key)) changed << key;
  }
  if (from.job != to.job) m_session.job().restore(to.job);
  return changed;
}

}  // namespace orvek
