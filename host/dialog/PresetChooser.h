// SPDX-License-Identifier: Apache-2.0
// The row of presets: pick one, save, rename, delete. Works on the store; what is in a preset, and
// what becomes of one that was picked, is the window's business.
#pragma once

#include <QWidget>
#include <functional>
#include <memory>

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

  QComboBox *menu() const { return m_menu; }

 Q_SIGNALS:
  void picked(const orvek::Preset &preset);
  void failed(const orvek::Failure &failure);

 private:
  void buildActions();
  void pick(int index);
  void saveAs();
  void rename();
  void remove();
  void show(const QString &name);
  void updateActions();
  QString currentName() const;
  QString askForName(const QString &title, const QString &proposal);
  bool mayReplace(const QString &name);

  std::shared_ptr<PresetStore> m_store;
  Snapshot m_snapshot;
  QString m_queue;
  QComboBox *m_menu;
  QToolButton *m_button;
  QAction *m_rename = nullptr;
  QAction *m_remove = nullptr;
};

}  // namespace orvek
