// SPDX-License-Identifier: Apache-2.0
// What a finisher does to the paper, as a job's options say it, and where it leaves its marks.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "imposition/BookletOptions.h"
#include "imposition/Geometry.h"

namespace orvek::imposition {

/// The edges and corners of the paper as it is fed, looked at from the front.
enum class Edge { Left, Top, Right, Bottom };
enum class Corner { TopLeft, TopRight, BottomLeft, BottomRight };

enum class MarkKind { Staple, Hole };

struct Mark {
  MarkKind kind = MarkKind::Staple;
  Frame frame;

  bool operator==(const Mark &) const = default;
};

/// A straight line across a side.
struct Line {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;

  bool operator==(const Line &) const = default;
};

/// Along an edge, this many, evenly about its middle.
struct EdgeMarks {
  Edge edge = Edge::Left;
  int count = 0;

  bool operator==(const EdgeMarks &) const = default;
};

struct Finishing {
  std::optional<Corner> cornerStaple;
  EdgeMarks staples;
  EdgeMarks holes;
  bool stapledInFold = false;
  /// The choice's keyword as the PPD has it; empty: none.
  std::string fold;

  bool operator==(const Finishing &) const = default;
};

/// Reads the marked choices of the options of this printer family (OVKStapling, OVKPunching,
/// OVKFolding) and of the standard's (StapleLocation, PunchMedia, FoldType, Booklet), and the
/// standard's keywords among "finishings". What it doesn't know leaves no marks.
Finishing readFinishing(const ValueOf &markedChoice);

/// Where the marks lie on the front of the paper as it is fed. Nothing on paper without a size.
std::vector<Mark> marksOnPaper(const Finishing &finishing, Size paper);

/// Where a fold of this keyword creases paper of this size, across its longer edge: a half, thirds
/// or quarters, as folds of that name do. A word it doesn't know counts as a fold in half; an empty
/// one folds nothing.
std::vector<Line> foldsOn(const std::string &fold, Size paper);

}  // namespace orvek::imposition
