// SPDX-License-Identifier: Apache-2.0
// Asks the layout what it would like, and the screen what there is.

#include "host/dialog/WindowRoom.h"

#include <QLayout>
#include <QScreen>
#include <QWidget>

namespace orvek {
namespace {

// Pixels of the screen that window managers take for a window's frame. They tell how many only once
// the window is there.
constexpr int frameWidth = 8;
constexpr int frameHeight = 40;

}  // namespace

void makeRoom(QWidget &window) {
  window.layout()->activate();
  const QSize wish = window.sizeHint();
  const QSize there = window.screen()->availableGeometry().size() - QSize(frameWidth, frameHeight);
  // A picture of a window may be larger than any screen.
  window.resize(window.testAttribute(Qt::WA_DontShowOnScreen) ? wish : wish.boundedTo(there));
}

}  // namespace orvek
