// SPDX-License-Identifier: Apache-2.0
// Where the bar of notices stands: beside the buttons, where there is room anyway.
#pragma once

#include <QScrollArea>

namespace orvek {

/// Takes room while the bar has something to say: as much as its words need, but never more than a
/// share of the window, so that a long list can't push anything else away; it scrolls then. Belongs
/// to its parent, owns the bar, and lives on the interface's thread. Nothing fails.
class NoticePlace final : public QScrollArea {
  Q_OBJECT

 public:
  NoticePlace(QWidget *bar, QWidget *parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
};

}  // namespace orvek
