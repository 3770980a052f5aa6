// SPDX-License-Identifier: Apache-2.0
// One frame for all.

#include "platform/ui/FocusMark.h"

#include <QAbstractScrollArea>
#include <QPainter>

namespace orvek {

void paintFocusMark(QPainter &painter, const QWidget &widget) {
  const auto *area = qobject_cast<const QAbstractScrollArea *>(widget.parentWidget());
  const bool isThere =
      widget.hasFocus() || (area != nullptr && area->viewport() == &widget && area->hasFocus());
  if (!isThere) return;
  constexpr int width = 2;
  constexpr qreal half = width / 2.0;
  constexpr qreal radius = 3;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(widget.palette().color(QPalette::Highlight), width));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(widget.rect()).adjusted(half, half, -half, -half), radius, radius);
}

}  // namespace orvek
