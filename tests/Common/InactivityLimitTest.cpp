// SPDX-License-Identifier: Apache-2.0
// Two seconds without data, on a counter that may wrap.

#include "Common/InactivityLimit.h"

#include <gtest/gtest.h>

namespace {

using orvek::InactivityLimit;

TEST(InactivityLimit, HoldsForExactly120Ticks) {
  InactivityLimit limit(1000);
  EXPECT_TRUE(limit.holds(1000));
  EXPECT_TRUE(limit.holds(1120));
  EXPECT_FALSE(limit.holds(1121));
}

TEST(InactivityLimit, CountsFromTheLastMark) {
  InactivityLimit limit(1000);
  limit.mark(1100);
  EXPECT_TRUE(limit.holds(1220));
  EXPECT_FALSE(limit.holds(1221));
}

TEST(InactivityLimit, CountsFromZeroOnceTheCounterHasWrapped) {
  InactivityLimit limit(0xFFFFFFF0);
  EXPECT_TRUE(limit.holds(5));
  EXPECT_TRUE(limit.holds(120));
  EXPECT_FALSE(limit.holds(121));
}

TEST(InactivityLimit, HoldsUpToTheLastTickBeforeTheWrap) {
  InactivityLimit limit(0xFFFFFFF0);
  EXPECT_TRUE(limit.holds(0xFFFFFFFF));
}

}  // namespace
