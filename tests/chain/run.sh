#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Prints jobs at random through the whole chain of filters and compares the paper with the preview, as
# many at a time as there are processors. A job that differs is shown with the command line that prints
# it again.
#   tests/chain/run.sh [JOBS [SEED]]      5000 jobs from seed 1 unless given; one job: 1 and its seed
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

export ORVEK_CHAIN_JOBS=${1:-5000} ORVEK_CHAIN_SEED=${2:-1} QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
ensure_numbers "JOBS and SEED" "$ORVEK_CHAIN_JOBS" "$ORVEK_CHAIN_SEED"

# shard NUMBER: prints its share of the jobs; says what differs only.
shard() {
  local log
  log=$(mktemp)
  if build/bin/chain-test --gtest_filter="*RandomJobs*/$1" >"$log" 2>&1; then
    rm "$log"
    return
  fi
  sed -n '/Failure$/,/^\[/p' "$log" | grep -v '^\[' || cat "$log"
  rm "$log"
  return 1
}
export -f shard

build dev chain-test
begin=$SECONDS
# shellcheck disable=SC2016
seq 0 7 | xargs -P "$(jobs)" -I '{}' bash -c 'shard "$1"' shard '{}' || die "some jobs differ"
say "$ORVEK_CHAIN_JOBS jobs from seed $ORVEK_CHAIN_SEED: all as previewed, in $((SECONDS - begin)) s"
