#!/usr/bin/env bash
# SPDX-License-Identifier: Apache-2.0
# Draws every page of the window in every language, each on a sheet with a column for each theme and
# size of letters, and fails where a text is cut off or covered. Look at the sheets after a change to
# the window or to a translation.
#   tests/looks/run.sh [FOLDER [LANGUAGE]...]      build/looks and all languages unless given
set -euo pipefail
cd "$(dirname "$(readlink -f "$0")")/../.."
. tools/lib.sh

folder=${1:-build/looks}
languages=("${@:2}")
[ "${#languages[@]}" -gt 0 ] || languages=(en ar de es fr it ja ko pt zh_CN)

cmake --build build --target orvek-contact-sheet
mkdir -p "$folder"
export QT_QPA_PLATFORM=offscreen
failed=0
for language in "${languages[@]}"; do
  # Of the printer's texts, too, which libcups takes by the environment.
  env -u LC_ALL -u LC_MESSAGES LANG="$language.UTF-8" build/bin/orvek-contact-sheet "$language" "$folder/$language.png" \
    2>"$folder/$language.log" || failed=1
done
echo "The sheets are in $folder."
exit "$failed"
