// SPDX-License-Identifier: Apache-2.0
// Frames as panels speak of them: in points, origin at the lower left of the superview, y growing
// upward. Qt's own rectangles grow downward; the conversion stands here and nowhere else.
#pragma once

#include <QRectF>
#include <QSizeF>

class QWidget;

namespace orvek {

/// The edge of its superview from which a view keeps its distance when the superview is resized.
enum class PinnedEdge { Top, Bottom };

/// The dynamic property of an interface resource that names the edge: "top" (also by default) or
/// "bottom".
inline constexpr const char *pinnedProperty = "pinned";

/// An absent view reads as all zero. A view without superview has its origin at (0, 0).
QRectF frame(const QWidget *view);

/// Moves and sizes the view. Its subviews keep their distance from the edge they are pinned to.
/// Nothing for an absent view.
void setFrame(QWidget *view, const QRectF &frame);

/// The size alone; the frame's origin (its lower left) stays where it is.
QSizeF frameSize(const QWidget *view);
void setFrameSize(QWidget *view, const QSizeF &size);

PinnedEdge pinnedEdge(const QWidget *view);

}  // namespace orvek
