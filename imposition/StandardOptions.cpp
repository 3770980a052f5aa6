// SPDX-License-Identifier: Apache-2.0
// The words that printers and CUPS use for the same few meanings.

#include "imposition/StandardOptions.h"

#include <algorithm>
#include <string_view>

namespace orvek::imposition {
namespace {

Duplexing duplexingOf(const std::string &choice) {
  const std::string word = lowerCase(choice);
  if (word == "duplextumble" || word.starts_with("fronttumble")) return Duplexing::ShortEdge;
  const bool isTwoSided = word.starts_with("duplex") || word.starts_with("front");
  return isTwoSided ? Duplexing::LongEdge : Duplexing::None;
}

bool isGrayChoice(const std::string &choice) {
  const std::string word = lowerCase(choice);
  constexpr std::array parts{"gray", "grey", "mono", "black"};
  const bool isGray = std::any_of(parts.begin(), parts.end(), [&](std::string_view part) {
    return word.find(part) != std::string::npos;
  });
  return isGray || word == "bi-level" || word == "process-bi-level" || word == "k";
}

}  // namespace

std::string lowerCase(std::string text) {
  for (char &c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

Duplexing readDuplexing(const ValueOf &valueOf) {
  for (const char *option : duplexOptions) {
    if (const auto choice = valueOf(option)) return duplexingOf(*choice);
  }
  const std::string sides = lowerCase(valueOf(sidesOption).value_or(std::string()));
  if (sides == "two-sided-short-edge") return Duplexing::ShortEdge;
  return sides.starts_with("two-sided") ? Duplexing::LongEdge : Duplexing::None;
}

bool readsAsGray(const ValueOf &valueOf) {
  for (const char *option : colorOptions) {
    if (const auto choice = valueOf(option)) return isGrayChoice(*choice);
  }
  const auto mode = valueOf(colorModeOption);
  return mode && isGrayChoice(*mode);
}

std::optional<bool> readReversed(const ValueOf &valueOf) {
  for (const char *option : orderOptions) {
    const auto order = valueOf(option);
    if (!order) continue;
    const std::string word = lowerCase(*order);
    return word == "reverse" || word == "reverse-order";
  }
  return std::nullopt;
}

}  // namespace orvek::imposition
