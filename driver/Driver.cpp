// SPDX-License-Identifier: Apache-2.0
// Decides who prints the job.

#include "driver/Driver.h"

#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "driver/BookletJob.h"
#include "driver/Cancel.h"
#include "driver/StandardFilters.h"
#include "driver/StandardPPD.h"
#include "platform/system/OneLine.h"

namespace orvek::driver {
namespace {

constexpr std::string_view sheetsOption = "--sheets";

std::string variable(const char *name) {
  const char *value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

/// CUPS prints banners as documents of their own, with the job's options.
bool isBanner() {
  const std::string type = variable("CONTENT_TYPE");
  return type == "application/vnd.cups-banner" || type == "application/vnd.cups-pdf-banner";
}

Result<int> passOn(const BookletJob &job) {
  const char *filter = job.kind == DocumentKind::PostScript ? "pstops" : "pdftops";
  return runStandardFilters({filter}, job.call, STDIN_FILENO, STDOUT_FILENO);
}

Result<int> carryOut(std::span<char *const> arguments, bool onlySheets) {
  auto call = readFilterCall(arguments);
  if (!call) return call.failure();
  FilterOptions options(call.value().options);
  const auto keys =
      imposition::readBookletKeys([&options](const char *key) { return options.value(key); });
  const auto ppd = StandardPPD::of(variable("PPD"));
  if (!ppd) return ppd.failure();
  const BookletJob job{call.value(), documentKind(call.value()), keys};
  if (onlySheets) return writeSheets(job, &options);
  return keys.enabled && !isBanner() ? printBooklet(job, &options) : passOn(job);
}

}  // namespace

int runDriver(std::span<char *const> arguments) {
  watchForCancel();
  std::vector<char *> rest(arguments.begin(), arguments.end());
  const bool onlySheets = rest.size() > 1 && rest[1] == sheetsOption;
  if (onlySheets) rest.erase(rest.begin() + 1);
  const auto status = carryOut(rest, onlySheets);
  if (status) return status.value();
  std::fprintf(stderr, "ERROR: %s\n", oneLine(status.failure().line().toStdString()).c_str());
  return 1;
}

}  // namespace orvek::driver
