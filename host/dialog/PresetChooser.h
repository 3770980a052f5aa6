// SPDX-License-Identifier: Apache-2.0
// The row of presets: pick one, save, rename, delete. Works on the store; what is in a preset, and
// what becomes of one that was picked, is the window's business.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

#include "host/presets/AppliedPreset.h"
#include "host/presets/PresetStore.h"

class QAction;
class QComboBox;
class QToolButton;

namespace orvek {

/// Shares the store, whose failures it emits. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread.
class PresetChooser final : public QWidget {
  Q_OBJECT

 public:
  /// Gives what is to be saved under a name.
  using Snapshot = std::function<Preset(const QString &name)>;

  PresetChooser(std::shared_ptr<PresetStore> store, Snapshot snapshot, QWidget *parent = nullptr);

  /// Shows what the store has now, and what was used last on `queue` (empty: none).
  void reload(const QString &queue);

  /// The entry that the settings came from.
  const PresetEntry &shown() const { return m_shown; }

  /// Shows that entry, unchanged; none where there is no such entry.
  void show(const PresetEntry &entry);

  /// Whether the settings are others by now than the entry's.
  void setChanged(bool isChanged);
  bool isChanged() const { return m_isChanged; }

  QComboBox *menu() const { return m_menu; }

 Q_SIGNALS:
  /// What is shown is still the entry before.
  void picked(const orvek::PresetEntry &entry, const orvek::Preset &preset);

  /// The settings as they are were saved under the name that is shown by now.
  void saved();
  void failed(const orvek::Failure &failure);

 private:
  void buildActions();
  void pick(int row);
  void saveAs();
  void rename();
  void remove();
  void setRemembers(bool remembers);
  void listEntries();
  void updateActions();
  int rowOf(const PresetEntry &entry) const;
  PresetEntry entryAt(int row) const;
  Result<Preset> read(const PresetEntry &entry) const;
  bool isOurs(const QString &name) const;
  QString askForName(const QString &title, const QString &proposal);
  bool mayReplace(const QString &name);

  std::shared_ptr<PresetStore> m_store;
  Snapshot m_snapshot;
  QString m_queue;
  PresetEntry m_shown;
  bool m_isChanged = false;
  QComboBox *m_menu;
  QToolButton *m_button;
  QAction *m_rename = nullptr;
  QAction *m_remove = nullptr;
  QAction *m_remember = nullptr;
};

}  // namespace orvek
