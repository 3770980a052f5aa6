// SPDX-License-Identifier: Apache-2.0
// What the commonest job is told, in one line that no page hides: how many copies, which pages, on
// one side or two. Shows and changes a session; no rules of its own.
#pragma once

#include "host/session/PrintSession.h"
#include "host/settings/FlowRow.h"

class QLabel;

namespace orvek {

class Availability;
class ChoiceBox;
class CopiesRow;
class PagesRow;

/// Stands above the pages, whatever the printer. What the printer has nothing for is hidden.
/// Borrows the session, which must outlive it. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread. Nothing fails: a pick that was refused is the session's to say.
class JobStrip final : public FlowRow {
  Q_OBJECT

 public:
  /// Borrows the session, which must outlive the strip.
  explicit JobStrip(PrintSession &session, QWidget *parent = nullptr);

  /// Gives the strip's texts keyboard letters that nothing else has that is shown now.
  void assignLetters();

 protected:
  void showEvent(QShowEvent *event) override;

 private:
  QLabel *addGroup(const QString &text, QWidget *field);
  void connectControls();
  void showState();

  PrintSession &m_session;
  CopiesRow *m_copies;
  PagesRow *m_pages;
  ChoiceBox *m_sides;
  QLabel *m_sidesLabel;
};

}  // namespace orvek
