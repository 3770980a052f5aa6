#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Builds the benchmark of the driver's imposition and of whole booklets into a file, makes two documents
# of 1,000 pages and prints the table.  bench/imposition/run.sh
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

ensure_packages run test
build bench bench-imposition orvek-booklet orvek-print OrvekFinishing orvek-resources

place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
sample=()
for _ in {1..125}; do sample+=(samples/Finishing-Sample.pdf); done
qpdf --empty --pages "${sample[@]}" -- "$place/sample-1000.pdf"
gs -q -dBATCH -dNOPAUSE -sDEVICE=pdfwrite -o "$place/text-1000.pdf" -c '
  /Times-Roman 11 selectfont /number 12 string def
  1 1 1000 { /page exch def
    1 1 45 { /line exch def
      72 780 line 15 mul sub moveto (Page ) show page number cvs show (, line ) show
      line number cvs show (: the quick brown fox jumps over the lazy dog once more) show
    } for showpage
  } for'
QT_QPA_PLATFORM=offscreen build-bench/bin/bench-imposition build-bench/cups/filter/orvek-booklet \
  build-bench/bin/orvek-print printers/Orvek-6180.ppd \
  "$place/sample-1000.pdf" "$place/text-1000.pdf"
