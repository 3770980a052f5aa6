// SPDX-License-Identifier: Apache-2.0
// Printed sides as pictures, and the marked pages that are seen on them.
#pragma once

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <optional>
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

/// A drawn side. Borrows its pixels, three bytes each, row by row.
struct Picture {
  int width = 0;
  int height = 0;
  const unsigned char *pixels = nullptr;

  std::size_t rowBytes() const { return 3 * static_cast<std::size_t>(width); }
  const unsigned char *row(int y) const { return pixels + rowBytes() * static_cast<unsigned>(y); }
  const unsigned char *pixel(int x, int y) const { return row(y) + std::ptrdiff_t{3} * x; }
  /// No part of its colour reaches `limit`.
  bool isDarkAt(int x, int y, int limit) const;
};

/// Has Ghostscript draw a PostScript or PDF file, one point a pixel: a picture for each side (PPM,
/// six), one behind the other.
QByteArray drawn(const QString &file);

/// The picture that begins at a place; the place moves on behind it. Nothing, and a failure of the
/// test, where none does.
std::optional<Picture> nextPicture(const QByteArray &pictures, qsizetype *at);

/// Draws such a file and looks at every side for marked pages.
std::vector<SeenSide> look(const std::string &file);

/// What ought to be seen on the sides of an imposed job, as the printer feeds `paper`.
std::vector<SeenSide> expectedSides(const imposition::ImposedJob &job, imposition::Size paper);

/// Compares page by page: numbers and turns exactly, edges within 2 points.
void expectSeen(const std::vector<SeenSide> &seen, const std::vector<SeenSide> &expected);

}  // namespace orvek::test
