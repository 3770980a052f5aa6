// SPDX-License-Identifier: Apache-2.0
// The driver: one CUPS filter.
#pragma once

#include <span>

namespace orvek::driver {

/// Carries out the call in `arguments` (the program's own place first) and gives the exit status.
///
/// A job that asks for a booklet comes out as one. Any other, and a job's banner pages, come out of
/// the standard filter as they would without the driver: the same bytes, messages and accounting.
/// Takes PDF and PostScript. With "--sheets" before the job's number the sheets are written as a
/// PDF instead of being printed, whether or not the options ask for a booklet.
///
/// Messages go to standard error as CUPS wants them: an error is one line, "ERROR: WHAT: WHY".
int runDriver(std::span<char *const> arguments);

}  // namespace orvek::driver
