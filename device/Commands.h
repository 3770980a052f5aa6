// SPDX-License-Identifier: Apache-2.0
// The commands of orvek-device, each in a module of its own.
#pragma once

#include <cstdio>
#include <string_view>

namespace orvek::device {

enum ExitStatus {
  Done = 0,
  /// No address, no reply, no answer, no such element.
  Negative = 1,
  BadArgument = 2,
  NotWellFormed = 3,
};

/// The real standard output. The library writes its diagnostics through stdout, which main() has
/// led to the standard error.
struct Output {
  std::FILE *file;
};

/// Writes "orvek-device: WHAT: WHY" (or "orvek-device: WHY" for a null `what`) to the standard
/// error and gives `status`.
int complain(ExitStatus status, const char *what, const char *why);

/// What a bad command line gives: complains, and points to --help.
int misuse(const char *what, const char *why);

/// Writes what came from elsewhere: as it is into a file or pipe, on a terminal without anything
/// that a terminal would obey. Gives the exit status; complains where it can't be written.
int writeText(Output output, std::string_view bytes);

}  // namespace orvek::device

/// What each module defines: its command. Gets its words as main() does, its own name first, and
/// gives the exit status.
extern "C" int orvekDeviceCommand(int count, char **words, orvek::device::Output output);
