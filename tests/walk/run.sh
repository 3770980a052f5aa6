#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Walks through sessions at random and looks after each action whether all holds that must, and whether
# the memory stays what it was after the 10,000th. What it says of an action that broke something is
# enough to walk there again.
#   tests/walk/run.sh [ACTIONS [SEED]]      100,000 actions from seed 1 unless given
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

export ORVEK_WALK_ACTIONS=${1:-100000} ORVEK_WALK_SEED=${2:-1} QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
ensure_numbers "ACTIONS and SEED" "$ORVEK_WALK_ACTIONS" "$ORVEK_WALK_SEED"

build dev walk-test OrvekFinishing orvek-resources
mkdir -p out
begin=$SECONDS
build/bin/walk-test 2>out/walk.log || die "something does not hold (log in out/walk.log)"
say "$ORVEK_WALK_ACTIONS actions from seed $ORVEK_WALK_SEED, in $((SECONDS - begin)) s"
