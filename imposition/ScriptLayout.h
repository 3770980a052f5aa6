// SPDX-License-Identifier: Apache-2.0
// Where the print system's filter of PostScript puts a document's pages, which goes by rules of its
// own. A model, as FilterLayout.h is one of the filters of PDF.
#pragma once

#include <span>
#include <vector>

#include "imposition/FilterLayout.h"

namespace orvek::imposition {

/// The sides in the order in which they are printed. Of the job, scaling, position and the filters'
/// own booklet mean nothing to this filter; it knows 1, 2, 4, 6, 9 and 16 pages on a side, and
/// another number counts as 1. `pages` are sizes as displayed, each with its lower left corner
/// where the paper has it. Nothing for no pages, or for paper without a size.
std::vector<FilteredSide> layOutAsScript(std::span<const Size> pages, const FilterJob &job);

/// The job as far as that filter knows it: of the sides that are made of a number of pages, and of
/// which of them are printed, madeSides() and filteredSides() then tell as they do for PDF.
FilterJob knownToScripts(FilterJob job);

}  // namespace orvek::imposition
