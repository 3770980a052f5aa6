// SPDX-License-Identifier: Apache-2.0
// A user who does anything at all with a session, and what holds after each action.
#pragma once

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <memory>

#include "host/session/PrintSession.h"

namespace orvek::test {

/// The same actions for the same seed. Owns the session that it walks through, on a printer made at
/// random with the real panel, and changes to another printer now and then. Belongs to the
/// interface's thread.
class Walk {
 public:
  explicit Walk(quint32 seed);

  /// Does something.
  void step();

  /// What was done last.
  const QString &action() const { return m_action; }

  /// What does not hold now; empty where all does.
  QString problem();

 private:
  struct State {
    MarksSnapshot marks;
    TicketValues choices;
  };

  void begin(const SessionSetup &setup);
  std::shared_ptr<PrinterDescription> anotherPrinter();
  State state() const;
  OptionChoice anyChoice();

  void act(int kind);
  void pick();
  void useControl();
  void setJob();
  void callPanels();
  void undo();
  void usePreset();
  void changePrinter();
  void loseServer();

  QString problemOfMarks() const;
  QString problemOfTicket() const;
  QString problemOfJob();

  QRandomGenerator m_random;
  QTemporaryDir m_folder;
  PluginList m_plugins;
  std::unique_ptr<PrintSession> m_session;
  QString m_action;
  QString m_problem;
};

}  // namespace orvek::test
