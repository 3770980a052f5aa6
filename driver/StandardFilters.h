// SPDX-License-Identifier: Apache-2.0
// The filters of the print system that the driver hands documents to.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "driver/FilterCall.h"

namespace orvek::driver {

/// How a run of filters ended.
struct FilterRun {
  int status = 0;
  /// The bytes that came out.
  std::uintmax_t written = 0;
};

/// Runs standard filters ("pdftops" ...), one feeding the next, all called alike; only the first is
/// told the call's file. The first reads from `input` where the call has no file, the last writes
/// to `output`; both stay the caller's. Waits until all have ended.
///
/// A filter that ends with a status other than 0 has said why itself; the first such status is the
/// run's.
///
/// Failures, the first there is: a filter is not installed, could not be started, or died of a
/// signal; nobody takes what they make, or there is no room for it. A cancelled job is none, but
/// has the status 1.
Result<FilterRun> runStandardFilters(const std::vector<std::string> &names, const FilterCall &call,
                                     int input, int output);

/// Prints with one standard filter to standard output, and gives its exit status. Fails, too, where
/// the filter makes nothing of a document without saying that it failed, as when there is no room
/// for its temporary files. Of an empty document (`isEmpty`) nothing is to be made.
Result<int> printWith(const std::string &name, const FilterCall &call, int input, bool isEmpty);

/// The path of a standard filter: in the print server's folder of this run (CUPS_SERVERBIN) or else
/// in this machine's. Empty where it is in neither.
std::string standardFilterPath(const std::string &name);

}  // namespace orvek::driver
