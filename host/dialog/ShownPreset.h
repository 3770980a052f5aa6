// SPDX-License-Identifier: Apache-2.0
// Which preset the settings on show came from, and whether they are others by now.
#pragma once

#include <QObject>
#include <QPointer>
#include <optional>

#include "host/presets/AppliedPreset.h"
#include "host/session/PrintSession.h"

namespace orvek {

class PresetChooser;

/// Has a chooser of presets follow a session: through changes, undo and redo. Borrows the chooser,
/// which must outlive it, and a session as long as that lives. Belongs to its parent and lives on
/// the interface's thread. Nothing fails.
class ShownPreset final : public QObject {
  Q_OBJECT

 public:
  ShownPreset(PresetChooser &chooser, QObject *parent);

  /// Follows another session, into which the settings came along by now.
  void follow(const PrintSession &session);

  /// The session began with this.
  void beginWith(const AppliedPreset &applied);

  /// Before a preset is put into the session, and after it.
  void noteBefore();
  void noteApplied(const PresetEntry &entry);

  /// The settings are what the entry on show says.
  void noteSaved();

 private:
  struct Past {
    PresetEntry entry;
    std::optional<SettingsInForce> own;
    /// The session's, when another entry came in its place.
    SettingsInForce then;
  };

  Past past() const;
  void followSettings();

  PresetChooser &m_chooser;
  QPointer<const PrintSession> m_session;
  /// The shown entry's; nothing: the session has had others since it is followed.
  std::optional<SettingsInForce> m_own;
  /// What comes back if the preset is undone, or done again.
  std::optional<Past> m_other;
  Past m_before;
  /// The session's, when it was looked at last.
  SettingsInForce m_last;
};

}  // namespace orvek
