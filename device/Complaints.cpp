// SPDX-License-Identifier: Apache-2.0
// What goes to the standard error, in the program and in each of its commands' modules.

#include <string>

#include "device/Commands.h"
#include "platform/system/OneLine.h"

namespace orvek::device {
namespace {

std::string lineOf(const char *what, const char *why) {
  const std::string subject = what == nullptr ? "" : std::string(what) + ": ";
  return oneLine("orvek-device: " + subject + why);
}

}  // namespace

int complain(ExitStatus status, const char *what, const char *why) {
  std::fprintf(stderr, "%s\n", lineOf(what, why).c_str());
  return status;
}

int misuse(const char *what, const char *why) {
  std::fprintf(stderr, "%s (see orvek-device --help)\n", lineOf(what, why).c_str());
  return BadArgument;
}

}  // namespace orvek::device
