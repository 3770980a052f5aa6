// SPDX-License-Identifier: Apache-2.0
// What the user or the host does, as one action: it begins a step that can be taken back as one,
// and its end is where panels catch up and views are told.
#pragma once

#include <QObject>

namespace orvek {

class PrintSession;

/// Whose an action is: only what users do can be taken back.
enum class ActionOf { User, Host };

/// Who is told of an action's end. Implemented by the session. Is borrowed and owns nothing by it;
/// its calls come on the interface's thread and do not fail.
class ActionOwner {
 public:
  virtual ~ActionOwner();

  /// The running action is about to end; what happens now still belongs to it.
  virtual void actionSettles() = 0;

  /// It has ended; another one may begin.
  virtual void actionEnded(ActionOf whose) = 0;
};

/// Knows whether an action runs. Borrows its owner, which must outlive it; belongs to the
/// interface's thread. Nothing fails.
class RunningAction final : public QObject {
 public:
  explicit RunningAction(ActionOwner &owner) : m_owner(owner) {}

  /// Actions within one another are one, and the outermost says whose.
  void begin(ActionOf whose);
  void end();

  /// Something changed. Where no action runs, a user's act on a control of the window has begun
  /// without anyone telling: an action that ends when control is back at the event loop.
  void noteChange();

 private:
  void conclude();

  ActionOwner &m_owner;
  ActionOf m_whose = ActionOf::User;
  int m_depth = 0;
  bool m_endIsPending = false;
};

/// While it lives, all that happens to the session is one action. At its end panels restore whose
/// options were changed by constraints on the way, once, and never from inside the action. Borrows
/// the session, which must outlive it. On the interface's thread; nothing fails.
class ActionScope {
 public:
  explicit ActionScope(PrintSession &session, ActionOf whose = ActionOf::User);
  ~ActionScope();
  ActionScope(const ActionScope &) = delete;
  ActionScope &operator=(const ActionScope &) = delete;

 private:
  PrintSession &m_session;
};

}  // namespace orvek
