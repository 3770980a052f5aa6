// SPDX-License-Identifier: Apache-2.0
// Listens to the session and speaks through the bar.

#include "host/dialog/NoticeKeeper.h"

#include <algorithm>
#include <utility>

#include "host/session/PrintSession.h"

namespace orvek {
namespace {

// Nobody reads more.
constexpr int mostKept = 30;

bool has(const QList<HistoryEntry> &entries, int step) {
  return std::any_of(entries.begin(), entries.end(),
                     [step](const HistoryEntry &entry) { return entry.step == step; });
}

}  // namespace

NoticeKeeper::NoticeKeeper(NoticeBar &bar, QObject *parent) : QObject(parent), m_bar(bar) {
  connect(&m_bar, &NoticeBar::undoAsked, this, &NoticeKeeper::undo);
  connect(&m_bar, &NoticeBar::againAsked, this, &NoticeKeeper::tryAgain);
  connect(&m_bar, &NoticeBar::dismissed, this, &NoticeKeeper::dismiss);
  connect(&m_bar, &NoticeBar::turned, this, &NoticeKeeper::turn);
}

void NoticeKeeper::follow(PrintSession &session) {
  if (m_session != nullptr) m_session->disconnect(this);
  m_session = &session;
  m_kept.clear();
  m_collected.clear();
  m_lastStep = m_session->history().lastStep();
  m_stepOfLastAction = 0;
  showNewest(false);
  connect(m_session, &PrintSession::noticed, this, &NoticeKeeper::collect);
  connect(m_session, &PrintSession::changed, this, &NoticeKeeper::update);
}

void NoticeKeeper::sayEarlier() {
  const QStringList &earlier = m_session->record().notices();
  if (!earlier.isEmpty()) {
    add({NoticeBar::Kind::Information, earlier, m_session->history().lastStep()});
  }
}

void NoticeKeeper::say(NoticeBar::Kind kind, const QStringList &sentences, const Again &again) {
  remove(sentences);
  add({kind, sentences, 0, again});
}

void NoticeKeeper::withdraw(const QStringList &sentences) {
  const auto before = m_kept.size();
  remove(sentences);
  if (m_kept.size() != before) showNewest(false);
}

void NoticeKeeper::remove(const QStringList &sentences) {
  m_kept.removeIf([&](const Kept &kept) { return kept.step == 0 && kept.sentences == sentences; });
}

void NoticeKeeper::sayFurther(const QStringList &sentences) {
  const int step = m_stepOfLastAction;
  const bool goesOn = step > 0 && !m_kept.isEmpty() && m_kept.constLast().step == step;
  const QStringList before = goesOn ? m_kept.takeLast().sentences : QStringList();
  add({NoticeBar::Kind::Information, before + sentences, step});
}

void NoticeKeeper::forgetOthers() {
  m_kept.removeIf([](const Kept &kept) { return kept.step == 0; });
  showNewest(false);
}

void NoticeKeeper::collect(const QStringList &sentences) {
  m_collected << sentences;
}

// An action has ended: what was said during it is about the act that it was, if it was one.
void NoticeKeeper::update() {
  const int last = m_session->history().lastStep();
  m_stepOfLastAction = last > m_lastStep ? last : 0;
  m_lastStep = std::max(last, m_lastStep);
  dropForgotten();
  const QStringList said = std::exchange(m_collected, {});
  if (!said.isEmpty()) {
    add({NoticeBar::Kind::Information, said, m_stepOfLastAction});
  } else if (m_shown >= 0 && m_shown < m_kept.size() && stands(m_kept[m_shown])) {
    show(m_shown, false);
  } else {
    showNewest(false);
  }
}

void NoticeKeeper::add(const Kept &notice) {
  m_kept << notice;
  if (m_kept.size() > mostKept) m_kept.removeFirst();
  showNewest(true);
}

// What was taken back and can't be done again has no notice that could come back.
void NoticeKeeper::dropForgotten() {
  const QList<HistoryEntry> undone = m_session->history().undone();
  const auto isGone = [&](const Kept &kept) { return !stands(kept) && !has(undone, kept.step); };
  for (int place = static_cast<int>(m_kept.size()) - 1; place >= 0; --place) {
    if (!isGone(m_kept[place])) continue;
    m_kept.removeAt(place);
    if (m_shown == place) m_shown = -1;
    if (m_shown > place) --m_shown;
  }
}

bool NoticeKeeper::stands(const Kept &notice) const {
  return notice.step == 0 || has(m_session->history().done(), notice.step);
}

QList<int> NoticeKeeper::standing() const {
  QList<int> places;
  for (int place = 0; place < m_kept.size(); ++place) {
    if (stands(m_kept[place])) places << place;
  }
  return places;
}

void NoticeKeeper::showNewest(bool isNew) {
  const QList<int> places = standing();
  if (!places.isEmpty()) return show(places.constLast(), isNew);
  m_shown = -1;
  m_bar.fallSilent();
}

void NoticeKeeper::show(int place, bool isNew) {
  m_shown = place;
  const QList<int> places = standing();
  const Kept &kept = m_kept[place];
  m_bar.say({kept.kind, kept.sentences, takenBackWith(kept), kept.again != nullptr,
             static_cast<int>(places.indexOf(place)) + 1, static_cast<int>(places.size())},
            isNew);
}

void NoticeKeeper::turn(int places) {
  const QList<int> all = standing();
  const int next = static_cast<int>(all.indexOf(m_shown)) + places;
  if (next >= 0 && next < all.size()) show(all[next], true);
}

void NoticeKeeper::dismiss() {
  if (m_shown < 0) return;
  m_kept.removeAt(m_shown);
  showNewest(false);
}

void NoticeKeeper::undo() {
  if (m_shown >= 0) m_session->undo(static_cast<int>(takenBackWith(m_kept[m_shown]).size()));
}

// It is no longer true while it is tried.
void NoticeKeeper::tryAgain() {
  if (m_shown < 0) return;
  const Again again = m_kept[m_shown].again;
  dismiss();
  if (again) again();
}

QStringList NoticeKeeper::takenBackWith(const Kept &notice) const {
  QStringList words;
  if (notice.step == 0) return words;
  for (const HistoryEntry &entry : m_session->history().done()) {
    words << entry.words;
    if (entry.step == notice.step) break;
  }
  return words;
}

}  // namespace orvek
