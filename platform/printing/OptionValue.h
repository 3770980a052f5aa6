// SPDX-License-Identifier: Apache-2.0
// How values are written among a job's options, so that libcups' reader of options takes all of a
// value for the value. Pure functions over bytes (UTF-8 goes through as it is), for any thread;
// nothing fails.
#pragma once

#include <string>
#include <string_view>

namespace orvek {

/// The value with a backslash before white space, quotes, backslashes and braces. An empty one
/// stays empty.
inline std::string escapedOptionValue(std::string_view value) {
  constexpr std::string_view syntax = " \t\n\r\v\f\\'\"{}";
  std::string text;
  text.reserve(value.size());
  for (const char c : value) {
    if (syntax.find(c) != std::string_view::npos) text += '\\';
    text += c;
  }
  return text;
}

/// Whether the value is one whole collection ("{a=1 b={c=2}}"), which readers take as it stands, up
/// to its closing brace.
inline bool isOptionCollection(std::string_view value) {
  if (!value.starts_with('{')) return false;
  int depth = 0;
  for (std::size_t i = 0; i < value.size(); ++i) {
    if (value[i] == '{') ++depth;
    if (value[i] == '}') --depth;
    if (depth == 0) return i + 1 == value.size();
  }
  return false;
}

}  // namespace orvek
