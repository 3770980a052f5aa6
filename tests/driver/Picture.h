// SPDX-License-Identifier: Apache-2.0
// Printed sides as pictures, and the marked pages that are seen on them.
#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "imposition/Booklet.h"
#include "imposition/Geometry.h"

namespace orvek::test {

/// A page as it is seen on a side as it came out of the printer. Points, from the upper left.
struct SeenPage {
  int page = 0;
  imposition::Frame frame;
  /// Degrees clockwise that its top lies away from the side's top; -1: no top seen.
  int turn = 0;
};

struct SeenSide {
  imposition::Size paper;
  /// By number.
  std::vector<SeenPage> pages;
};

/// Why nothing can be looked at on this machine; empty where it can.
std::string obstacleToLooking();

/// Has Ghostscript draw a PostScript or PDF file, one point a pixel, and looks at every side.
std::vector<SeenSide> look(const std::string &file);

/// What ought to be seen on the sides of an imposed job, as the printer feeds `paper`.
std::vector<SeenSide> expectedSides(const imposition::ImposedJob &job, imposition::Size paper);

/// Compares page by page: numbers and turns exactly, edges within 2 points.
void expectSeen(const std::vector<SeenSide> &seen, const std::vector<SeenSide> &expected);

}  // namespace orvek::test
