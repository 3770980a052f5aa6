// SPDX-License-Identifier: Apache-2.0
// How large a window is that has as much room as its content takes. Knows widgets only.
#pragma once

#include <QSize>

class QWidget;

namespace orvek {

/// Grows and shrinks a window with its content; a size that the user chose only grows, where it
/// must. Borrows the window, which must have a layout and outlive it. Owns nothing; belongs to the
/// interface's thread, and nothing fails.
class WindowRoom {
 public:
  explicit WindowRoom(QWidget &window) : m_window(window) {}

  /// To be called whenever the content may take other room than before.
  void make();

 private:
  QWidget &m_window;
  /// The size that was chosen here last; another one is the user's choice.
  QSize m_ownSize;
};

}  // namespace orvek
