// SPDX-License-Identifier: Apache-2.0
// What a panel may show of itself to those who script or test a dialog. A host asks for it with
// dynamic_cast and never needs it to work.
#pragma once

#include <QList>
#include <QPair>
#include <QString>

class QWidget;

/// Read on the interface's thread, while the panel lives. All it hands out is the panel's; nothing
/// fails, and what is not there is null.
class PDEInspection {
 public:
  virtual ~PDEInspection();

  /// Every view and control the panel knows, by name; null for one that its interface resource
  /// lacks.
  virtual QList<QPair<QString, QWidget *>> inspectedControls() const = 0;

  /// The panel's current selections: a name and the PPD keyword of the choice; null where empty.
  virtual QList<QPair<QString, QString>> inspectedSelections() const = 0;

  /// The printer's model number as the panel read it; null until then.
  virtual QString inspectedModelNumber() const = 0;
};
