// SPDX-License-Identifier: Apache-2.0
// Texts of others are shown and not obeyed.

#include "platform/system/OneLine.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

TEST(OneLine, LeavesTextsAsTheyAre) {
  for (const char *text :
       {"", "Staple, 2 points", "Hefte f\u00fcr 5 \u20ac", "\u88fd\u672c", "\U0001f5a8"}) {
    EXPECT_EQ(oneLine(text), text);
  }
}

TEST(OneLine, HasASpaceForEachControlCharacter) {
  EXPECT_EQ(oneLine("a\nb\r\tc\x1b[2J\x7f."), "a b  c [2J .");
  EXPECT_EQ(oneLine({"a\0b", 3}), "a b");
  EXPECT_EQ(oneLine("\u0080\u009b\u009f\u00a0"), "   \u00a0");
}

TEST(OneLine, HasASpaceForWhatEndsALineOrTurnsItsDirection) {
  EXPECT_EQ(oneLine("\u2027\u2028\u2029\u202a\u202e\u202f"), "\u2027    \u202f");
  EXPECT_EQ(oneLine("\u2065\u2066\u2069\u206a"), "\u2065  \u206a");
}

TEST(OneLine, HasAQuestionMarkForEachByteThatIsNoText) {
  EXPECT_EQ(oneLine("\x9b\xff."), "??.");
  // Cut off, and longer than need be.
  EXPECT_EQ(oneLine("a\xe2\x80"), "a??");
  EXPECT_EQ(oneLine("\xc0\x8a"), "??");
}

TEST(ForTerminal, KeepsLinesAndColumns) {
  EXPECT_EQ(forTerminal("a\n\tb\r\n\x1b[2J\u2028\x9b"), "a\n\tb \n [2J ?");
}

}  // namespace
}  // namespace orvek::test
