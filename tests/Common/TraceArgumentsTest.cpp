// SPDX-License-Identifier: Apache-2.0
// Each kind of trace line with arguments of its own.

#include <gtest/gtest.h>

#include "Common/PDELogging.h"
#include "tests/support/LogCapture.h"

namespace {

TEST(TraceArguments, ReachEveryKindOfLine) {
  const orvek::test::LogCapture log;
  _PDEProlog(nullptr, "%d of %s", 1, "begin");
  _PDEEpilog(nullptr, "%d of %s", 2, "end");
  _PDELog(nullptr, "%d of %s", 3, "log");
  EXPECT_EQ(log.lines(),
            (QStringList{QStringLiteral("BEGIN 1 of begin"), QStringLiteral("END 2 of end"),
                         QStringLiteral("LOG 3 of log")}));
}

}  // namespace
