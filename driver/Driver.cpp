// SPDX-License-Identifier: Apache-2.0
// Decides who prints the job.

#include "driver/Driver.h"

#include <unistd.h>

#include <cstdio>
#include <string_view>
#include <utility>
#include <vector>

#include "driver/BookletJob.h"
#include "driver/Cancel.h"
#include "driver/StandardFilters.h"
#include "driver/StandardPPD.h"
#include "platform/system/OneLine.h"
#include "platform/system/StandardDescriptors.h"

namespace orvek::driver {
namespace {

constexpr std::string_view sheetsOption = "--sheets";

/// CUPS prints banners as documents of their own, with the job's options.
bool isBanner() {
  const std::string type = environmentVariable("CONTENT_TYPE");
  return type == "application/vnd.cups-banner" || type == "application/vnd.cups-pdf-banner";
}

Result<int> passOn(BookletJob job) {
  const JobDocument &document = job.document;
  const char *filter = document.kind == DocumentKind::PostScript ? "pstops" : "pdftops";
  int input = STDIN_FILENO;
  if (document.copy) {
    job.call.file.clear();
    input = ::fileno(document.copy.get());
  }
  return printWith(filter, job.call, input, document.isEmpty);
}

Status checkDescriptors(const FilterCall &call) {
  if (call.file.empty() && !isReadable(STDIN_FILENO)) {
    return Failure{FailureKind::Io, QStringLiteral("standard input"),
                   QStringLiteral("it is closed; name a file, or let the document come by it")};
  }
  if (!isWritable(STDOUT_FILENO)) {
    return Failure{FailureKind::Io, QStringLiteral("standard output"),
                   QStringLiteral("it is closed; say where the output goes")};
  }
  return {};
}

Result<int> carryOut(std::span<char *const> arguments, bool onlySheets) {
  auto call = readFilterCall(arguments);
  if (!call) return call.failure();
  if (const Status open = checkDescriptors(call.value()); !open) return open.failure();
  FilterOptions options(call.value().options);
  const auto keys =
      imposition::readBookletKeys([&options](const char *key) { return options.value(key); });
  const auto ppd = StandardPPD::of(environmentVariable("PPD"));
  if (!ppd) return ppd.failure();
  auto document = lookAtDocument(call.value());
  if (!document) return document.failure();
  BookletJob job{call.value(), document.take(), keys};
  if (onlySheets) return writeSheets(std::move(job), &options);
  if (keys.enabled && !isBanner()) return printBooklet(std::move(job), &options);
  return passOn(std::move(job));
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
