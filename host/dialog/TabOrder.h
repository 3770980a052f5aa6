// SPDX-License-Identifier: Apache-2.0
// The way of the Tab key through a window: as the eye goes, not as its parts were made, since pages
// are made when they are first shown.
#pragma once

class QWidget;

namespace orvek {

/// Gives the keyboard to what takes the Tab key next (or before), in the order in which the window
/// lays out its parts; within a part that lays out nothing, as pages do, in the toolkit's order.
/// What stands in no layout comes first. False where nothing takes it. On the interface's thread;
/// nothing fails.
bool moveFocus(QWidget &window, bool next);

}  // namespace orvek
