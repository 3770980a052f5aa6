// SPDX-License-Identifier: Apache-2.0
// A job's options as CUPS hands them to filters: one text of names and values.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "platform/printing/PPD.h"
// clang-format off
#include <cups/cups.h>
// clang-format on

namespace orvek::driver {

/// Names are compared without regard to case, as CUPS does. An option without a value is a boolean:
/// "name" is "true", "noname" is "false".
class FilterOptions {
 public:
  explicit FilterOptions(const std::string &text);
  ~FilterOptions();
  FilterOptions(const FilterOptions &) = delete;
  FilterOptions &operator=(const FilterOptions &) = delete;

  std::optional<std::string> value(const char *name) const;
  void set(const char *name, const char *value);
  void remove(std::span<const char *const> names);

  /// The options in the form that the constructor reads.
  std::string text() const;

  /// Marks a PPD with them, over its defaults.
  void mark(ppd_file_t *ppd) const;

 private:
  int m_count = 0;
  cups_option_t *m_options = nullptr;
};

}  // namespace orvek::driver
