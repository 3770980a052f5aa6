// SPDX-License-Identifier: Apache-2.0
// Lengths and places. Points throughout; y grows downwards from the upper left corner.
#pragma once

namespace orvek::imposition {

struct Size {
  double width = 0;
  double height = 0;

  bool operator==(const Size &) const = default;
};

/// A rectangle: its upper left corner, and its size.
struct Frame {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  double right() const { return x + width; }
  double bottom() const { return y + height; }

  bool operator==(const Frame &) const = default;
};

/// Whether there is anything to draw on: both lengths are positive and finite.
bool isDrawable(Size size);

/// The largest size with the proportions of `size` that fits into `room`. Nothing for a size or a
/// room that is not drawable.
Size scaledInto(Size size, Size room);

/// The part of a frame that lies in an area, or on paper of this size; an empty frame at its edge
/// for none.
Frame within(const Frame &frame, const Frame &area);
Frame within(const Frame &frame, Size paper);

}  // namespace orvek::imposition
