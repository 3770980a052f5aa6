// SPDX-License-Identifier: Apache-2.0
// How a side that is held so that its pages can be read lies on the paper as the printer feeds it.
#pragma once

#include "imposition/Geometry.h"

namespace orvek::imposition {

enum class Face { Front, Back };

/// The paper as a booklet's sheet is held: its long edge at the top, the fold upright in the
/// middle.
Size heldSheet(Size paper);

/// How many degrees clockwise (0, 90, 180, 270) a held side is turned on the paper, whose width and
/// height are those of its name, for a printer that turns sheets over at the short edge of upright
/// paper (Duplex DuplexTumble). Upright paper has both sides turned alike, as the standard filters
/// turn landscape pages: such a printer puts the back's top where the front's bottom is. On paper
/// that is wide by itself that turning would stand the back on its head, so it is turned half
/// round.
int turnOnPaper(Size paper, Face face);

/// Where a frame on the held side lies on the paper after that turn.
Frame frameOnPaper(Frame held, Size paper, int turn);

}  // namespace orvek::imposition
