// SPDX-License-Identifier: Apache-2.0
// Goes the filter's own way: it moves, turns and scales the coordinates step by step before a page
// draws itself. Lengths grow upwards from the lower left corner, as in PostScript.

#include "imposition/ScriptLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "imposition/CellOrder.h"

namespace orvek::imposition {
namespace {

constexpr int quarter = 90;

/// Coordinates within coordinates. Each step takes place in those that the steps before made.
class Coordinates {
 public:
  void move(double x, double y) {
    m_x += m_acrossX * x + m_upX * y;
    m_y += m_acrossY * x + m_upY * y;
  }

  void turnLeft() {
    const double x = m_acrossX;
    const double y = m_acrossY;
    m_acrossX = m_upX, m_acrossY = m_upY;
    m_upX = -x, m_upY = -y;
  }

  void mirror() { m_acrossX = -m_acrossX, m_acrossY = -m_acrossY; }

  void scale(double factor) {
    for (double *part : {&m_acrossX, &m_acrossY, &m_upX, &m_upY}) *part *= factor;
  }

  /// A box from here to the right and up, on paper.
  Frame onPaper(Size box, Size paper) const {
    const double x = m_x + m_acrossX * box.width + m_upX * box.height;
    const double y = m_y + m_acrossY * box.width + m_upY * box.height;
    return {std::min(m_x, x), paper.height - std::max(m_y, y), std::abs(x - m_x),
            std::abs(y - m_y)};
  }

  /// Degrees clockwise to where "up" points.
  int turn() const {
    if (std::abs(m_upX) > std::abs(m_upY)) return m_upX > 0 ? quarter : 3 * quarter;
    return m_upY > 0 ? 0 : 2 * quarter;
  }

 private:
  double m_acrossX = 1;
  double m_acrossY = 0;
  double m_upX = 0;
  double m_upY = 1;
  double m_x = 0;
  double m_y = 0;
};

/// The paper as the pages see it.
struct Sight {
  Size paper;
  double left = 0;
  double bottom = 0;
  double right = 0;
  Size room;
  bool isAcross = false;
};

Grid scriptGrid(int pages) {
  constexpr std::array known{2, 4, 6, 9, 16};
  const bool isKnown = std::find(known.begin(), known.end(), pages) != known.end();
  return isKnown ? gridFor(pages) : Grid();
}

Size exchanged(Size size) {
  return {size.height, size.width};
}

Sight sightOf(const FilterJob &job) {
  const bool hasMargins = isDrawable({job.printable.width, job.printable.height});
  const Frame area = hasMargins ? job.printable : Frame{0, 0, job.paper.width, job.paper.height};
  const double foot = job.paper.height - area.bottom();
  const bool isOverHead =
      job.turning == Turning::ReversePortrait || job.turning == Turning::ReverseLandscape;
  Sight sight{job.paper, area.x, foot, area.right(), {area.width, area.height}, false};
  if (isOverHead) {
    sight.left = job.paper.width - area.right();
    sight.right = job.paper.width - area.x;
    sight.bottom = area.y;
  }
  sight.isAcross = job.turning == Turning::Landscape || job.turning == Turning::ReverseLandscape;
  if (!sight.isAcross) return sight;
  std::swap(sight.left, sight.bottom);
  sight.paper = exchanged(sight.paper);
  sight.room = exchanged(sight.room);
  sight.right = sight.left + sight.room.width;
  return sight;
}

void turnToPaper(Coordinates *here, const FilterJob &job) {
  switch (job.turning) {
    case Turning::Landscape:
      here->move(job.paper.width, 0);
      here->turnLeft();
      return;
    case Turning::ReversePortrait:
      here->move(job.paper.width, job.paper.height);
      here->turnLeft();
      here->turnLeft();
      return;
    case Turning::ReverseLandscape:
      here->move(0, job.paper.height);
      for (int i = 0; i < 3; ++i) here->turnLeft();
      return;
    case Turning::Portrait:
      break;
  }
}

/// What a side's pages share.
struct Layout {
  Sight sight;
  Grid grid;
  bool fits = false;

