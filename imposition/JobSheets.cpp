// SPDX-License-Identifier: Apache-2.0
// Standard filters first, then the booklet's imposition where there is one, then the finisher; and
// each side is taken in hand.

#include "imposition/JobSheets.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "imposition/PageOrder.h"
#include "imposition/ScriptLayout.h"

namespace orvek::imposition {
namespace {

constexpr int wholeTurn = 360;
constexpr int halfTurn = 180;
constexpr const char *halfFold = "fold-half";

/// A side on the paper as it is fed.
struct FedSide {
  Size paper;
  std::vector<PlacedPage> pages;
};

Size turnedSize(Size size, int turn) {
  return turn % halfTurn == 0 ? size : Size{size.height, size.width};
}

int inverse(int turn) {
  return (wholeTurn - turn) % wholeTurn;
}

// frameOnPaper turns a held side onto paper; taking paper in hand is the same the other way round.
Frame turnedFrame(const Frame &frame, Size from, int turn) {
  return frameOnPaper(frame, turnedSize(from, turn), turn);
}

PlacedPage turnedPage(PlacedPage page, Size from, int turn) {
  page.frame = turnedFrame(page.frame, from, turn);
  page.clip = turnedFrame(page.clip, from, turn);
  page.turn = (page.turn + turn) % wholeTurn;
  return page;
}

// What lies at a place on the front lies behind it on the back.
Frame seenFromBack(const Frame &frame, Size paper, bool turnsOverShortEdge) {
  if (turnsOverShortEdge) {
    return {frame.x, paper.height - frame.bottom(), frame.width, frame.height};
  }
  return {paper.width - frame.right(), frame.y, frame.width, frame.height};
}

Frame scaledInto(const Frame &frame, Size from, const Frame &to) {
  const double across = from.width > 0 ? to.width / from.width : 0;
  const double down = from.height > 0 ? to.height / from.height : 0;
  return {to.x + frame.x * across, to.y + frame.y * down, frame.width * across,
          frame.height * down};
}

Frame intersection(const Frame &one, const Frame &other) {
  const double left = std::max(one.x, other.x);
  const double top = std::max(one.y, other.y);
  return {left, top, std::max(0.0, std::min(one.right(), other.right()) - left),
          std::max(0.0, std::min(one.bottom(), other.bottom()) - top)};
}

// The imposed pages are sides that the standard filters made; what stands on them goes along.
void place(const PlacedPage &imposed, const FilteredSide &content, Size paper, FedSide *side) {
  for (PlacedPage page : content.pages) {
    page.frame = scaledInto(page.frame, paper, imposed.frame);
    page.clip = intersection(scaledInto(page.clip, paper, imposed.frame), imposed.clip);
    page.border = imposed.border;
    side->pages.push_back(page);
  }
}

FedSide fedBookletSide(const Side &side, Face face, const std::vector<FilteredSide> &contents,
                       const SheetJob &job, Size paper) {
  FedSide held{heldSheet(paper), {}};
  for (const PlacedPage &imposed : side.pages) {
    const auto index = static_cast<std::size_t>(imposed.page) - 1;
    place(imposed, contents[index], job.filters.paper, &held);
  }
  const int turn = turnOnPaper(paper, face);
  FedSide fed{paper, {}};
  for (const PlacedPage &page : held.pages) fed.pages.push_back(turnedPage(page, held.paper, turn));
  return fed;
}

std::vector<FedSide> bookletSides(std::span<const Size> pages, const SheetJob &job) {
  FilterJob filters = job.filters;
  filters.sides.twoSided = false;  // a booklet is evened out by its own blank places
  std::vector<FilteredSide> contents = layOutAsFiltered(pages, filters);
  // The blank side that evens a reversed job out is none of the document's pages.
  const bool isEven = contents.size() % 2 == 0;
  if (filters.sides.reverse && isEven && !contents.empty() && contents.front().pages.empty()) {
    contents.erase(contents.begin());
  }
  const Size paper = isDrawable(job.bookletPaper) ? job.bookletPaper : job.filters.paper;
  const std::vector<Size> sizes(contents.size(), job.filters.paper);
  const ImposedJob imposed = imposeBooklet(sizes, paper, job.booklet);
  std::vector<FedSide> sides;
  sides.reserve(2 * imposed.sheets.size());
  for (const Sheet &sheet : imposed.sheets) {
    sides.push_back(fedBookletSide(sheet.front, Face::Front, contents, job, paper));
    sides.push_back(fedBookletSide(sheet.back, Face::Back, contents, job, paper));
  }
  return sides;
}

std::vector<FedSide> plainSides(std::span<const Size> pages, const SheetJob &job) {
  FilterJob filters = job.filters;
  filters.sides.twoSided = job.twoSided;
  std::vector<FedSide> sides;
  auto laidOut = job.isScript ? layOutAsScript(pages, filters) : layOutAsFiltered(pages, filters);
  sides.reserve(laidOut.size());
  for (FilteredSide &side : laidOut) {
    sides.push_back({filters.paper, std::move(side.pages)});
  }
  return sides;
}

// Beginning with a blank side, where there has to be one, so that backs stay backs.
void turnForTray(std::vector<FedSide> *sides, bool twoSided) {
  const bool isOdd = sides->size() % 2 != 0 && sides->size() > 1;
  if (twoSided && isOdd) sides->push_back({sides->front().paper, {}});
  std::reverse(sides->begin(), sides->end());
}

/// How a side is taken in hand.
struct Hold {
  /// From paper to hand, clockwise.
  int turn = 0;
  Face face = Face::Front;
  bool turnsOverShortEdge = false;
};

PrintedSide held(const FedSide &fed, const Hold &hold, const std::vector<Mark> &marks,
                 const std::string &fold) {
  PrintedSide side;
  side.face = hold.face;
  side.size = turnedSize(fed.paper, hold.turn);
  side.pages.reserve(fed.pages.size());
  for (const PlacedPage &page : fed.pages) {
    side.pages.push_back(turnedPage(page, fed.paper, hold.turn));
  }
  for (Mark mark : marks) {
    if (hold.face == Face::Back) {
      mark.frame = seenFromBack(mark.frame, fed.paper, hold.turnsOverShortEdge);
    }
    mark.frame = turnedFrame(mark.frame, fed.paper, hold.turn);
    side.marks.push_back(mark);
  }
  side.folds = foldsOn(fold, side.size);
  return side;
}

int turnToHold(const FedSide &fed, const FedSide *other) {
  if (!fed.pages.empty()) return inverse(fed.pages.front().turn);
  if (other != nullptr && !other->pages.empty()) return inverse(other->pages.front().turn);
  return 0;
}

}  // namespace

std::vector<PrintedSide> printedSides(std::span<const Size> pages, const SheetJob &job) {
  const bool isBooklet = job.booklet.enabled;
  std::vector<FedSide> fed = isBooklet ? bookletSides(pages, job) : plainSides(pages, job);
  std::vector<PrintedSide> sides;
  if (fed.empty()) return sides;
  const std::size_t perSheet = isBooklet || job.twoSided ? 2 : 1;
  if (job.isTurnedForTray) turnForTray(&fed, perSheet == 2);
  const std::vector<Mark> marks = marksOnPaper(job.finishing, fed.front().paper);
  // Whoever has no folding machine folds the booklet by hand.
  const std::string fold = isBooklet ? halfFold : job.finishing.fold;
  sides.reserve(fed.size());
  for (std::size_t i = 0; i < fed.size(); ++i) {
    const bool isBack = i % perSheet == 1;
    const std::size_t other = isBack ? i - 1 : i + 1;
    const bool hasOther = perSheet == 2 && other < fed.size();
    const Hold hold{turnToHold(fed[i], hasOther ? &fed[other] : nullptr),
                    isBack ? Face::Back : Face::Front, isBooklet || job.turnsOverShortEdge};
    sides.push_back(held(fed[i], hold, marks, fold));
    sides.back().sheet = static_cast<int>(i / perSheet) + 1;
  }
  return sides;
}

int sheetsFor(int pages, const SheetJob &job) {
  FilterJob filters = job.filters;
  filters.sides.twoSided = job.twoSided && !job.booklet.enabled;
  const int sides = filteredSides(pages, filters);
  if (job.booklet.enabled) return bookletSheets(sides);
  return job.twoSided ? (sides + 1) / 2 : sides;
}

int sheetCount(const std::vector<PrintedSide> &sides) {
  return sides.empty() ? 0 : sides.back().sheet;
}

}  // namespace orvek::imposition
