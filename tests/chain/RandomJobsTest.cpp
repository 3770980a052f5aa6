// SPDX-License-Identifier: Apache-2.0
// Jobs at random through the whole chain of filters into a file: what the preview says is what
// comes out. ORVEK_CHAIN_JOBS and ORVEK_CHAIN_SEED choose how many and which; run.sh sets them.

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>

#include "tests/chain/ChainRun.h"
#include "tests/chain/RandomJob.h"
#include "tests/driver/DriverKit.h"
#include "tests/driver/Picture.h"

namespace orvek::test {
namespace {

constexpr unsigned shards = 8;
constexpr unsigned firstSeed = 1;

unsigned numberFrom(const char *variable, unsigned absent) {
  const char *text = std::getenv(variable);
  return text == nullptr ? absent : static_cast<unsigned>(std::strtoul(text, nullptr, 10));
}

class RandomJobs : public ::testing::TestWithParam<unsigned> {
 protected:
  void SetUp() override {
    if (!obstacleToFilters().isEmpty()) GTEST_SKIP() << obstacleToFilters().toStdString();
    if (!obstacleToLooking().empty()) GTEST_SKIP() << obstacleToLooking();
  }
};

TEST_P(RandomJobs, ComeOutAsThePreviewSays) {
  const unsigned jobs = numberFrom("ORVEK_CHAIN_JOBS", ORVEK_CHAIN_JOBS);
  const unsigned seed = numberFrom("ORVEK_CHAIN_SEED", firstSeed);
  ChainRun run;
  for (unsigned i = GetParam(); i < jobs; i += shards) {
    SCOPED_TRACE("seed " + std::to_string(seed + i));
    const QStringList found = run.differencesOf(randomJob(seed + i));
    if (found.isEmpty()) continue;
    run.keep(seed + i);
    ADD_FAILURE() << "seed " << seed + i << ": " << run.commandLine().toStdString()
                  << "\npreview, then paper: " << found.join(QStringLiteral("\n  ")).toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Shard, RandomJobs, ::testing::Range(0U, shards));

}  // namespace
}  // namespace orvek::test
