// SPDX-License-Identifier: Apache-2.0
// Width and height of a paper size of one's own, in the user's unit. Shows and asks; changes
// nothing by itself.
#pragma once

#include <QWidget>

#include "host/ppd/Paper.h"

class QDoubleSpinBox;

namespace orvek {

/// Shows a size and says what the user changes; keeps to the printer's limits. Belongs to its
/// parent, owns its child controls, and lives on the interface's thread. Nothing fails.
class CustomSizeRow final : public QWidget {
  Q_OBJECT

 public:
  explicit CustomSizeRow(QWidget *parent = nullptr);

  /// The size in points, and what the printer takes.
  void setSize(QSizeF size, const CustomPaperLimits &limits);

  /// The size on show as a choice of the PPD's PageSize.
  QString choice() const;

 Q_SIGNALS:
  void choicePicked(const QString &choice);

 private:
  QDoubleSpinBox *addField(const QString &name, const QString &text);

  PaperUnit m_unit;
  QDoubleSpinBox *m_width;
  QDoubleSpinBox *m_height;
};

}  // namespace orvek
