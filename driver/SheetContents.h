// SPDX-License-Identifier: Apache-2.0
// The pages of the imposed document: one for each side of each sheet.
#pragma once

#include <span>

#include "driver/PageForm.h"
#include "imposition/Booklet.h"
#include "imposition/HeldSheet.h"

namespace orvek::driver {

/// Where sides are drawn.
struct SheetPaper {
  /// As the printer feeds it.
  imposition::Size paper;
  /// As it is held.
  imposition::Size side;
};

/// A new page, of the paper's size, that shows a side. `pages` are all that the side may name, the
/// first one's number being 1.
QPDFObjectHandle pageOf(QPDF &document, const imposition::Side &side, imposition::Face face,
                        const SheetPaper &paper, std::span<const PageForm> pages);

}  // namespace orvek::driver
