// SPDX-License-Identifier: Apache-2.0
// A table of grids, and the eight ways to fill one.

#include "imposition/CellOrder.h"

#include <algorithm>
#include <array>

namespace orvek::imposition {
namespace {

constexpr std::array<Grid, 9> grids{{{2, 1, true},
                                     {3, 1, true},
                                     {2, 2, false},
                                     {3, 2, true},
                                     {4, 2, true},
                                     {3, 3, false},
                                     {5, 2, true},
                                     {3, 4, false},
                                     {5, 3, true}}};
constexpr Grid sixteen{4, 4, false};

bool isLayout(const std::string &layout) {
  constexpr std::array layouts{"lrtb", "lrbt", "rltb", "rlbt", "tblr", "tbrl", "btlr", "btrl"};
  return std::find(layouts.begin(), layouts.end(), layout) != layouts.end();
}

}  // namespace

Grid gridFor(int pagesPerSide) {
  if (pagesPerSide == sixteen.cells()) return sixteen;
  const auto found = std::find_if(grids.begin(), grids.end(),
                                  [&](const Grid &grid) { return grid.cells() == pagesPerSide; });
  return found == grids.end() ? Grid() : *found;
}

CellOrder::CellOrder(const std::string &layout, const Grid &grid) : m_grid(grid) {
  if (!isLayout(layout)) return;
  m_byColumns = layout.front() == 't' || layout.front() == 'b';
  m_fromRight = layout.find("rl") != std::string::npos;
  m_fromBottom = layout.find("bt") != std::string::npos;
}

Cell CellOrder::cell(int page) const {
  const int along = m_byColumns ? m_grid.rows : m_grid.columns;
  const int column = m_byColumns ? page / along : page % along;
  const int row = m_byColumns ? page % along : page / along;
  return {m_fromRight ? m_grid.columns - 1 - column : column,
          m_fromBottom ? row : m_grid.rows - 1 - row};
}

}  // namespace orvek::imposition
