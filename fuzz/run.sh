#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the fuzzers and runs each for a while on its seeds, as many at a time as there are processors.
# What they find beyond the seeds stays in out/fuzz/, so that a later run goes on from there; an input
# that fails is kept there, too.
#   fuzz/run.sh [SECONDS]      SECONDS for each fuzzer, 20 unless given
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/.."
. tools/lib.sh

readonly seconds=${1:-20}
case $seconds in
  '' | *[!0-9]*) die "SECONDS must be a number, not \"$seconds\"" 2 ;;
esac

# fuzz NAME SECONDS: runs it; where something failed, shows all that it said.
fuzz() {
  local name=$1 found=out/fuzz/$1
  mkdir -p "$found"
  "build-fuzz/bin/fuzz-$name" -max_total_time="$2" -timeout=10 -rss_limit_mb=2048 \
    -print_final_stats=1 -verbosity=0 -artifact_prefix="$found/failed-" "$found" "fuzz/seeds/$name" \
    >"$found.log" 2>&1 || true
  if ! grep -q 'stat::number_of_executed_units' "$found.log" ||
    grep -qE 'ERROR|SUMMARY|runtime error|failed-' "$found.log"; then
    cat "$found.log" >&2
    return 1
  fi
  printf '== %s, %s s: %s runs\n' "$name" "$2" \
    "$(sed -n 's/^stat::number_of_executed_units: *//p' "$found.log")"
}
export -f fuzz

build fuzz fuzzers
# shellcheck disable=SC2016
printf '%s\n' fuzz/*Fuzzer.cpp | sed 's|^fuzz/||; s|Fuzzer\.cpp$||' |
  xargs -P "$(jobs)" -I '{}' bash -c 'fuzz "$1" "$2"' fuzz '{}' "$seconds"
