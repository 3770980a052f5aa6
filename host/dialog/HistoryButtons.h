// SPDX-License-Identifier: Apache-2.0
// Undo and Redo, each with a list of what was done.
#pragma once

#include <QWidget>

class QToolButton;

namespace orvek {

class PrintSession;
struct HistoryEntry;

/// Shows a session's history and goes through it. Borrows the session, which must outlive it.
/// Belongs to its parent, owns its child controls, and lives on the interface's thread. Nothing
/// fails.
class HistoryButtons final : public QWidget {
  Q_OBJECT

 public:
  HistoryButtons(PrintSession &session, QWidget *parent);

 private:
  enum class Direction { Back, Forward };

  QToolButton *addButton(Direction direction);
  void go(Direction direction, int acts);
  void list(Direction direction, QToolButton *button);
  void follow();

  PrintSession &m_session;
  QToolButton *m_undo;
  QToolButton *m_redo;
};

}  // namespace orvek
