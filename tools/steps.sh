# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# The steps that ./check and .ci/run are made of, and how a step is reported. Sourced after lib.sh.

readonly logs=out/check
readonly fuzz_seconds=${ORVEK_FUZZ_SECONDS:-10}
# Lint takes seconds for each file. Of a large change the newest files are looked at, for this long.
readonly lint_seconds=${ORVEK_LINT_SECONDS:-150}
failed=

# step NAME COMMAND...: runs the command and says how it went, in one line; what it printed lies in the
# step's log, and is shown where it failed.
step() {
  local name=$1 log=$logs/${1// /-}.log begin=$SECONDS result=ok
  shift
  mkdir -p "$logs"
  ("$@") >"$log" 2>&1 || result=FAILED
  printf '%-22s %-7s %4d s\n' "$name" "$result" "$((SECONDS - begin))"
  closing_lines "$log"
  [ "$result" = ok ] && return
  failed=yes
  tail -n 40 "$log"
}

# closing_lines LOG: how many tests a step ran, and what a step left out for want of time.
closing_lines() {
  grep -E '^[0-9]+% tests passed' "$1" || true
  local left
  left=$(grep -c '^left out, for want of time' "$1" || true)
  [ "$left" -eq 0 ] || printf '%d files left out for want of time; ./check looks at all of them\n' "$left"
}

# finish_steps: ends the program, with an error where a step failed.
finish_steps() {
  [ -z "$failed" ] || die "something has to be mended (logs in $logs/)"
}

check_layout() {
  git ls-files --cached --others --exclude-standard -- '*.h' '*.cpp' | while read -r file; do
    [ ! -f "$file" ] || printf '%s\n' "$file"
  done | xargs clang-format --dry-run -Werror
}

check_scripts() {
  local -a scripts
  mapfile -t scripts < <(git ls-files --cached --others --exclude-standard '*.sh')
  shellcheck -x run test check .ci/run "${scripts[@]}"
}

# previous_landing: the commit that a change is held against. ORVEK_BASE names it; else it is where this
# branch left the main one; on the main branch itself, twenty commits ago. Nothing: all there is.
previous_landing() {
  local main base
  if [ -n "${ORVEK_BASE:-}" ]; then
    printf '%s' "$ORVEK_BASE"
    return
  fi
  for main in origin/main main; do
    base=$(git merge-base HEAD "$main" 2>/dev/null) || continue
    [ "$base" = "$(git rev-parse HEAD)" ] || { printf '%s' "$base" && return; }
  done
  git rev-parse --verify --quiet HEAD~20 || true
}

# changed_sources: the sources that changed since then, the newest first; a header stands for the source
# of its name.
changed_sources() {
  local base
  base=$(previous_landing)
  { git diff --name-only HEAD && git log --format= --name-only "${base:+$base..}HEAD"; } |
    sed -n 's/\.\(h\|cpp\)$/.cpp/p' | awk '!seen[$0]++'
}

# compiled_sources: those that the development build compiles, which alone have flags to lint with.
compiled_sources() {
  grep -o '"file": "[^"]*"' build/compile_commands.json | cut -d '"' -f 4 |
    grep -v "^$PWD/build/" | sed "s|^$PWD/||" | sort -u
}

# clang-tidy can't read a header that g++ precompiled, and without it sees whether a source includes what
# it uses.
flags_for_lint() {
  mkdir -p build/lint
  sed 's/ -Winvalid-pch//; s/ -include [^ ]*cmake_pch\.hxx//' build/compile_commands.json \
    >build/lint/compile_commands.json
}

# lint_file FILE END: lints it, unless the time (in seconds of the epoch) is up.
lint_file() {
  if [ "$(date +%s)" -ge "$2" ]; then
    printf 'left out, for want of time: %s\n' "$1"
    return
  fi
  clang-tidy -p build/lint --quiet "$1" 2>/dev/null || { printf 'lint fails: %s\n' "$1" && return 1; }
}
export -f lint_file

# lint SECONDS: the files named on standard input, for so long at most.
lint() {
  local end=$(($(date +%s) + $1))
  flags_for_lint
  # shellcheck disable=SC2016
  xargs -r -P "$(jobs)" -I '{}' bash -c 'lint_file "$1" "$2"' lint '{}' "$end"
}

# Compiled, not linked: whether they still fit the sources is all that is asked here.
check_benchmarks() {
  cmake --preset bench >/dev/null
  ninja -C build-bench -t targets all | sed -n 's|^\(bench/.*\.o\): .*|\1|p' | xargs -r ninja -C build-bench
}

check_lint() {
  flags_for_lint
  tools/lint-all.py --jobs "$(jobs)" build/lint
}

check_lint_of_changes() {
  awk 'NR == FNR { known[$0]; next } $0 in known' <(compiled_sources) <(changed_sources) |
    lint "$lint_seconds"
}

# check_sanitizers [TEST PRESET]: "sanitize-quick" takes a fraction of the time, and does not see what we
# forget of lists and options that libcups made.
check_sanitizers() {
  build sanitize all &&
    run_tests "${1:-sanitize}"
}

check_fuzz() {
  fuzz/run.sh "$fuzz_seconds"
}

# check_text: what can be told without a build.
check_text() {
  step "layout" check_layout
  step "layers" tools/check-layers.py --unused
  step "rooms drawn" tools/draw-rooms.py --check
  step "types" tools/check-types.py
  step "sources" tools/check-sources.py
  step "duplicates" tools/check-duplicates.py
  step "shell scripts" check_scripts
}

# check_build: the development build, and all tests in it.
check_build() {
  step "build" build dev all
  step "tests" ./test
}
