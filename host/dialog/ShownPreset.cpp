// SPDX-License-Identifier: Apache-2.0
// Compares the session's settings with those that the preset left.

#include "host/dialog/ShownPreset.h"

#include <utility>

#include "host/dialog/PresetChooser.h"
#include "host/presets/SessionPreset.h"

namespace orvek {

ShownPreset::ShownPreset(PresetChooser &chooser, QObject *parent)
    : QObject(parent), m_chooser(chooser) {
  connect(&chooser, &PresetChooser::saved, this, &ShownPreset::noteSaved);
}

void ShownPreset::follow(const PrintSession &session) {
  const bool wasChanged = m_chooser.isChanged();
  if (m_session) m_session->disconnect(this);
  m_session = &session;
  m_other.reset();
  m_own.reset();
  if (!wasChanged) m_own = settingsInForce(session);
  connect(&session, &PrintSession::changed, this, &ShownPreset::followSettings);
}

void ShownPreset::beginWith(const AppliedPreset &applied) {
  m_chooser.show(applied.entry);
  m_own = applied.after;
  m_other = Past{{}, {}, applied.before};
  followSettings();
}

ShownPreset::Past ShownPreset::past() const {
  return {m_chooser.shown(), m_own, settingsInForce(*m_session)};
}

void ShownPreset::noteBefore() {
  m_before = past();
}

void ShownPreset::noteApplied(const PresetEntry &entry) {
  m_other = m_before;
  m_chooser.show(entry);
  m_own = settingsInForce(*m_session);
}

void ShownPreset::noteSaved() {
  m_own = settingsInForce(*m_session);
  m_other.reset();
}

void ShownPreset::followSettings() {
  const bool isNone = m_chooser.shown().kind == PresetEntry::Kind::None;
  if (isNone && !m_other) return;
  const SettingsInForce now = settingsInForce(*m_session);
  if (m_own != now && m_other && m_other->then == now) {
    const Past other = std::exchange(*m_other, {m_chooser.shown(), m_own, m_own.value_or(m_last)});
    m_chooser.show(other.entry);
    m_own = other.own;
  }
  m_last = now;
  m_chooser.setChanged(m_own != now);
}

}  // namespace orvek
