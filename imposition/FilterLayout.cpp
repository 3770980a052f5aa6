// SPDX-License-Identifier: Apache-2.0
// The standard filters count turns to the left and lengths upwards from the lower left corner; so
// does the inside of this file.

#include "imposition/FilterLayout.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

#include "imposition/CellOrder.h"

namespace orvek::imposition {
namespace {

constexpr int wholeTurn = 360;
constexpr int quarter = 90;

int normalized(int degrees) {
  return ((degrees % wholeTurn) + wholeTurn) % wholeTurn;
}

int leftTurnOf(Turning turning) {
  switch (turning) {
    case Turning::Landscape:
      return quarter;
    case Turning::ReversePortrait:
      return 2 * quarter;
    case Turning::ReverseLandscape:
      return 3 * quarter;
    case Turning::Portrait:
      break;
  }
  return 0;
}

bool liesAcross(int degrees) {
  return degrees % (2 * quarter) != 0;
}

Size turned(Size size, int degrees) {
  if (liesAcross(degrees)) std::swap(size.width, size.height);
  return size;
}

struct Edges {
  double left = 0;
  double bottom = 0;
  double right = 0;
  double top = 0;

  Size size() const { return {right - left, top - bottom}; }
};

Edges printableEdges(const FilterJob &job) {
  const Frame &area = job.printable;
  if (!isDrawable({area.width, area.height})) return {0, 0, job.paper.width, job.paper.height};
  return {area.x, job.paper.height - area.bottom(), area.right(), job.paper.height - area.y};
}

/// The medium that pages are drawn on, before it is turned as a whole.
struct Medium {
  Grid grid;
  Size size;
  Size room;       // for all cells
  Size wholePage;  // the paper and its printable area, turned as the pages are
  Size cropPage;
  double x = 0;  // of the first cell
  double y = 0;
  int turn = 0;  // of the whole, to the left
  bool isWide = false;
  int normalTurn = quarter;
  bool fits = false;
  bool crops = false;  // pages are cut to the proportions of the room
};

// A fiftieth of the paper's size is forgiven, and lengths are compared as whole points.
bool isLarge(Size page, Size paper) {
  constexpr double tolerance = 100.0 / 102.0;
  const double width = static_cast<int>(page.width * tolerance);
  const double height = static_cast<int>(page.height * tolerance);
  return (width > paper.width || height > paper.height) &&
         (height > paper.width || width > paper.height);
}

void scaleAsAsked(Medium &medium, std::span<const Size> pages, const FilterJob &job) {
  const Edges edges = printableEdges(job);
  const bool hasMargins = edges.size() != job.paper;
  const bool hasLarge =
      std::any_of(pages.begin(), pages.end(), [&](Size page) { return isLarge(page, job.paper); });
  const bool isAutomatic = job.scaling == Scaling::Automatic && hasLarge;
  medium.crops = job.scaling == Scaling::Fill || (isAutomatic && !hasMargins);
  medium.fits = medium.crops || job.scaling == Scaling::Fit || isAutomatic;
}

// Where the room begins, with the grid turned where it asks for it.
void place(Medium &medium, const Edges &edges, const FilterJob &job) {
  medium.x = medium.fits ? edges.left : 0;
  medium.y = medium.fits ? edges.bottom : 0;
  if (!medium.grid.isTurned) return;
  medium.turn += medium.normalTurn;
  medium.size = turned(medium.size, quarter);
  medium.room = turned(medium.room, quarter);
  medium.x = medium.fits ? job.paper.height - edges.top : 0;
  medium.y = medium.fits ? edges.left : 0;
}

Medium mediumFor(std::span<const Size> pages, const FilterJob &job) {
  Medium medium;
  medium.normalTurn = job.landscapeTurnsRight ? 3 * quarter : quarter;
  medium.grid = gridFor(job.pagesPerSide);
  const bool paperIsWide = job.paper.width > job.paper.height;
  const int asked = leftTurnOf(job.turning);
  medium.isWide = paperIsWide != liesAcross(asked);
  if (paperIsWide) std::swap(medium.grid.columns, medium.grid.rows);
  scaleAsAsked(medium, pages, job);
  const Edges edges = printableEdges(job);
  medium.size = job.paper;
  medium.room = medium.fits ? edges.size() : job.paper;
  medium.wholePage = turned(job.paper, asked);
  medium.cropPage = turned(edges.size(), asked);
  medium.turn = asked;
  if (liesAcross(asked)) {
    std::swap(medium.grid.columns, medium.grid.rows);
    medium.grid.isTurned = !medium.grid.isTurned;
    medium.turn -= medium.normalTurn;
  }
  place(medium, edges, job);
  medium.turn = normalized(medium.turn);
  return medium;
}

// As large as the proportions of the room let it be.
Size croppedTo(Size page, Size room) {
  if (!isDrawable(page) || !isDrawable(room)) return page;
  return scaledInto(room, page);
}

/// A frame counted upwards from the lower left corner.
struct Raised {
  double x = 0;
  double y = 0;
  Size size;

