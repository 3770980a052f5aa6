// SPDX-License-Identifier: Apache-2.0
// What the user did in a session, act by act: each can be taken back and done again, and is said in
// words. What the session does by itself is no act and is not taken back.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "host/ppd/MarksSnapshot.h"
#include "host/ticket/JobSettings.h"
#include "host/ticket/TicketFile.h"

namespace orvek {

class PrintSession;

/// All that can be set in a session, at one moment. Belongs to the session's PPD, as its marks do.
struct SessionState {
  // What is compared at least expense stands first.
  JobSettings job;
  TicketValues ticket;
  MarksSnapshot marks;

  bool operator==(const SessionState &) const = default;
};

/// One act for those who show it. Plain data.
struct HistoryEntry {
  /// Above zero and never given twice in a session.
  int step = 0;
  /// What was set, in the user's language: "Folding: Saddle fold".
  QString words;
};

/// Keeps the last acts, each with the states before and after it. Part of a session, which it
/// borrows and must not outlive; belongs to the interface's thread. Nothing fails.
class History {
 public:
  explicit History(PrintSession &session) : m_session(session) {}

  /// From here on the session is as it is now, and nothing of it can be taken back.
  void begin();

  /// The option that is being picked: what is picked first in an act is said first.
  void notePick(const QString &option);

  /// An act is over. One that changed nothing is none. Numbers and texts come letter by letter:
  /// further changes of one and the same belong to the act that began them.
  void noteAct();

  /// What changed meanwhile is nobody's act.
  void absorb();

  /// The last act; 0: none.
  int lastStep() const { return m_done.isEmpty() ? 0 : m_done.constLast().entry.step; }

  /// Newest first, as it can be taken back.
  QList<HistoryEntry> done() const { return newestFirst(m_done); }

  /// In the order in which it can be done again.
  QList<HistoryEntry> undone() const { return newestFirst(m_undone); }

  /// Takes the last act back, or does again what was taken back last: the keywords of options and
  /// the ticket's keys that are others now. Nothing without one.
  QStringList undo();
  QStringList redo();

 private:
  struct Step {
    HistoryEntry entry;
    /// The one number or text that it changed; null: something else, or more than that.
    QString typed;
    SessionState before;
    SessionState after;
  };

  static QList<HistoryEntry> newestFirst(const QList<Step> &steps);
  SessionState state() const;
  bool joinsLast(const QString &typed) const;
  QStringList go(const SessionState &from, const SessionState &to);

  PrintSession &m_session;
  SessionState m_now;
  QString m_firstPick;
  int m_lastGiven = 0;
  /// The last act was done just now, not reached by taking others back.
  bool m_isFresh = false;
  /// Newest last, each.
  QList<Step> m_done;
  QList<Step> m_undone;
};

}  // namespace orvek
