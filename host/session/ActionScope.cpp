// SPDX-License-Identifier: Apache-2.0
// Counts actions within one another, and ends those that nobody ends.

#include "host/session/ActionScope.h"

#include "host/session/PrintSession.h"

namespace orvek {

ActionOwner::~ActionOwner() = default;

void RunningAction::begin(ActionOf whose) {
  if (m_depth == 0) {
    // An act of the window that still waits for its end is over by now.
    if (m_endIsPending) conclude();
    m_whose = whose;
  }
  ++m_depth;
}

void RunningAction::end() {
  if (--m_depth == 0) conclude();
}

void RunningAction::noteChange() {
  if (m_depth > 0 || m_endIsPending) return;
  m_endIsPending = true;
  m_whose = ActionOf::User;
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (m_endIsPending) conclude();
      },
      Qt::QueuedConnection);
}

void RunningAction::conclude() {
  ++m_depth;
  m_owner.actionSettles();
  --m_depth;
  m_endIsPending = false;
  m_owner.actionEnded(m_whose);
}

ActionScope::ActionScope(PrintSession &session, ActionOf whose) : m_session(session) {
  m_session.m_action.begin(whose);
}

ActionScope::~ActionScope() {
  m_session.m_action.end();
}

}  // namespace orvek
