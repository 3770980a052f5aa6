// SPDX-License-Identifier: Apache-2.0
// The session's setting up, its actions and what they lead to.

#include "host/session/PrintSession.h"

#include <algorithm>
#include <utility>

#include "host/ppd/Wording.h"
#include "host/ticket/BookletSettings.h"
#include "host/ticket/ServerWords.h"
#include "platform/system/Log.h"

namespace orvek {
namespace {

Failure unknownMark(const Marks &marks, const OptionChoice &mark) {
  const QString what = QStringLiteral("--mark %1=%2").arg(mark.option, mark.choice);
  const bool optionIsKnown =
      ppdFindOption(marks.ppd(), mark.option.toUtf8().constData()) != nullptr;
  return {FailureKind::Usage, what,
          optionIsKnown ? QStringLiteral("the PPD's option %1 has no such choice").arg(mark.option)
                        : QStringLiteral("the PPD has no such option")};
}

}  // namespace

Result<std::unique_ptr<PrintSession>> PrintSession::begin(const SessionSetup &setup) {
  std::unique_ptr<PrintSession> session(new PrintSession(setup));
  if (const Status marked = session->markAll(setup); !marked) return marked.failure();
  return session;
}

PrintSession::PrintSession(const SessionSetup &setup)
    : m_printer(setup.printer),
      m_destination(setup.destination),
      m_ticket(std::make_shared<Ticket>()),
      m_picks(m_printer ? m_printer->ppd() : nullptr, m_ticket),
      m_queueOptions(setup.queueOptions),
      m_offers(setup.offers),
      m_panelsMayResize(setup.panelsMayResize) {
  setLogListener([this](const QString &line) {
    if (!m_isLearning) m_log << line;
  });
  for (auto entry = setup.ticket.begin(); entry != setup.ticket.end(); ++entry) {
    m_ticket->setValue(entry.key(), entry.value());
  }
  m_ticket->setChangeListener([this](const QString &) { endSoon(); });
}

PrintSession::~PrintSession() {
  m_ticket->setChangeListener({});
  closePanels();
  m_plugins.clear();
  setLogListener({});
}

Status PrintSession::markAll(const SessionSetup &setup) {
  Marks &marks = m_picks.marks();
  marks.markDefaults();
  markQueueOptions();
  const TicketValues values = m_ticket->values();
  // A choice by its own name counts before a word that speaks of the same.
  for (const OptionChoice &meant : ServerWords::of(marks, {}, values).choices()) {
    marks.mark(meant.option, meant.choice);
  }
  for (auto entry = values.begin(); entry != values.end(); ++entry) {
    marks.mark(entry.key(), textReading(entry.value()));
  }
  for (const OptionChoice &mark : setup.marks) {
    if (!marks.mark(mark.option, mark.choice)) return unknownMark(marks, mark);
  }
  return {};
}

void PrintSession::addPlugin(std::shared_ptr<LoadedPlugin> plugin) {
  m_plugins.push_back(std::move(plugin));
}

void PrintSession::openPanels() {
  const bool isUntouched = !hasOtherTicketKeys();
  perform([this] { makePanels(); });
  if (isUntouched) m_defaultSummary = summary();
}

// Keys of the PPD are choices, and a choice is compared with the PPD's own default.
bool PrintSession::hasOtherTicketKeys() const {
  const QStringList keys = m_ticket->values().keys();
  return std::any_of(keys.begin(), keys.end(), [this](const QString &key) {
    return ppdFindOption(marks().ppd(), key.toUtf8().constData()) == nullptr;
  });
}

void PrintSession::learnDefaultSummary() {
  if (m_defaultSummary) return;
  m_isLearning = true;
  m_defaultSummary = orvek::defaultSummary(m_plugins, m_picks.marks(), m_panelsMayResize);
  m_isLearning = false;
}

void PrintSession::reopenPanels() {
  perform([this] {
    closePanels();
    makePanels();
  });
}

void PrintSession::makePanels() {
  // Panels show what a PPD has; without one theirs would be empty pages.
  if (!m_printer) return;
  const QVariant type(QString::fromLatin1(printDialogPanelType));
  for (const auto &plugin : m_plugins) {
    const PanelLoan loan{m_picks.marks().ppd(), &m_handle, m_ticket};
    m_callbacks.push_back(PluginCallback::make(this, loan, m_panelsMayResize));
    for (const auto &panel :
         plugin->factory->PDEPanelsForType_withHostInfo(type, m_callbacks.back())) {
      if (!panel) continue;
      m_panels.emplace_back(std::make_unique<HostedPanel>(panel))->start();
    }
  }
}

void PrintSession::closePanels() {
  m_panels.clear();
  for (const auto &callback : m_callbacks) callback->detach();
  m_callbacks.clear();
}

void PrintSession::perform(const std::function<void()> &action) {
  if (m_actionDepth == 0) {
    // An act of the window that still waits for its end is over by now.
    if (m_endIsPending) endAction();
    m_picks.beginStep();
  }
  ++m_actionDepth;
  action();
  if (--m_actionDepth == 0) endAction();
}

bool PrintSession::pick(const QString &option, const QString &choice) {
  bool marked = false;
  perform([&] {
    marked = apply(option, choice);
    if (marked) m_changedOptions << option;
  });
  return marked;
}

void PrintSession::setPagesPerSheet(int pages) {
  perform([&] { m_ticket->setValue(layoutKey, pages); });
}

int PrintSession::pagesPerSheet() const {
  return integerReading(m_ticket->value(layoutKey));
}

void PrintSession::undo() {
  perform([this] { m_changedOptions << m_picks.undo(); });
}

SummaryText PrintSession::summary() const {
  return summaryOf(m_panels);
}

bool PrintSession::choiceAnnounced(const QString &option, const QString &choice) {
  m_announced.append({option, choice.isEmpty() ? QString() : choice});
  return apply(option, choice);
}

void PrintSession::panelResized() {
  ++m_resizeCount;
  for (const auto &hosted : m_panels) {
    if (hosted->container() != nullptr) hosted->container()->makeRoom();
  }
  Q_EMIT panelViewResized();
}

bool PrintSession::apply(const QString &option, const QString &choice) {
  endSoon();
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
  QStringList words = wordsFor(m_picks.marks().ppd(), resolution);
  // A restore may run into the same refusal again; it was said.
  words.removeIf([this](const QString &sentence) { return m_actionNotices.contains(sentence); });
  if (words.isEmpty()) return;
  m_actionNotices << words;
  m_notices << words;
  Q_EMIT noticed(words);
}

// A user's act on a control of the window begins without anyone telling the session, and has ended
// when control is back at the event loop.
void PrintSession::endSoon() {
  if (m_actionDepth > 0 || m_endIsPending) return;
  m_endIsPending = true;
  m_picks.beginStep();
  QMetaObject::invokeMethod(
      this,
      [this] {
        if (m_endIsPending) endAction();
      },
      Qt::QueuedConnection);
}

void PrintSession::endAction() {
  settle();
  m_endIsPending = false;
  m_actionNotices.clear();
  Q_EMIT changed();
}

void PrintSession::settle() {
  const QStringList changedOptions = std::exchange(m_changedOptions, {});
  if (changedOptions.isEmpty()) return;
  // Counts as part of the action: what panels announce now belongs to its step.
  ++m_actionDepth;
  for (const auto &hosted : m_panels) {
    if (hosted->claimsAny(changedOptions)) hosted->panel().restoreValuesAndReturnError(nullptr);
  }
  --m_actionDepth;
  // Once is enough: a panel that was told twice would be told for ever.
  m_changedOptions.clear();
}

}  // namespace orvek
