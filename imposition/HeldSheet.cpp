// SPDX-License-Identifier: Apache-2.0
// The turn between a held side and the paper in the printer.

#include "imposition/HeldSheet.h"

#include <algorithm>

namespace orvek::imposition {
namespace {

constexpr int upright = 0;
constexpr int quarterRight = 90;
constexpr int upsideDown = 180;
constexpr int quarterLeft = 270;

}  // namespace

Size heldSheet(Size paper) {
  return {std::max(paper.width, paper.height), std::min(paper.width, paper.height)};
}

int turnOnPaper(Size paper, Face face) {
  if (paper.height >= paper.width) return quarterLeft;
  return face == Face::Front ? upright : upsideDown;
}

Frame frameOnPaper(Frame held, Size paper, int turn) {
  switch (turn) {
    case quarterRight:
      return {paper.width - held.bottom(), held.x, held.height, held.width};
    case upsideDown:
      return {paper.width - held.right(), paper.height - held.bottom(), held.width, held.height};
    case quarterLeft:
      return {held.y, paper.height - held.right(), held.height, held.width};
    default:
      return held;
  }
}

}  // namespace orvek::imposition