  bool isEmpty() const { return !isDrawable(size); }
};

Raised centred(Size size, double x, double y) {
  return {x - size.width / 2, y - size.height / 2, size};
}

Frame onPaper(const Raised &raised, const Medium &medium) {
  const Size across = turned(raised.size, medium.turn);
  const Size paper = turned(medium.size, medium.turn);
  const double beyondX = medium.size.width - raised.x - raised.size.width;
  const double beyondY = medium.size.height - raised.y - raised.size.height;
  double x = raised.x;
  double y = raised.y;
  if (medium.turn == quarter) x = beyondY, y = raised.x;
  if (medium.turn == 2 * quarter) x = beyondX, y = beyondY;
  if (medium.turn == 3 * quarter) x = raised.y, y = beyondX;
  return {x, paper.height - y - across.height, across.width, across.height};
}

Frame within(const Frame &frame, Size paper) {
  const double left = std::clamp(frame.x, 0.0, paper.width);
  const double top = std::clamp(frame.y, 0.0, paper.height);
  return {left, top, std::clamp(frame.right(), 0.0, paper.width) - left,
          std::clamp(frame.bottom(), 0.0, paper.height) - top};
}

PlacedPage placed(int page, Size displayed, Cell cell, const Medium &medium) {
  const bool isTurned = (displayed.width > displayed.height) != medium.isWide;
  const int turn = isTurned ? medium.normalTurn : 0;
  const Size size = turned(displayed, turn);
  const Size cropped = medium.crops ? croppedTo(size, medium.cropPage) : size;
  const Size cellSize{medium.room.width / medium.grid.columns,
                      medium.room.height / medium.grid.rows};
  const Size shown = medium.fits ? cropped : medium.wholePage;
  const Size inCell = scaledInto(shown, cellSize);
  const double scale = shown.width > 0 ? inCell.width / shown.width : 0;
  const double x = medium.x + (cell.column + 0.5) * cellSize.width;
  const double y = medium.y + (cell.row + 0.5) * cellSize.height;
  PlacedPage result;
  result.page = page;
  result.turn = normalized(-(turn + medium.turn));
  const Size whole{size.width * scale, size.height * scale};
  result.frame = onPaper(centred(whole, x, y), medium);
  result.clip = within(onPaper(centred(inCell, x, y), medium), turned(medium.size, medium.turn));
  return result;
}

bool isSelected(int side, const SideSelection &sides) {
  if (sides.parity == Parity::Odd && side % 2 == 0) return false;
  if (sides.parity == Parity::Even && side % 2 != 0) return false;
  if (sides.ranges.empty()) return true;
  return std::any_of(sides.ranges.begin(), sides.ranges.end(), [side](const PageRange &range) {
    return side >= range.first && (range.last == 0 || side <= range.last);
  });
}

// So that the printer, which begins a sheet with each pair, has fronts where fronts belong.
void evenOut(std::vector<FilteredSide> &sides, const SideSelection &selection) {
  const bool isAsked =
      (selection.twoSided && selection.reverse) || selection.parity == Parity::Even;
  if (isAsked && sides.size() % 2 != 0) sides.emplace_back();
}

}  // namespace

bool isKnownPagesPerSide(int pages) {
  return pages == 1 || gridFor(pages).cells() == pages;
}

std::vector<FilteredSide> layOutAsFiltered(std::span<const Size> pages, const FilterJob &job) {
  std::vector<FilteredSide> sides;
  if (pages.empty() || !isDrawable(job.paper)) return sides;
  const Medium medium = mediumFor(pages, job);
  const CellOrder order(job.order, medium.grid);
  const auto cells = static_cast<std::size_t>(medium.grid.cells());
  int number = 0;
  for (std::size_t first = 0; first < pages.size(); first += cells) {
    if (!isSelected(++number, job.sides)) continue;
    FilteredSide side;
    const std::size_t count = std::min(cells, pages.size() - first);
    side.pages.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
      side.pages.push_back(placed(static_cast<int>(first + i) + 1, pages[first + i],
                                  order.cell(static_cast<int>(i)), medium));
    }
    sides.push_back(std::move(side));
  }
  if (!sides.empty()) evenOut(sides, job.sides);
  if (job.sides.reverse) std::reverse(sides.begin(), sides.end());
  return sides;
}

}  // namespace orvek::imposition
