// SPDX-License-Identifier: Apache-2.0
// Over libcups' own reader, so that no text means another thing here than to the other filters.

#include "driver/FilterOptions.h"

#include <cstdlib>
#include <string_view>
#include <utility>

#include "platform/printing/OptionValue.h"

namespace orvek::driver {
namespace {

std::string written(std::string_view value) {
  if (isOptionCollection(value)) return std::string(value);
  return value.empty() ? "\"\"" : escapedOptionValue(value);
}

}  // namespace

FilterOptions::FilterOptions(const std::string &text) {
  m_count = cupsParseOptions(text.c_str(), 0, &m_options);
}

FilterOptions::~FilterOptions() {
  cupsFreeOptions(m_count, m_options);
}

std::optional<std::string> FilterOptions::value(const char *name) const {
  const char *found = cupsGetOption(name, m_count, m_options);
  if (found == nullptr) return std::nullopt;
  return found;
}

void FilterOptions::set(const char *name, const char *value) {
  m_count = cupsAddOption(name, value, m_count, &m_options);
}

void FilterOptions::remove(std::span<const char *const> names) {
  for (const char *name : names) m_count = cupsRemoveOption(name, m_count, &m_options);
  // libcups keeps the list when its last option goes, and neither frees nor reuses an empty one.
  if (m_count == 0) std::free(std::exchange(m_options, nullptr));
}

std::string FilterOptions::text() const {
  std::string all;
  for (const cups_option_t &option : std::span(m_options, static_cast<std::size_t>(m_count))) {
    if (!all.empty()) all += ' ';
    all += std::string(option.name) + '=' + written(option.value);
  }
  return all;
}

void FilterOptions::mark(ppd_file_t *ppd) const {
  ppdMarkDefaults(ppd);
  cupsMarkOptions(ppd, m_count, m_options);
}

}  // namespace orvek::driver
