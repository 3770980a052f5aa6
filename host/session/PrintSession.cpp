// SPDX-License-Identifier: Apache-2.0
// The session's setting up, its picks and what they lead to.

#include "host/session/PrintSession.h"

#include <algorithm>
#include <utility>

#include "host/ppd/Wording.h"
#include "host/session/FirstMarks.h"
#include "host/session/JobWarnings.h"
#include "host/session/TicketBounds.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/JobOptions.h"
#include "platform/system/OptionMap.h"

namespace orvek {
namespace {

// A job does without saying what its queue does by itself, but a panel knows the ticket alone, and
// what it reads there it says: a booklet that was missing would be called off.
void beginTicket(Ticket &ticket, const SessionSetup &setup, const PrinterDescription &printer) {
  for (const OptionChoice &saved : setup.queueOptions) {
    if (const int pages = pagesPerSheetIn(saved); pages > 0) ticket.setValue(layoutNUpKey, pages);
    const auto entry = bookletEntry(saved);
    if (!entry || printer.has(entry->option)) continue;
    if (!valueNamed(setup.ticket, entry->option)) ticket.setValue(entry->option, entry->choice);
  }
  for (auto entry = setup.ticket.begin(); entry != setup.ticket.end(); ++entry) {
    ticket.setValue(entry.key(), entry.value());
  }
}

}  // namespace

Result<std::unique_ptr<PrintSession>> PrintSession::begin(const SessionSetup &setup) {
  std::unique_ptr<PrintSession> session(new PrintSession(setup));
  if (const Status marked = session->markFirst(); !marked) return marked.failure();
  return session;
}

PrintSession::PrintSession(const SessionSetup &setup)
    : m_origin(setup),
      m_ticket(std::make_shared<Ticket>()),
      m_picks(m_origin.printer ? *m_origin.printer : PrinterDescription::none(), m_ticket),
      m_job(*this),
      m_history(*this),
      m_action(*this),
      m_panels(*this, {marks().printer().lend(), &m_handle, m_ticket}, setup.panelsMayResize) {
  beginTicket(*m_ticket, setup, marks().printer());
}

PrintSession::~PrintSession() {
  m_ticket->setChangeListener({});
  m_panels.close();
}

Status PrintSession::markFirst() {
  const Result<QList<Resolution>> settled = orvek::markFirst(m_picks.marks(), *m_ticket, m_origin);
  if (!settled) return settled.failure();
  for (const Resolution &resolution : settled.value()) notice(resolution);
  m_record.noteNotices(boundCopies(*m_ticket, marks().printer()));
  // What the queue's words stand for is as good as said: whoever asks what the queue would do by
  // itself finds it by the PPD's name.
  m_origin.queueOptions = withMeanings(m_picks.marks(), m_origin.queueOptions);
  m_job.beginAsSaved();
  m_history.begin();
  m_ticket->setChangeListener([this](const QString &) { m_action.noteChange(); });
  return {};
}

void PrintSession::openPanels(PluginList plugins) {
  const bool isUntouched = !hasOtherTicketKeys();
  {
    const ActionScope action(*this, ActionOf::Host);
    m_panels.open(std::move(plugins));
  }
  if (isUntouched) m_defaultSummary.know(m_panels.summary());
}

// Keys of the PPD are choices, and a choice is compared with the PPD's own default.
bool PrintSession::hasOtherTicketKeys() const {
  const QStringList keys = m_ticket->values().keys();
  return std::any_of(keys.begin(), keys.end(),
                     [this](const QString &key) { return !marks().printer().has(key); });
}

void PrintSession::learnDefaultSummary() {
  if (m_defaultSummary.lines()) return;
  const SessionRecord::Pause pause(m_record);
  m_defaultSummary.learn(m_panels, m_picks.marks());
}

bool PrintSession::pick(const QString &option, const QString &choice) {
  const ActionScope action(*this);
  const bool marked = apply(option, choice);
  if (marked) m_changedOptions << option;
  return marked;
}

void PrintSession::undo(int acts) {
  const ActionScope action(*this, ActionOf::Host);
  for (int act = 0; act < acts; ++act) show(m_history.undo());
}

void PrintSession::redo(int acts) {
  const ActionScope action(*this, ActionOf::Host);
  for (int act = 0; act < acts; ++act) show(m_history.redo());
}

// Nobody knows which panel reads which of the ticket's own keys.
void PrintSession::show(const QStringList &changedKeys) {
  m_changedOptions << changedKeys;
  const bool hasOthers =
      std::any_of(changedKeys.begin(), changedKeys.end(),
                  [this](const QString &key) { return !marks().printer().has(key); });
  m_allMustRestore = m_allMustRestore || hasOthers;
}

bool PrintSession::choiceAnnounced(const QString &option, const QString &choice) {
  m_record.noteAnnouncement(option, choice);
  return apply(option, choice);
}

void PrintSession::panelResized() {
  m_record.noteResize();
  m_panels.makeRoom();
}

bool PrintSession::apply(const QString &option, const QString &choice) {
  m_action.noteChange();
  m_history.notePick(option);
  const std::optional<Resolution> resolution = m_picks.pick(option, choice);
  if (!resolution) return false;
  // Undone, the pick of a choice that was marked before has changed nothing.
  const OptionChoice &wanted = resolution->pick;
  if (marks().marked(wanted.option) != wanted.choice) m_changedOptions << wanted.option;
  for (const ChoiceChange &change : resolution->changes) m_changedOptions << change.option;
  notice(*resolution);
  return resolution->marked;
}

void PrintSession::notice(const Resolution &resolution) {
  QStringList words = wordsFor(marks().printer(), resolution);
  // A restore may run into the same refusal again; it was said.
  words.removeIf([this](const QString &sentence) { return m_actionNotices.contains(sentence); });
  if (!words.isEmpty()) say(words);
}

void PrintSession::say(const QStringList &sentences) {
  m_actionNotices << sentences;
  m_record.noteNotices(sentences);
  Q_EMIT noticed(sentences);
}

// Where it is made so thick, not as late as at the printer.
void PrintSession::noticeThickBooklet() {
  const QString words = thickBooklet(*this);
  if (std::exchange(m_thickBooklet, words) != words && !words.isNull()) say({words});
}

void PrintSession::actionSettles() {
  noticeThickBooklet();
  const QStringList changedOptions = std::exchange(m_changedOptions, {});
  if (changedOptions.isEmpty()) return;
  if (std::exchange(m_allMustRestore, false)) {
    m_panels.restore();
  } else {
    m_panels.restoreClaiming(changedOptions);
  }
  // Once is enough: a panel that was told twice would be told for ever.
  m_changedOptions.clear();
}

void PrintSession::actionEnded(ActionOf whose) {
  m_actionNotices.clear();
  if (whose == ActionOf::User) {
    m_history.noteAct();
  } else {
    m_history.absorb();
  }
  Q_EMIT changed();
}

}  // namespace orvek
