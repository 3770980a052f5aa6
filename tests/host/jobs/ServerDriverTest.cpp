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

// A message may come in any language, and about anything.
TEST(ServerDriver, IsMissingWhereTheMessageNamesItOrNoFileAtAll) {
  const QString queuePPD = QStringLiteral(ORVEK_SOURCE_DIR "/printers/Orvek-6180.ppd");
  const auto becomes = [&](const char *message) {
    return serverDriverFor({}, {lacksFilter.reasons, QString::fromUtf8(message)}, queuePPD);
  };
  for (const char *ours :
       {"", "Ready to print.",
        "File \"/usr/lib/cups/filter/orvek-booklet\" not available: No such file",
        "Fichier « /opt/orvek-booklet » absent",
        "Datei „/usr/lib/cups/filter/orvek-booklet“ fehlt"}) {
    EXPECT_EQ(becomes(ours), ServerDriver::StopsEveryJob) << ours;
  }
  for (const char *others : {"File \"/usr/lib/cups/filter/pdftops\" not available: No such file",
                             "Datei „/opt/other/filter“ fehlt",
                             "File \"/usr/lib/cups/filter/my-orvek-booklet\" not available"}) {
    EXPECT_EQ(becomes(others), ServerDriver::Works) << others;
  }
}

}  // namespace
}  // namespace orvek::test
