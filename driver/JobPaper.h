// SPDX-License-Identifier: Apache-2.0
// What the PPD says of a booklet's sheets: their paper, and the order that their tray wants.
#pragma once

#include <optional>
#include <string>

#include "driver/FilterOptions.h"
#include "imposition/BookletOptions.h"
#include "imposition/Geometry.h"

namespace orvek::driver {

struct JobPaper {
  /// As the printer names it: portrait paper is higher than wide.
  imposition::Size size;
  /// The PageSize choice that the target paper means; empty: the job's own.
  std::string pageSize;
};

struct SheetFacts {
  /// Nothing where the PPD can't be read or knows no size for it: the document's own pages have to
  /// tell then.
  std::optional<JobPaper> paper;
  /// The printer wants the last page first where the job says nothing of an order: the tray piles
  /// its sheets face up. False where the PPD can't be read.
  bool wantsLastFirst = false;
};

/// What the PPD says of a job with these options and of its booklet's target paper.
SheetFacts sheetFactsIn(const std::string &ppdFile, const FilterOptions &options,
                        const imposition::BookletKeys &keys);

}  // namespace orvek::driver
