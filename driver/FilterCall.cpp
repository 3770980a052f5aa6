// SPDX-License-Identifier: Apache-2.0
// Reads the arguments.

#include "driver/FilterCall.h"

#include <cstddef>
#include <cstdlib>

namespace orvek::driver {
namespace {

constexpr std::size_t fewestArguments = 6;
constexpr std::size_t mostArguments = 7;

}  // namespace

std::vector<std::string> FilterCall::arguments() const {
  std::vector<std::string> all{job, user, title, copies, options};
  if (!file.empty()) all.push_back(file);
  return all;
}

Result<FilterCall> readFilterCall(std::span<char *const> arguments) {
  if (arguments.size() < fewestArguments || arguments.size() > mostArguments) {
    return Failure{
        FailureKind::Usage, QStringLiteral("arguments"),
        QStringLiteral("a CUPS filter is called with JOB USER TITLE COPIES OPTIONS [FILE]")};
  }
  return FilterCall{arguments[0],
                    arguments[1],
                    arguments[2],
                    arguments[3],
                    arguments[4],
                    arguments[5],
                    arguments.size() == mostArguments ? arguments[6] : ""};
}

std::string environmentVariable(const char *name) {
  const char *value = std::getenv(name);
  return value == nullptr ? std::string() : value;
}

}  // namespace orvek::driver
