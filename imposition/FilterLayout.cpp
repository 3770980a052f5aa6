// SPDX-License-Identifier: Apache-2.0
// The standard filters count turns to the left and lengths upwards from the lower left corner; so
// does the inside of this file.

#include "imposition/FilterLayout.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <utility>

#include "imposition/CellOrder.h"
#include "imposition/PageOrder.h"
#include "imposition/StandardOptions.h"

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
  /// For all cells.
  Size room;
  /// The paper and its printable area, turned as the pages are.
  Size wholePage;
  Size cropPage;
  /// Of the first cell.
  double x = 0;
  double y = 0;
  /// Of the whole, to the left.
  int turn = 0;
  bool isWide = false;
  int normalTurn = quarter;
  bool fits = false;
  /// Pages are cut to the proportions of the room.
  bool crops = false;
  bool isMirrored = false;
};

// A fiftieth of the paper's size is forgiven, and lengths are compared as whole points.
bool isLarge(Size page, Size paper) {
  constexpr double tolerance = 100.0 / 102.0;
  const double width = std::trunc(page.width * tolerance);
  const double height = std::trunc(page.height * tolerance);
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
  // Their own booklet is laid out without a look at the paper.
  if (job.booklet == OwnBooklet::Sides) medium.grid = gridFor(2);
  medium.isMirrored = job.isMirrored;
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

Raised centred(Size size, const Raised &place) {
  return centred(size, place.x + place.size.width / 2, place.y + place.size.height / 2);
}

/// A direction, y upwards.
struct Direction {
  int x = 0;
  int y = 0;
};

Direction directionOf(Position position) {
  using Across = Position::Across;
  using Down = Position::Down;
  const auto side = [](bool isBefore, bool isBehind) { return int(isBehind) - int(isBefore); };
  return {side(position.across == Across::Left, position.across == Across::Right),
          side(position.down == Down::Bottom, position.down == Down::Top)};
}

/// As the direction points once a page with it is turned clockwise.
Direction turned(Direction direction, int degrees) {
  for (int turn = normalized(degrees); turn > 0; turn -= quarter) {
    direction = {direction.y, -direction.x};
  }
  return direction;
}

// A page that is larger than the place reaches beyond it on the other side.
Raised movedTo(Direction direction, Raised page, Size place) {
  page.x += direction.x * (place.width - page.size.width) / 2;
  page.y += direction.y * (place.height - page.size.height) / 2;
  return page;
}

Frame onPaper(Raised raised, const Medium &medium) {
  if (medium.isMirrored) raised.x = medium.size.width - raised.x - raised.size.width;
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

int ownTurn(int page, const FilterJob &job) {
  const auto index = static_cast<std::size_t>(page) - 1;
  return index < job.ownTurns.size() ? job.ownTurns[index] : 0;
}

PlacedPage placed(int page, Size displayed, Cell cell, const Medium &medium, const FilterJob &job) {
  const bool isTurned = (displayed.width > displayed.height) != medium.isWide;
  const int turn = isTurned ? medium.normalTurn : 0;
  const Size size = turned(displayed, turn);
  const Size cropped = medium.crops ? croppedTo(size, medium.cropPage) : size;
  const Size cellSize{medium.room.width / medium.grid.columns,
                      medium.room.height / medium.grid.rows};
  const Size shown = medium.fits ? cropped : medium.wholePage;
  const Size inCell = scaledInto(shown, cellSize);
  const double scale = shown.width > 0 ? inCell.width / shown.width : 0;
  const Raised place = centred(inCell, medium.x + (cell.column + 0.5) * cellSize.width,
                               medium.y + (cell.row + 0.5) * cellSize.height);
  const Size whole{size.width * scale, size.height * scale};
  const Direction to = turned(directionOf(job.position), ownTurn(page, job) - turn);
  PlacedPage result;
  result.page = page;
  result.isMirrored = medium.isMirrored;
  result.turn = normalized((medium.isMirrored ? turn : -turn) - medium.turn);
  result.frame = onPaper(movedTo(to, centred(whole, place), inCell), medium);
  result.clip = within(onPaper(place, medium), turned(medium.size, medium.turn));
  return result;
}

FilteredSide sideOf(std::span<const int> numbers, std::span<const Size> pages, const Medium &medium,
                    const FilterJob &job) {
  const CellOrder order(job.order, medium.grid);
  FilteredSide side;
  side.pages.reserve(numbers.size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (numbers[i] == 0) continue;
    const Size size = pages[static_cast<std::size_t>(numbers[i]) - 1];
    side.pages.push_back(placed(numbers[i], size, order.cell(static_cast<int>(i)), medium, job));
  }
  return side;
}

// 0 for a place that stays empty.
std::vector<int> pageSequence(int pages, const FilterJob &job) {
  if (job.booklet != OwnBooklet::Off) return pagesInBookletOrder(pages, job.signature);
  std::vector<int> all(static_cast<std::size_t>(pages));
  std::iota(all.begin(), all.end(), 1);
  return all;
}

// So that the printer, which begins a sheet with each pair, has fronts where fronts belong.
bool needsBlankSide(std::size_t sides, const SideSelection &selection) {
  const bool isAsked =
      (selection.twoSided && selection.reverse) || selection.parity == Parity::Even;
  return isAsked && sides % 2 != 0;
}

int cellsOf(const FilterJob &job) {
  return job.booklet == OwnBooklet::Sides ? 2 : gridFor(job.pagesPerSide).cells();
}

}  // namespace

Position readPosition(const std::string &text) {
  using Across = Position::Across;
  using Down = Position::Down;
  const std::string word = lowerCase(text);
  for (const auto &[down, where] : {std::pair("", Down::Middle), std::pair("top", Down::Top),
                                    std::pair("bottom", Down::Bottom)}) {
    const std::string before = *down == '\0' ? down : std::string(down) + '-';
    if (word == down) return {Across::Middle, where};
    if (word == before + "left") return {Across::Left, where};
    if (word == before + "right") return {Across::Right, where};
  }
  return {};
}

bool isSelected(int side, const SideSelection &sides) {
  if (sides.parity == Parity::Odd && side % 2 == 0) return false;
  if (sides.parity == Parity::Even && side % 2 != 0) return false;
  if (sides.ranges.empty()) return true;
  return std::any_of(sides.ranges.begin(), sides.ranges.end(), [side](const PageRange &range) {
    return side >= range.first && (range.last == 0 || side <= range.last);
  });
}

int madeSides(int pages, const FilterJob &job) {
  if (pages <= 0) return 0;
  const int places = static_cast<int>(pageSequence(pages, job).size());
  return (places + cellsOf(job) - 1) / cellsOf(job);
}

int filteredSides(int pages, const FilterJob &job) {
  const int all = madeSides(pages, job);
  int selected = 0;
  for (int side = 1; side <= all; ++side) selected += isSelected(side, job.sides) ? 1 : 0;
  return selected + (needsBlankSide(static_cast<std::size_t>(selected), job.sides) ? 1 : 0);
}

std::vector<FilteredSide> layOutAsFiltered(std::span<const Size> pages, const FilterJob &job) {
  std::vector<FilteredSide> sides;
  if (pages.empty() || !isDrawable(job.paper)) return sides;
  const std::vector<int> sequence = pageSequence(static_cast<int>(pages.size()), job);
  const std::span<const int> all(sequence);
  const Medium medium = mediumFor(pages, job);
  const auto cells = static_cast<std::size_t>(medium.grid.cells());
  int number = 0;
  for (std::size_t first = 0; first < all.size(); first += cells) {
    if (!isSelected(++number, job.sides)) continue;
    const auto numbers = all.subspan(first, std::min(cells, all.size() - first));
    sides.push_back(sideOf(numbers, pages, medium, job));
  }
  if (needsBlankSide(sides.size(), job.sides)) sides.emplace_back();
  if (job.sides.reverse) std::reverse(sides.begin(), sides.end());
  return sides;
}

}  // namespace orvek::imposition
