// SPDX-License-Identifier: Apache-2.0
// A booklet's sheets one under the other, each with its front and its back. Draws only what can be
// seen.
#pragma once

#include <QAbstractScrollArea>

#include "host/preview/PreviewState.h"

namespace orvek {

class SheetsView final : public QAbstractScrollArea {
  Q_OBJECT

 public:
  explicit SheetsView(QWidget *parent = nullptr);

  void setState(const PreviewState &state);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

 private:
  int sideWidth() const;
  int rowHeight() const;
  void updateScrollBar();
  void paintRow(QPainter *painter, int sheet, int top) const;

  PreviewState m_state;
};

}  // namespace orvek
