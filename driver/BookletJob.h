// SPDX-License-Identifier: Apache-2.0
// A job that asks for a booklet, from the document to the printer's language.
#pragma once

#include "driver/FilterCall.h"
#include "driver/FilterOptions.h"
#include "driver/JobDocument.h"
#include "imposition/BookletOptions.h"

namespace orvek::driver {

/// A job as it came, and the booklet that it asks for.
struct BookletJob {
  FilterCall call;
  JobDocument document;
  imposition::BookletKeys keys;
};

/// Imposes the job's document and writes the sheets, as a PDF, to standard output.
Result<int> writeSheets(BookletJob job, FilterOptions *options);

/// Imposes the job's document and has the standard filter print the sheets: two-sided, turned over
/// at the short edge, each copy a booklet. Gives the filter's exit status.
Result<int> printBooklet(BookletJob job, FilterOptions *options);

/// Leaves in the options what is still to be done once the sheets are made: takes out what has been
/// carried out on the pages, and what would turn the sheets over otherwise or part the copies.
/// `pageSize`: the paper that the sheets need; empty for the job's own.
void prepareForSheets(FilterOptions *options, const std::string &pageSize);

}  // namespace orvek::driver
