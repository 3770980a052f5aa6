// SPDX-License-Identifier: Apache-2.0
// Where a job goes and what it begins with: the pop-ups of printers and presets with their labels,
// in one row where there is room.
#pragma once

#include <memory>

#include "host/dialog/PresetChooser.h"
#include "host/printers/ServerAccess.h"
#include "host/settings/FlowRow.h"

namespace orvek {

class PrinterChooser;

/// Lays the two out and does nothing by itself. Belongs to its parent, owns its child controls, and
/// lives on the interface's thread. Nothing fails.
class ChooserRow final : public FlowRow {
  Q_OBJECT

 public:
  /// Without a store there are no presets.
  ChooserRow(const ServerAccess &access, const std::shared_ptr<PresetStore> &store,
             const PresetChooser::Snapshot &snapshot, QWidget *parent);

  PrinterChooser *printers() const { return m_printers; }

  /// Null: no presets.
  PresetChooser *presets() const { return m_presets; }

 private:
  void addGroup(QWidget *chooser, QWidget *menu, const QString &text);

  PrinterChooser *m_printers;
  PresetChooser *m_presets = nullptr;
};

}  // namespace orvek
