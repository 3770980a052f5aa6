#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the benchmark of constraints and prints its table.  bench/constraints/run.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

ensure_packages run test bench
build bench bench-constraints
QT_QPA_PLATFORM=offscreen build-bench/bin/bench-constraints
