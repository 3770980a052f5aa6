#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Has every call of the functions in Fault.h fail, one after another, over whole sessions; kills sessions
# at random moments; and fills the disk at every page. As many sessions at a time as there are processors.
#   tests/faults/run.sh [KILLS [SEED]]      500 kills in all from seed 1 unless given
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

ensure_numbers "KILLS and SEED" "${1:-500}" "${2:-1}"
readonly sessions=5
export ORVEK_FAULTS_ALL=yes ORVEK_FAULTS_KILLS=$(((${1:-500} + sessions - 1) / sessions)) ORVEK_FAULTS_SEED=${2:-1}
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8

# session NAME: its tests; says what does not hold, and the figures.
session() {
  local log status=0
  log=$(mktemp)
  build/bin/faults-test --gtest_filter="*/$1" >"$log" 2>&1 || status=1
  sed "s/^/$1: /" <(grep -vE '^\[[ =-]|^Note|^$' "$log")
  rm "$log"
  return "$status"
}
export -f session

build dev faults-test
begin=$SECONDS
# shellcheck disable=SC2016
printf '%s\n' Output Queue Window Preset Ticket |
  xargs -P "$(jobs)" -I '{}' bash -c 'session "$1"' session '{}' || die "something was lost, or not said"
say "nothing lost, in $((SECONDS - begin)) s"
