// SPDX-License-Identifier: Apache-2.0
// One printing session: a printer's marks, the job's ticket, the plug-ins' panels, and the rules
// between them. Window, headless run and command line are views over it and have no rules of their
// own.
//
//   1. Setting up           begin, openPanels
//   2. What the user does   pick, setTicketValue, undo, redo; several things as one:
//                           ActionScope
//   3. Parts                origin, marks, ticket, panels
//                           job      what the job says          SessionJob
//                           record   what was heard and said    SessionRecord
//                           history  what can be taken back     History
//   4. What can be told     defaultSummary
#pragma once

#include <QObject>
#include <QStringList>
#include <memory>
#include <optional>

#include "host/panels/DefaultSummary.h"
#include "host/panels/PanelSet.h"
#include "host/session/ActionScope.h"
#include "host/session/History.h"
#include "host/session/Picks.h"
#include "host/session/SessionJob.h"
#include "host/session/SessionRecord.h"
#include "host/session/SessionSetup.h"
#include "platform/printing/PrintSessionHandle.h"

namespace orvek {

/// Owns marks, ticket and panels, and a share of the printer. Belongs to the interface's thread.
/// Only begin() fails; what can't be picked is said in words.
class PrintSession final : public QObject, private PanelListener, private ActionOwner {
  Q_OBJECT

 public:
  /// Fills the ticket: with what the queue's options say of a booklet, then as the setup's has it.
  /// Marks the PPD: its defaults, the queue's options, the ticket's choices, then the given marks.
  /// What conflicts among them gives way or is dropped as for a pick (FirstMarks.h), and the record
  /// says so. A given mark that the PPD lacks is a Usage failure.
  static Result<std::unique_ptr<PrintSession>> begin(const SessionSetup &setup);
  ~PrintSession() override;

  /// Opens the plug-ins' panels, as PanelSet does.
  void openPanels(PluginList plugins);

  /// Picks a choice as a panel's announcement does. False where the PPD lacks it or it was undone.
  bool pick(const QString &option, const QString &choice);

  /// Writes what is no choice of the PPD: a panel's key, a job's option. An invalid value removes
  /// the key.
  void setTicketValue(const QString &key, const QVariant &value) { m_ticket->setValue(key, value); }

  /// Has views say what an action changed beside what it was about, as constraints do.
  void say(const QStringList &sentences);

  /// Takes back what the user did last, or does again what was taken back last, as many acts as are
  /// asked for and there, and has the panels show it.
  void undo(int acts = 1);
  void redo(int acts = 1);
  bool canUndo() const { return !m_history.done().isEmpty(); }
  const History &history() const { return m_history; }

  /// What the session began with. Among the queue's options also stands, under the PPD's keywords,
  /// what their words stand for.
  const SessionSetup &origin() const { return m_origin; }

  const Marks &marks() const { return m_picks.marks(); }
  const Ticket &ticket() const { return *m_ticket; }

  /// The marks for those who ask what would be: whoever moves them puts them back (MarksTrial).
  Marks &marksToTry() { return m_picks.marks(); }

  PanelSet &panels() { return m_panels; }
  const PanelSet &panels() const { return m_panels; }

  SessionJob &job() { return m_job; }
  const SessionJob &job() const { return m_job; }

  const SessionRecord &record() const { return m_record; }

  /// What the summary says of a job that nobody changed; nothing while it is not known. A session
  /// that began without a ticket knows it from its own panels.
  const std::optional<SummaryText> &defaultSummary() const { return m_defaultSummary.lines(); }

  /// Finds it out where it is not known, which costs what opening the panels costs.
  void learnDefaultSummary();

 Q_SIGNALS:
  /// Constraints, or say(), changed or undid something; one sentence each.
  void noticed(const QStringList &words);

  /// Marks, ticket or summary may be others now. Comes once the running action has ended.
  void changed();

 private:
  friend class ActionScope;

  explicit PrintSession(const SessionSetup &setup);

  bool choiceAnnounced(const QString &option, const QString &choice) override;
  void panelResized() override;
  void actionSettles() override;
  void actionEnded(ActionOf whose) override;

  Status markFirst();
  bool hasOtherTicketKeys() const;
  void show(const QStringList &changedKeys);
  bool apply(const QString &option, const QString &choice);
  void notice(const Resolution &resolution);
  void noticeThickBooklet();

  // Panels borrow from all that stands before them here, and the PPD goes last.
  SessionSetup m_origin;
  std::shared_ptr<Ticket> m_ticket;
  PrintSessionHandle m_handle;
  Picks m_picks;
  SessionJob m_job;
  History m_history;
  SessionRecord m_record;
  QStringList m_actionNotices;
  /// By constraints, since the running action began.
  QStringList m_changedOptions;
  /// All panels, as the ticket has other keys than theirs alone.
  bool m_allMustRestore = false;
  /// What was said of a booklet that is too thick, and still holds.
  QString m_thickBooklet;
  DefaultSummary m_defaultSummary;
  RunningAction m_action;
  PanelSet m_panels;
};

}  // namespace orvek
