// SPDX-License-Identifier: Apache-2.0
// How many copies, and in which order they come out. Shows and asks; changes nothing by itself.
#pragma once

#include <QWidget>

#include "host/ticket/JobSettings.h"

class QCheckBox;
class QSpinBox;

namespace orvek {

class FieldNote;

/// Shows settings and says what the user changes. Belongs to its parent, owns its child controls,
/// and lives on the interface's thread. Nothing fails.
class CopiesRow final : public QWidget {
  Q_OBJECT

 public:
  explicit CopiesRow(QWidget *parent = nullptr);

  /// Collation can be chosen where there is more than one copy.
  void setSettings(const JobSettings &settings);

 Q_SIGNALS:
  void copiesPicked(int copies);
  void collatePicked(bool collate);

 private:
  void watchTyping();

  QSpinBox *m_copies;
  QCheckBox *m_collate;
  FieldNote *m_note;
};

}  // namespace orvek