  bool isPlain() const { return grid.cells() == 1 && !fits; }
  bool isTurned() const { return grid.isTurned; }
};

// Grids that lie across take the paper turned back from how it is looked at.
void enterGrid(Coordinates *here, Layout *layout) {
  if (!layout->isTurned()) return;
  Size &room = layout->sight.room;
  if (layout->sight.isAcross) {
    here->move(0, room.height);
    for (int i = 0; i < 3; ++i) here->turnLeft();
    std::swap(layout->grid.columns, layout->grid.rows);
  } else {
    here->move(room.width, 0);
    here->turnLeft();
  }
  room = exchanged(room);
}

// Six pages stay together in the middle; others stand in the middle of a cell each.
void enterCell(Coordinates *here, const Layout &layout, Cell cell, Size box) {
  const Grid &grid = layout.grid;
  const Size room = layout.sight.room;
  const Size whole{room.width / grid.columns, room.height / grid.rows};
  const Size scaled = scaledInto(box, whole);
  const bool isTogether = grid.cells() == 6;
  const Size step = isTogether ? scaled : whole;
  const double beside =
      isTogether ? room.width - grid.columns * scaled.width : whole.width - scaled.width;
  const double below =
      isTogether ? room.height - grid.rows * scaled.height : whole.height - scaled.height;
  here->move(beside / 2 + cell.column * step.width, below / 2 + cell.row * step.height);
  here->scale(box.width > 0 ? scaled.width / box.width : 0);
}

/// A page's number, its size, and which of its side's it is, from 0.
struct ScriptPage {
  int number = 1;
  Size size;
  int place = 0;
  bool isOnBack = false;
};

PlacedPage placed(const ScriptPage &page, Layout layout, const FilterJob &job) {
  Coordinates here;
  turnToPaper(&here, job);
  const Sight sight = layout.sight;
  if (job.isMirrored) {
    here.move(sight.paper.width, 0);
    here.mirror();
  }
  const Size box = layout.fits ? page.size : sight.paper;
  if (!layout.isPlain()) {
    // The margins of a sheet's two sides lie behind each other.
    const bool isBehind = page.isOnBack && layout.grid.cells() > 1;
    here.move(isBehind ? sight.paper.width - sight.right : sight.left, sight.bottom);
    enterGrid(&here, &layout);
    enterCell(&here, layout, CellOrder(job.order, layout.grid).cell(page.place), box);
  }
  PlacedPage result;
  result.page = page.number;
  result.turn = here.turn();
  result.isMirrored = job.isMirrored;
  result.frame = here.onPaper(page.size, job.paper);
  const Frame paper{0, 0, job.paper.width, job.paper.height};
  result.clip = layout.isPlain() ? paper : within(here.onPaper(box, job.paper), job.paper);
  return result;
}

}  // namespace

std::vector<FilteredSide> layOutAsScript(std::span<const Size> pages, const FilterJob &job) {
  std::vector<FilteredSide> sides;
  if (pages.empty() || !isDrawable(job.paper)) return sides;
  const Layout layout{sightOf(job), scriptGrid(job.pagesPerSide), job.fitsScripts};
  const auto cells = static_cast<std::size_t>(layout.grid.cells());
  int number = 0;
  for (std::size_t first = 0; first < pages.size(); first += cells) {
    if (!isSelected(++number, job.sides)) continue;
    FilteredSide side;
    const bool isBack = job.sides.twoSided && number % 2 == 0;
    for (std::size_t i = first; i < std::min(pages.size(), first + cells); ++i) {
      const ScriptPage page{static_cast<int>(i) + 1, pages[i], static_cast<int>(i - first), isBack};
      side.pages.push_back(placed(page, layout, job));
    }
    sides.push_back(std::move(side));
  }
  // A document of a single side needs no other to be the front of its sheet.
  const bool isOdd = sides.size() % 2 != 0 && number > 1;
  if (isOdd && job.sides.twoSided && job.sides.reverse) sides.emplace_back();
  if (job.sides.reverse) std::reverse(sides.begin(), sides.end());
  return sides;
}

FilterJob knownToScripts(FilterJob job) {
  job.pagesPerSide = scriptGrid(job.pagesPerSide).cells();
  job.booklet = OwnBooklet::Off;
  return job;
}

}  // namespace orvek::imposition
