// SPDX-License-Identifier: Apache-2.0
// Pages whose every spot says which page it is of, and whether it lies in the upper half, in the
// lower one or on the outline: so that a page is known, and its turn, by whatever part of it is
// left on a sheet.
#pragma once

#include <optional>
#include <string>

#include "imposition/Geometry.h"

namespace orvek::test {

inline constexpr int mostCodedPages = 64;

enum class PagePart { Outline, Upper, Lower };

/// What a spot's colour says.
struct Spot {
  int page = 0;
  PagePart part = PagePart::Outline;
};

/// The drawing operators of such a page, numbered from 1 to mostCodedPages; in points from the
/// lower left corner.
std::string codedPage(int number, imposition::Size size);

/// PostScript of such pages. It leaves the paper to the printer, so they ought to have its size.
std::string codedPostScript(int pages, imposition::Size size);

/// Reads a colour, 0 to 255 each; nothing where it is no page's.
std::optional<Spot> spotOf(int red, int green, int blue);

}  // namespace orvek::test
