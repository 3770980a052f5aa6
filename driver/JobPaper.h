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

/// The sheet's paper by the PPD, the job's options and the booklet's target paper. Nothing where
/// the PPD can't be read or knows no size for it: the document's own pages have to tell then.
std::optional<JobPaper> paperOf(const std::string &ppdFile, const FilterOptions &options,
                                const imposition::BookletKeys &keys);

/// Whether the printer of this PPD wants the last page first where the job says nothing of an
/// order: the tray piles its sheets face up. False where the PPD can't be read.
bool wantsLastFirst(const std::string &ppdFile, const FilterOptions &options);

}  // namespace orvek::driver
