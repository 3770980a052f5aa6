// SPDX-License-Identifier: Apache-2.0
// One rule per kind of value; the keys' defaults stand in the structure.

#include "imposition/BookletOptions.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace orvek::imposition {
namespace {

bool isSpace(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

bool flag(const ValueOf &valueOf, QLatin1String key) {
  const auto value = valueOf(key.data());
  return value && readsAsOn(*value);
}

int number(const ValueOf &valueOf, const char *key, int absent) {
  const auto value = valueOf(key);
  return value ? leadingInteger(*value) : absent;
}

int numberWithin(const ValueOf &valueOf, QLatin1String key, const BookletNumber &range) {
  return std::clamp(number(valueOf, key.data(), range.absent), range.least, range.most);
}

bool hasSeveralPagesPerSheet(const ValueOf &valueOf) {
  return number(valueOf, layoutNUpKey.data(), 0) != 0 || number(valueOf, numberUpOption, 1) > 1;
}

}  // namespace

int leadingInteger(const std::string &text) {
  auto c = std::find_if_not(text.begin(), text.end(), isSpace);
  const bool negative = c != text.end() && *c == '-';
  if (c != text.end() && (*c == '-' || *c == '+')) ++c;
  constexpr std::int64_t beyond = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
  std::int64_t value = 0;
  for (; c != text.end() && *c >= '0' && *c <= '9'; ++c) {
    value = std::min(value * 10 + (*c - '0'), beyond);
  }
  return static_cast<int>(negative ? -value : std::min(value, beyond - 1));
}

// CUPS does not keep the letters of a boolean: "False" on a command line reaches filters as
// "false".
bool readsAsOn(const std::string &flag) {
  const std::string word = lowerCase(flag);
  return word != "false" && word != "off" && word != "no" && word != "0";
}

BookletKeys readBookletKeys(const ValueOf &valueOf) {
  BookletKeys keys;
  keys.enabled = flag(valueOf, enableBookletKey) && !hasSeveralPagesPerSheet(valueOf);
  keys.rightToLeft = flag(valueOf, rightToLeftKey);
  keys.pageBorders = flag(valueOf, pageBordersKey);
  keys.gutter = numberWithin(valueOf, gutterKey, gutterRange);
  keys.creep = numberWithin(valueOf, creepKey, creepRange);
  keys.targetPaper = number(valueOf, targetPaperSizeKey.data(), jobsOwnPaper);
  return keys;
}

std::optional<int> targetPaperChoice(int targetPaper, int pageSizeChoices) {
  if (targetPaper < 1 || targetPaper >= pageSizeChoices) return std::nullopt;
  return targetPaper - 1;
}

}  // namespace orvek::imposition
