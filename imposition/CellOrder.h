// SPDX-License-Identifier: Apache-2.0
// Several pages on one side: how many rows and columns, and which page goes where. The standard
// filters' rules.
#pragma once

#include <string>

namespace orvek::imposition {

struct Grid {
  int columns = 1;
  int rows = 1;
  /// Laid out on paper that lies on its side.
  bool isTurned = false;

  int cells() const { return columns * rows; }
};

/// The grid of upright paper. One cell for a number of pages that the filters don't know.
Grid gridFor(int pagesPerSide);

/// From the left, and from the foot of the paper.
struct Cell {
  int column = 0;
  int row = 0;
};

/// In which order the cells fill.
class CellOrder {
 public:
  /// `layout` as CUPS writes it: "lrtb" goes from left to right, then from top to bottom. Any other
  /// text counts as that.
  CellOrder(const std::string &layout, const Grid &grid);

  /// The cell of a side's page, counted from 0.
  Cell cell(int page) const;

 private:
  Grid m_grid;
  bool m_byColumns = false;
  bool m_fromRight = false;
  bool m_fromBottom = false;
};

}  // namespace orvek::imposition
