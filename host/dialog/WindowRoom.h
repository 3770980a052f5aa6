// SPDX-License-Identifier: Apache-2.0
// How large a window opens: as its content would like it, and never larger than its screen. Knows
// widgets only.
#pragma once

class QWidget;

namespace orvek {

/// Gives a window the size that its content would like to have, or as much of it as fits the
/// window's screen beside a title bar. To be called before the window is shown; from then on its
/// size is the user's. The window must have a layout. For the interface's thread; nothing fails.
void makeRoom(QWidget &window);

}  // namespace orvek
