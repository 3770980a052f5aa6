// SPDX-License-Identifier: Apache-2.0
// How CUPS calls a filter.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/system/Result.h"

namespace orvek::driver {

/// The arguments of one call. All texts as CUPS gave them.
struct FilterCall {
  /// What stands in the program's own place.
  std::string printer;
  std::string job;
  std::string user;
  std::string title;
  std::string copies;
  std::string options;
  /// Empty: the document comes by standard input.
  std::string file;

  /// For another filter, its own name or path left out.
  std::vector<std::string> arguments() const;
};

/// Fails, with the usage, unless there are five or six arguments besides the program's own place.
Result<FilterCall> readFilterCall(std::span<char *const> arguments);

/// What CUPS says to its filters in the environment ("PPD", "CONTENT_TYPE"); empty where it says
/// nothing.
std::string environmentVariable(const char *name);

}  // namespace orvek::driver
