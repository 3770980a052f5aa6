// SPDX-License-Identifier: Apache-2.0
// What gives way to the screen: a page, or a window's whole body, scrolls before anything leaves
// the screen.
#pragma once

#include <QScrollArea>

namespace orvek {

/// Shows a body as large as the room it is given, and scrolls only where the body can't be that
/// small. Belongs to its parent, owns the body, and lives on the interface's thread. Nothing fails.
class ScrollingBody final : public QScrollArea {
  Q_OBJECT

 public:
  /// The body must have a layout.
  ScrollingBody(QWidget *body, QWidget *parent);

  /// The body's own.
  QSize sizeHint() const override;

  QSize minimumSizeHint() const override;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;

 private:
  QSize sizeWithin(QSize room) const;
  void fit();
};

}  // namespace orvek
