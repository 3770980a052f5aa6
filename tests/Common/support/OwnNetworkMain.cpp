// SPDX-License-Identifier: Apache-2.0
// The main of test programs that run on a network of their own.

#include <gtest/gtest.h>

#include "tests/Common/support/OwnNetwork.h"

using namespace orvek::test;

int main(int argc, char **argv) {
  testing::InitGoogleTest(&argc, argv);
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  return OwnNetwork::run([] { return RUN_ALL_TESTS(); });
}
