// SPDX-License-Identifier: Apache-2.0
// What goes to the standard streams, in the program and in each of its commands' modules.

#include <unistd.h>

#include <cerrno>
#include <cstring>
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

int writeText(Output output, std::string_view bytes) {
  const bool isTerminal = ::isatty(::fileno(output.file)) != 0;
  const std::string shown = isTerminal ? forTerminal(bytes) : std::string();
  const std::string_view written = isTerminal ? shown : bytes;
  if (std::fwrite(written.data(), 1, written.size(), output.file) == written.size()) return Done;
  return complain(Negative, "standard output", std::strerror(errno));
}

}  // namespace orvek::device
