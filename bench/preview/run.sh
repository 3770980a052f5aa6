#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the preview's benchmark and prints its table.  bench/preview/run.sh [ROUNDS]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

ensure_packages run test bench
build bench preview-bench OrvekFinishing orvek-resources
QT_QPA_PLATFORM=offscreen build-bench/bin/preview-bench "$@"
