// SPDX-License-Identifier: Apache-2.0
// Colours of a desktop for pictures and tests.
#pragma once

#include <QPalette>

namespace orvek::test {

inline QPalette darkPalette() {
  QPalette palette(QColor(0x31, 0x36, 0x3b), QColor(0x2a, 0x2e, 0x32));
  palette.setColor(QPalette::Base, QColor(0x1b, 0x1e, 0x20));
  palette.setColor(QPalette::AlternateBase, QColor(0x23, 0x26, 0x29));
  palette.setColor(QPalette::Highlight, QColor(0x3d, 0xae, 0xe9));
  for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText}) {
    palette.setColor(role, QColor(0xfc, 0xfc, 0xfc));
    palette.setColor(QPalette::Disabled, role, QColor(0x88, 0x8e, 0x93));
  }
  return palette;
}

}  // namespace orvek::test
