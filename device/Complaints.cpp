// SPDX-License-Identifier: Apache-2.0
// What goes to the standard error, in the program and in each of its commands' modules.

#include "device/Commands.h"

namespace orvek::device {

int complain(ExitStatus status, const char *what, const char *why) {
  std::fprintf(stderr, "orvek-device: %s%s%s\n", what == nullptr ? "" : what,
               what == nullptr ? "" : ": ", why);
  return status;
}

int misuse(const char *what, const char *why) {
  std::fprintf(stderr, "orvek-device: %s%s%s (see orvek-device --help)\n",
               what == nullptr ? "" : what, what == nullptr ? "" : ": ", why);
  return BadArgument;
}

}  // namespace orvek::device
