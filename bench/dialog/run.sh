#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the dialog benchmark and prints its table.  bench/dialog/run.sh [ROUNDS]
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

ensure_packages run test bench
build bench compare-dialogs toolkit-dialog orvek-dialog printer-list orvek-print OrvekFinishing orvek-resources
QT_QPA_PLATFORM=offscreen build-bench/bin/printer-list "$@"
QT_QPA_PLATFORM=offscreen xvfb-run -a -s -noreset build-bench/bin/compare-dialogs "$@"
