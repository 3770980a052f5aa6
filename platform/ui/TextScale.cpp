// SPDX-License-Identifier: Apache-2.0
// Measures the application's font.

#include "platform/ui/TextScale.h"

#include <QApplication>
#include <QFont>
#include <QFontInfo>
#include <algorithm>
#include <cmath>

namespace orvek {
namespace {

// Pixels; desktops choose 9 to 11 points at 96 dots per inch for their text.
constexpr double largestUsualText = 14.7;

}  // namespace

double textScale() {
  return std::max(1.0, QFontInfo(QApplication::font()).pixelSize() / largestUsualText);
}

int scaledToText(int pixels) {
  return static_cast<int>(std::lround(pixels * textScale()));
}

}  // namespace orvek
