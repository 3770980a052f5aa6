// SPDX-License-Identifier: Apache-2.0
// Sizes, and how one fits into another.

#include "imposition/Geometry.h"

#include <algorithm>
#include <cmath>

namespace orvek::imposition {
namespace {

bool isLength(double length) {
  return std::isfinite(length) && length > 0;
}

}  // namespace

bool isDrawable(Size size) {
  return isLength(size.width) && isLength(size.height);
}

Size scaledInto(Size size, Size room) {
  if (!isDrawable(size) || !isDrawable(room)) return {};
  const double scale = std::min(room.width / size.width, room.height / size.height);
  return {size.width * scale, size.height * scale};
}

Frame within(const Frame &frame, const Frame &area) {
  const double left = std::clamp(frame.x, area.x, area.right());
  const double top = std::clamp(frame.y, area.y, area.bottom());
  return {left, top, std::clamp(frame.right(), area.x, area.right()) - left,
          std::clamp(frame.bottom(), area.y, area.bottom()) - top};
}

Frame within(const Frame &frame, Size paper) {
  return within(frame, Frame{0, 0, paper.width, paper.height});
}

}  // namespace orvek::imposition
