// SPDX-License-Identifier: Apache-2.0
// Where marks lie. Distances are those of common finishers and of ISO 838 punch holes.

#include "imposition/Finishing.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace orvek::imposition {
namespace {

constexpr double millimetre = 72 / 25.4;
constexpr double inch = 72;
constexpr double stapleLength = 12 * millimetre;
constexpr double stapleThickness = 1 * millimetre;
constexpr double stapleInset = 6 * millimetre;     // of its middle, from the edge
constexpr double cornerInset = 9 * millimetre;     // of a slanted one's middle, from both edges
constexpr double staplesApart = 120 * millimetre;  // of two, on edges long enough
constexpr double shareOfEdge = 0.5;                // of two, on others
constexpr double holeSize = 6 * millimetre;
constexpr double holeInset = 12 * millimetre;
constexpr double holesApart = 80 * millimetre;
constexpr double threeHolesApart = 4.25 * inch;
constexpr double manyHolesApart = 0.75 * inch;
constexpr int fewHoles = 4;

bool isUpright(Edge edge) {
  return edge == Edge::Left || edge == Edge::Right;
}

Frame around(double x, double y, double width, double height) {
  return {x - width / 2, y - height / 2, width, height};
}

/// A place on an edge: how far along it, how far from it.
Frame atEdge(Edge edge, double along, double inset, Size mark, Size paper) {
  switch (edge) {
    case Edge::Left:
      return around(inset, along, mark.height, mark.width);
    case Edge::Right:
      return around(paper.width - inset, along, mark.height, mark.width);
    case Edge::Top:
      return around(along, inset, mark.width, mark.height);
    case Edge::Bottom:
      break;
  }
  return around(along, paper.height - inset, mark.width, mark.height);
}

double lengthOf(Edge edge, Size paper) {
  return isUpright(edge) ? paper.height : paper.width;
}

double holeDistance(int count, double edge) {
  const double wanted = count == 3          ? threeHolesApart
                        : count <= fewHoles ? holesApart
                                            : manyHolesApart;
  // On paper too short for them they move together.
  return std::min(wanted, (edge - 2 * holeSize) / std::max(1, count - 1));
}

double stapleDistance(int count, double edge) {
  if (count < 2) return 0;
  return std::min(staplesApart, edge * shareOfEdge) / (count - 1);
}

void addRow(std::vector<Mark> *marks, const EdgeMarks &row, MarkKind kind, Size paper) {
  const double edge = lengthOf(row.edge, paper);
  const bool isHole = kind == MarkKind::Hole;
  const double distance = isHole ? holeDistance(row.count, edge) : stapleDistance(row.count, edge);
  const Size size = isHole ? Size{holeSize, holeSize} : Size{stapleLength, stapleThickness};
  for (int i = 0; i < row.count; ++i) {
    const double along = edge / 2 + (i - (row.count - 1) / 2.0) * distance;
    marks->push_back(
        {kind, atEdge(row.edge, along, isHole ? holeInset : stapleInset, size, paper)});
  }
}

// Slanted, so its frame is a square.
void addCorner(std::vector<Mark> *marks, Corner corner, Size paper) {
  const bool isLeft = corner == Corner::TopLeft || corner == Corner::BottomLeft;
  const bool isTop = corner == Corner::TopLeft || corner == Corner::TopRight;
  const double side = stapleLength / std::sqrt(2.0);
  marks->push_back(
      {MarkKind::Staple, around(isLeft ? cornerInset : paper.width - cornerInset,
                                isTop ? cornerInset : paper.height - cornerInset, side, side)});
}

// The fold runs across the paper's longer edge.
void addFoldStaples(std::vector<Mark> *marks, Size paper) {
  const bool isUprightFold = paper.width > paper.height;
  const double edge = isUprightFold ? paper.height : paper.width;
  const double apart = std::min(staplesApart, edge * shareOfEdge);
  for (const double along : {edge / 2 - apart / 2, edge / 2 + apart / 2}) {
    marks->push_back(
        {MarkKind::Staple, isUprightFold
                               ? around(paper.width / 2, along, stapleThickness, stapleLength)
                               : around(along, paper.height / 2, stapleLength, stapleThickness)});
  }
}

struct FoldWord {
  std::string_view part;
  /// Shares of the longer edge.
  std::vector<double> creases;
};

const std::vector<FoldWord> &foldWords() {
  static const std::vector<FoldWord> words{
      {"gate", {0.25, 0.75}},       {"halfz", {0.25, 0.5}},          {"half-z", {0.25, 0.5}},
      {"letter", {1 / 3., 2 / 3.}}, {"accordion", {1 / 3., 2 / 3.}}, {"parallel", {0.25, 0.5}},
      {"zfold", {1 / 3., 2 / 3.}},  {"fold-z", {1 / 3., 2 / 3.}},
  };
  return words;
}

std::vector<double> creasesOf(std::string fold) {
  for (char &c : fold) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  for (const FoldWord &word : foldWords()) {
    if (fold.find(word.part) != std::string::npos) return word.creases;
  }
  return {0.5};
}

}  // namespace

std::vector<Line> foldsOn(const std::string &fold, Size paper) {
  std::vector<Line> lines;
  if (fold.empty() || !isDrawable(paper)) return lines;
  const bool isWide = paper.width > paper.height;
  for (const double share : creasesOf(fold)) {
    const double x = paper.width * share;
    const double y = paper.height * share;
    lines.push_back(isWide ? Line{x, 0, x, paper.height} : Line{0, y, paper.width, y});
  }
  return lines;
}

std::vector<Mark> marksOnPaper(const Finishing &finishing, Size paper) {
  std::vector<Mark> marks;
  if (!isDrawable(paper)) return marks;
  if (finishing.cornerStaple) addCorner(&marks, *finishing.cornerStaple, paper);
  addRow(&marks, finishing.staples, MarkKind::Staple, paper);
  if (finishing.stapledInFold) addFoldStaples(&marks, paper);
  addRow(&marks, finishing.holes, MarkKind::Hole, paper);
  return marks;
}

}  // namespace orvek::imposition
