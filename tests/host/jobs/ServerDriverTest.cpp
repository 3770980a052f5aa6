// SPDX-License-Identifier: Apache-2.0
// Which jobs a server's driver matters to.

#include "host/jobs/ServerDriver.h"

#include <gtest/gtest.h>

namespace orvek::test {
namespace {

using Options = QMap<QString, QString>;

const QueueState lacksFilter{QStringLiteral("cups-missing-filter-warning"), {}};

TEST(ServerDriver, MattersToEveryJobWhereItIsMissing) {
  EXPECT_TRUE(dependsOnServerDriver({}, lacksFilter));
  EXPECT_FALSE(dependsOnServerDriver({}, {QStringLiteral("none"), {}}));
}

TEST(ServerDriver, IsNoMatterOfReadyBytesInWhateverLettersThatIsSaid) {
  const QString format = QStringLiteral("application/vnd.cups-raw");
  for (const char *name : {"document-format", "Document-Format"}) {
    EXPECT_FALSE(dependsOnServerDriver({{QLatin1String(name), format}}, lacksFilter)) << name;
  }
  for (const char *name : {"raw", "RAW"}) {
    const Options options{{QLatin1String(name), QStringLiteral("true")}};
    EXPECT_FALSE(dependsOnServerDriver(options, lacksFilter)) << name;
  }
}

}  // namespace
}  // namespace orvek::test
