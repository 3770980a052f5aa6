// SPDX-License-Identifier: Apache-2.0
// Which preset a session's settings came from.
#pragma once

#include <QMap>
#include <QString>

namespace orvek {

/// One entry of a list of presets: none of them, what was used last on the queue, or a saved one.
/// Plain data.
struct PresetEntry {
  enum class Kind { None, LastUsed, Saved };

  Kind kind = Kind::None;
  /// Of a saved one.
  QString name;

  bool operator==(const PresetEntry &) const = default;
};

/// All that presets bring, by keyword or key: for telling whether settings are others by now.
using SettingsInForce = QMap<QString, QString>;

/// A preset that was put into a session. Plain data.
struct AppliedPreset {
  PresetEntry entry;
  /// The session's settings without it.
  SettingsInForce before;
  /// The session's settings by it, before anything else was changed.
  SettingsInForce after;
};

}  // namespace orvek
