// SPDX-License-Identifier: Apache-2.0
// Frames as panels speak of them: in points, origin at the lower left of the superview, y growing
// upward. Qt's own rectangles grow downward; the conversion stands here and nowhere else. A point
// is a pixel but where the desktop's text is large, and frames are those of the left-to-right
// design whichever way the interface is read.
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

/// Whether a view is of no use but to hold others, by its class: one of a plug-in's own may paint
/// anything. False for an absent view.
bool onlyHoldsViews(const QWidget *view);

/// Has a tree of views that was designed for text of the usual size, read from the left, stand as
/// the application is now: grown with its text, and mirrored where it is read from the right. Its
/// frames are as designed from then on. To be called once, before anything is moved. Nothing for an
/// absent view.
void adoptDesign(QWidget *root);

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
