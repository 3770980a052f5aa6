// SPDX-License-Identifier: Apache-2.0
// Presets as files in the user's data folder: plain JSON, one file each, replaced as a whole.
#pragma once

#include <QList>
#include <QStringList>
#include <optional>

#include "host/presets/Preset.h"

namespace orvek {

/// What there is, and what can't be read. Plain data.
struct PresetListing {
  /// In the order of the user's language.
  QStringList names;
  /// One for each file that is no preset; its `what` names it.
  QList<Failure> damaged;
};

/// The user's presets, and for each queue what was used last. Reads and writes at every call, so
/// that two programs can share the folder. A damaged file is reported and never written over. Holds
/// no file open and has no locks; copies may be used on several threads. Failures name the preset
/// or its file.
class PresetStore {
 public:
  /// The folder holds `presets` and `last-used`, and `last-used-off` where nothing is to be
  /// remembered; it is made when first written to.
  explicit PresetStore(const QString &folder = standardFolder());

  /// $XDG_DATA_HOME/orvek-print, or what stands for it.
  static QString standardFolder();

  PresetListing list() const;

  /// Failures: Usage for a name that won't do, Io where there is none of that name or it can't be
  /// read, Invalid where it is damaged.
  Result<Preset> load(const QString &name) const;

  /// Writes it under its name, in place of one that is there. A Usage failure for a name that won't
  /// do, or that lists of presets have for themselves.
  Status save(const Preset &preset);

  /// Fails where there is none of the old name, or already one of the new.
  Status rename(const QString &from, const QString &to);

  /// Where one of that name is, or would be.
  QString fileOf(const QString &name) const;

  /// Also removes a damaged one.
  Status remove(const QString &name);

  /// What was last printed with on `queue`; empty where nothing was.
  Result<std::optional<Preset>> lastUsed(const QString &queue) const;
  Status saveLastUsed(const QString &queue, const Preset &preset);

  /// Whether users want what they printed with last to be remembered, which they do unless they
  /// said otherwise. Saying no forgets what is remembered, for all queues, damaged or not.
  bool remembers() const;
  Status setRemembers(bool remembers);

 private:
  QString lastUsedFileOf(const QString &queue) const;

  QString m_presets;
  QString m_lastUsed;
  QString m_off;
};

}  // namespace orvek
