// SPDX-License-Identifier: Apache-2.0
// The filters of the print system that the driver hands documents to.
#pragma once

#include <string>
#include <vector>

#include "driver/FilterCall.h"

namespace orvek::driver {

/// Runs standard filters ("pdftops" ...), one feeding the next, all called alike; only the first is
/// told the call's file. The first reads from `input` where the call has no file, the last writes
/// to `output`; both stay the caller's. Waits until all have ended.
///
/// Failures, the first there is: a filter is not installed, could not be started, or died
/// of a signal. A filter that ends with a status other than 0 has said why itself; the status is
/// the result.
Result<int> runStandardFilters(const std::vector<std::string> &names, const FilterCall &call,
                               int input, int output);

/// The path of a standard filter: in the print server's folder of this run (CUPS_SERVERBIN) or else
/// in this machine's. Empty where it is in neither.
std::string standardFilterPath(const std::string &name);

}  // namespace orvek::driver
