// SPDX-License-Identifier: Apache-2.0
// What must hold of a document's pages however they were read, and of the sheets that they are laid
// out on.
#pragma once

#include <cmath>
#include <vector>

#include "fuzz/Require.h"
#include "host/preview/DocumentPages.h"
#include "imposition/JobSheets.h"

namespace orvek::fuzz {

inline bool isLength(double value) {
  return std::isfinite(value) && value >= 0;
}

inline bool isFrame(const imposition::Frame &frame) {
  return std::isfinite(frame.x) && std::isfinite(frame.y) && isLength(frame.width) &&
         isLength(frame.height);
}

inline bool isWithin(const imposition::Frame &frame, imposition::Size size) {
  constexpr double rounding = 0.01;
  return frame.x >= -rounding && frame.y >= -rounding && frame.right() <= size.width + rounding &&
         frame.bottom() <= size.height + rounding;
}

/// A job as the bits of `choice` have it.
inline imposition::SheetJob jobOf(unsigned char choice) {
  imposition::SheetJob job;
  job.filters.paper = {595, 842};
  if ((choice & 1U) != 0) job.filters.printable = {12, 12, 571, 818};
  job.filters.scaling = static_cast<imposition::Scaling>((choice >> 1U) & 3U);
  if ((choice & 8U) != 0) job.filters.pagesPerSide = 6;
  job.booklet.enabled = (choice & 16U) != 0;
  job.twoSided = (choice & 32U) != 0;
  job.filters.sides.reverse = (choice & 64U) != 0;
  if ((choice & 128U) != 0) job.filters.turning = imposition::Turning::Landscape;
  return job;
}

/// Lays the pages out, and looks over pages and sheets.
inline void layOut(const QList<DocumentPage> &pages, unsigned char choice) {
  std::vector<imposition::Size> sizes;
  for (const DocumentPage &page : pages) {
    require(isLength(page.size.width()) && isLength(page.size.height()));
    require(std::isfinite(page.part.x()) && std::isfinite(page.part.y()));
    require(isLength(page.part.width()) && isLength(page.part.height()));
    sizes.push_back({page.size.width(), page.size.height()});
  }
  const auto sides = imposition::printedSides(sizes, jobOf(choice));
  require(pages.isEmpty() == sides.empty());
  for (const imposition::PrintedSide &side : sides) {
    for (const imposition::PlacedPage &placed : side.pages) {
      require(placed.page >= 1 && placed.page <= pages.size());
      require(isFrame(placed.frame) && isFrame(placed.clip) && isWithin(placed.clip, side.size));
    }
  }
}

}  // namespace orvek::fuzz
