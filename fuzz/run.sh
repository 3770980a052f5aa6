#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the fuzzers and runs each for a while on its seeds. What they find beyond the seeds stays in
# out/fuzz/, so that a later run goes on from there; an input that fails is kept there, too.
#   fuzz/run.sh [SECONDS]      SECONDS for each fuzzer, 20 unless given
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."

readonly seconds=${1:-20}
case $seconds in
  '' | *[!0-9]*)
    echo "run.sh: SECONDS must be a number, not \"$seconds\"" >&2
    exit 2
    ;;
esac

cmake --preset fuzz >/dev/null
cmake --build build-fuzz --target fuzzers -j "$(nproc)"

for name in Readers Answers Http XML DeviceURI; do
  found=out/fuzz/$name
  mkdir -p "$found"
  echo "== $name, $seconds s"
  build-fuzz/bin/fuzz-"$name" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -verbosity=0 -artifact_prefix="$found/failed-" "$found" "fuzz/seeds/$name" 2>&1 |
    tee "$found.log" | grep -E 'number_of_executed_units|ERROR|SUMMARY|runtime error|failed-' || true
  if ! grep -q 'stat::number_of_executed_units' "$found.log" ||
    grep -qE 'ERROR|SUMMARY|failed-' "$found.log"; then
    cat "$found.log" >&2
    exit 1
  fi
done
