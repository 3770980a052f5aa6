// SPDX-License-Identifier: Apache-2.0
// The cursor before and behind a reply, and names whose labels don't go at once.

#include "Common/ReplyCursor.h"

#include <gtest/gtest.h>

#include <array>

#include "Common/RendezvousUtilities.h"

namespace {

TEST(ReplyCursor, HoldsNothingBeforeTheReply) {
  const std::array<unsigned char, 10> bytes{};
  orvek::ReplyCursor cursor(bytes.data(), 8, bytes.data());
  EXPECT_TRUE(cursor.holds(8));
  EXPECT_FALSE(cursor.holds(9));
  cursor.moveTo(-1);
  EXPECT_FALSE(cursor.holds(1));
  EXPECT_FALSE(cursor.inside());
}

TEST(DecodedName, GoesOnBehindALabelThatAZeroByteCutsShort) {
  // "c" at 0; at 3 a label "a" with a zero byte in it, which goes on at "c".
  const std::array<unsigned char, 9> reply{1, 'c', 0, 3, 'a', 0, 'b', 0xC0, 0};
  const unsigned char *cursor = reply.data() + 3;
  std::array<char, orvek::decodedNameSize> name{};
  EXPECT_EQ(decode_name(&cursor, reply.data(), 9, name.data()), 0);
  EXPECT_STREQ(name.data(), "a.c.");
  EXPECT_EQ(cursor, reply.data() + 9);
}

}  // namespace
