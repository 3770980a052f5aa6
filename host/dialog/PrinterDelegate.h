// SPDX-License-Identifier: Apache-2.0
// How a printer looks in the chooser's list: its name with what people call it, below that its
// state, why, and where it stands.
#pragma once

#include <QStyledItemDelegate>

namespace orvek {

/// Draws rows of a PrinterModel, all of one height. What has no room is shortened: names in the
/// middle, as their ends tell them apart. Belongs to its parent and lives on the interface's
/// thread; nothing fails.
class PrinterDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter *painter, const QStyleOptionViewItem &option,
             const QModelIndex &index) const override;
  QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

}  // namespace orvek
