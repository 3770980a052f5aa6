// SPDX-License-Identifier: Apache-2.0
// The words of finishing: this printer family's, the standard's PPD choices, and its keywords. The
// front of the machine is the foot of the paper; a flipped set is bound at its other long edge.

#include <algorithm>
#include <array>
#include <string_view>

#include "imposition/Finishing.h"

#include "platform/plugin/FinishingKeywords.h"

namespace orvek::imposition {
namespace {

constexpr int multiplePunches = 11;

struct CornerWord {
  std::string_view word;
  Corner corner;
};
constexpr std::array corners{
    CornerWord{"Front", Corner::BottomLeft},
    CornerWord{"Rear", Corner::TopLeft},
    CornerWord{"FrontFlip", Corner::TopRight},
    CornerWord{"RearFlip", Corner::BottomRight},
    CornerWord{"SinglePortrait", Corner::TopLeft},
    CornerWord{"SingleRevLandscape", Corner::BottomLeft},
    CornerWord{"SingleLandscape", Corner::TopRight},
    CornerWord{"SingleRevPortrait", Corner::BottomRight},
    CornerWord{"staple-top-left", Corner::TopLeft},
    CornerWord{"staple-bottom-left", Corner::BottomLeft},
    CornerWord{"staple-top-right", Corner::TopRight},
    CornerWord{"staple-bottom-right", Corner::BottomRight},
};

struct EdgeWord {
  std::string_view word;
  Edge edge;
};
constexpr std::array edges{
    EdgeWord{"RevPortrait", Edge::Right}, EdgeWord{"RevLandscape", Edge::Bottom},
    EdgeWord{"Portrait", Edge::Left},     EdgeWord{"Landscape", Edge::Top},
    EdgeWord{"-left", Edge::Left},        EdgeWord{"-top", Edge::Top},
    EdgeWord{"-right", Edge::Right},      EdgeWord{"-bottom", Edge::Bottom},
};

struct CountWord {
  std::string_view word;
  int count;
};
constexpr std::array counts{
    CountWord{"Dual", 2},  CountWord{"Triple", 3},
    CountWord{"Quad", 4},  CountWord{"Multiple", multiplePunches},
    CountWord{"-dual", 2}, CountWord{"-triple", 3},
    CountWord{"-quad", 4}, CountWord{"-multiple", multiplePunches},
};

bool has(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

EdgeMarks standardRow(std::string_view word) {
  EdgeMarks row;
  for (const CountWord &count : counts) {
    if (row.count == 0 && has(word, count.word)) row.count = count.count;
  }
  if (row.count == 0) return row;
  for (const EdgeWord &edge : edges) {
    if (!word.ends_with(edge.word)) continue;
    row.edge = edge.edge;
    return row;
  }
  return {};
}

void readStaples(std::string_view word, Finishing *finishing) {
  if (word == "Dual" || word == "DualFlip") {
    finishing->staples = {word == "Dual" ? Edge::Left : Edge::Right, 2};
    return;
  }
  if (word == "SaddleStitch" || word == "saddle-stitch") finishing->stapledInFold = true;
  for (const CornerWord &corner : corners) {
    if (corner.word == word) finishing->cornerStaple = corner.corner;
  }
  if (!finishing->cornerStaple) finishing->staples = standardRow(word);
}

// A set that is bound at its right is punched there.
void readFamilyHoles(std::string_view word, Finishing *finishing) {
  const bool isNumber = word.size() == 5 && word.substr(1) == "Hole";
  if (!isNumber || word[0] < '1' || word[0] > '9') return;
  const bool isFlipped = finishing->staples.edge == Edge::Right ||
                         finishing->cornerStaple == Corner::TopRight ||
                         finishing->cornerStaple == Corner::BottomRight;
  finishing->holes = {isFlipped ? Edge::Right : Edge::Left, word[0] - '0'};
}

bool isNone(const std::string &word) {
  return word.empty() || word == "None" || word == "none" || word == "False";
}

void readKeyword(std::string_view word, Finishing *finishing) {
  if (word.starts_with("staple-") || word == "saddle-stitch") readStaples(word, finishing);
  if (word.starts_with("punch-")) finishing->holes = standardRow(word);
  if (word.starts_with("fold-")) finishing->fold = word;
  if (word == "booklet-maker") finishing->stapledInFold = true;
}

void readKeywords(std::string_view words, Finishing *finishing) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(','), words.size());
    readKeyword(words.substr(0, end), finishing);
    words.remove_prefix(std::min(end + 1, words.size()));
  }
}

}  // namespace

Finishing readFinishing(const ValueOf &markedChoice) {
  Finishing finishing;
  const auto marked = [&](const char *option) {
    const std::string word = markedChoice(option).value_or(std::string());
    return isNone(word) ? std::string() : word;
  };
  readKeywords(marked("finishings"), &finishing);
  for (const char *option : {"StapleLocation", staplingKeyword}) {
    if (const std::string word = marked(option); !word.empty()) readStaples(word, &finishing);
  }
  if (const std::string word = marked("PunchMedia"); !word.empty()) {
    finishing.holes = standardRow(word);
  }
  readFamilyHoles(marked(punchKeyword), &finishing);
  for (const char *option : {"FoldType", foldingKeyword}) {
    if (const std::string word = marked(option); !word.empty()) finishing.fold = word;
  }
  // A saddle fold is stitched, and so is what the standard's printers call a booklet.
  if (finishing.fold == saddleFold || !marked("Booklet").empty()) finishing.stapledInFold = true;
  return finishing;
}

}  // namespace orvek::imposition
