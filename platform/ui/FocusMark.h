// SPDX-License-Identifier: Apache-2.0
// Shows where the keyboard is, on widgets that the style has no mark for.
#pragma once

class QPainter;
class QWidget;

namespace orvek {

/// Draws a frame inside the widget's edges, in the colour of what is picked, while the keyboard is
/// there, or in the scroll area whose viewport it is. The painter is the widget's, inside its paint
/// event. On the interface's thread; nothing fails.
void paintFocusMark(QPainter &painter, const QWidget &widget);

}  // namespace orvek
