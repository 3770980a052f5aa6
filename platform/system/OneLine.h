// SPDX-License-Identifier: Apache-2.0
// What is put between a text of unknown origin and a line that somebody reads. Without Qt, for
// programs that do without it.
#pragma once

#include <string>
#include <string_view>

namespace orvek {

/// How many bytes the UTF-8 character at the start of `text` has; 0 where there is none.
constexpr std::size_t characterLength(std::string_view text) {
  if (text.empty()) return 0;
  const auto first = static_cast<unsigned char>(text[0]);
  const std::size_t length = first < 0x80                    ? 1
                             : first >= 0xC2 && first < 0xE0 ? 2
                             : first >= 0xE0 && first < 0xF0 ? 3
                             : first >= 0xF0 && first < 0xF5 ? 4
                                                             : 0;
  if (length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return 0;
  }
  return length;
}

/// Whether a terminal or a reader obeys the character instead of showing it: control characters,
/// separators of lines, and marks that turn the direction of what follows.
constexpr bool isObeyed(std::string_view character) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(character[i]); };
  if (character.size() == 1) return byte(0) < 0x20 || byte(0) == 0x7F;
  if (character.size() == 2) return byte(0) == 0xC2 && byte(1) < 0xA0;
  if (character.size() != 3 || byte(0) != 0xE2) return false;
  return (byte(1) == 0x80 && byte(2) >= 0xA8 && byte(2) <= 0xAE) ||  // U+2028 to U+202E
         (byte(1) == 0x81 && byte(2) >= 0xA6 && byte(2) <= 0xA9);    // U+2066 to U+2069
}

/// `utf8` as a terminal shows it and does not obey it, but for the characters among `obeyed`: a
/// space stands for each other one that it would obey, a question mark for each byte that is no
/// UTF-8, which old terminals may take for a control character.
inline std::string forTerminal(std::string_view utf8, std::string_view obeyed = "\n\t") {
  std::string text;
  text.reserve(utf8.size());
  while (!utf8.empty()) {
    const std::size_t length = characterLength(utf8);
    const std::string_view character = utf8.substr(0, length);
    if (length == 0) {
      text += '?';
    } else if (isObeyed(character) && obeyed.find(character) == std::string_view::npos) {
      text += ' ';
    } else {
      text += character;
    }
    utf8.remove_prefix(length == 0 ? 1 : length);
  }
  return text;
}

/// The same as one line: nothing of it is obeyed.
inline std::string oneLine(std::string_view utf8) {
  return forTerminal(utf8, {});
}

}  // namespace orvek
