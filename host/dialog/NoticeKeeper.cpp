// SPDX-License-Identifier: Apache-2.0
// Listens to the session and speaks through the bar.

#include "host/dialog/NoticeKeeper.h"

#include <utility>

#include "host/session/PrintSession.h"

namespace orvek {

NoticeKeeper::NoticeKeeper(NoticeBar &bar, QObject *parent) : QObject(parent), m_bar(bar) {
  connect(&m_bar, &NoticeBar::undoAsked, this, [this] {
    if (m_session != nullptr) m_session->undo();
  });
}

void NoticeKeeper::follow(PrintSession &session) {
  if (m_session != nullptr) m_session->disconnect(this);
  fallSilent();
  m_session = &session;
  connect(m_session, &PrintSession::noticed, this, &NoticeKeeper::add);
  connect(m_session, &PrintSession::changed, this, &NoticeKeeper::update);
}

void NoticeKeeper::sayEarlier() {
  const QStringList &earlier = m_session->record().notices();
  if (earlier.isEmpty()) return;
  m_noticedMarks = m_session->marks().snapshot();
  m_bar.say(NoticeBar::Kind::Information, earlier, m_session->canUndo());
}

void NoticeKeeper::say(NoticeBar::Kind kind, const QStringList &sentences) {
  m_noticedMarks = m_session->marks().snapshot();
  m_bar.say(kind, sentences, false);
}

void NoticeKeeper::sayFurther(const QStringList &sentences) {
  const QStringList before = std::exchange(m_isNew, false) ? m_bar.sentences() : QStringList();
  say(NoticeBar::Kind::Information, before + sentences);
}

void NoticeKeeper::fallSilent() {
  m_bar.fallSilent();
}

void NoticeKeeper::add(const QStringList &sentences) {
  const bool addsToNew = std::exchange(m_isNew, true);
  const QStringList all = addsToNew ? m_bar.sentences() + sentences : sentences;
  m_bar.say(NoticeBar::Kind::Information, all, true);
}

// A notice stands until the next choice is made: its Undo would take back that one.
void NoticeKeeper::update() {
  const MarksSnapshot marks = m_session->marks().snapshot();
  if (std::exchange(m_isNew, false)) {
    m_noticedMarks = marks;
    m_bar.say(NoticeBar::Kind::Information, m_bar.sentences(), m_session->canUndo());
  } else if (marks != m_noticedMarks) {
    m_bar.fallSilent();
  }
}

}  // namespace orvek
