# SPDX-License-Identifier: Apache-2.0
# shellcheck shell=bash
# What ./run, ./test, ./check and .ci/run share. Sourced, never run; the caller stands in the
# project's root.

# An error is one line on standard error, and the end.
die() {
  printf '%s: %s\n' "${0##*/}" "$1" >&2
  exit "${2:-1}"
}

say() {
  printf '== %s\n' "$1"
}

# needed_packages GROUP...: the names that tools/packages.txt lists under these groups.
needed_packages() {
  awk -v groups=" $* " '$1 !~ /^#/ && NF && index(groups, " " $2 " ") { print $1 }' tools/packages.txt
}

# missing_packages GROUP...: those of them that are not installed.
missing_packages() {
  local name
  local -A installed=()
  while read -r name; do
    installed[$name]=yes
  done < <(dpkg-query -W -f '${db:Status-Status} ${Package}\n' | awk '$1 == "installed" { print $2 }')
  for name in $(needed_packages "$@"); do
    [ -n "${installed[$name]:-}" ] || printf '%s\n' "$name"
  done
}

# install_packages NAME...: with apt, as root or through sudo.
install_packages() {
  local -a as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    command -v sudo >/dev/null || die "as root, run first: apt-get install $*"
    as_root=(sudo)
    [ -t 0 ] || as_root=(sudo -n)
  fi
  local -a apt=("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -q -y)
  "${apt[@]}" update || die "can't update the package lists: is there a network?"
  "${apt[@]}" install --no-install-recommends "$@" || die "can't install: $*"
}

# ensure_packages GROUP...: what the groups need is installed when this returns.
ensure_packages() {
  if ! command -v dpkg-query >/dev/null; then
    say "no Debian package system here: see tools/packages.txt for what must be installed"
    return
  fi
  local -a missing
  mapfile -t missing < <(missing_packages "$@")
  [ "${#missing[@]}" -eq 0 ] && return
  say "installing ${missing[*]}"
  install_packages "${missing[@]}"
}

# ensure_numbers NAMES VALUE...: the values are numbers, or the script ends and says which are not.
ensure_numbers() {
  local names=$1 value
  shift
  for value in "$@"; do
    case $value in
      '' | *[!0-9]*) die "$names must be numbers, not \"$value\"" 2 ;;
    esac
  done
}

jobs() {
  printf '%s' "${ORVEK_JOBS:-$(nproc)}"
}

# configure PRESET [CMAKE OPTION]...: where that was never done.
configure() {
  [ -f "$(build_folder "$1")/build.ninja" ] || cmake --preset "$@" || die "can't configure $1"
}

# build PRESET TARGET...: configures if need be, then builds the targets.
build() {
  local preset=$1 target
  shift
  configure "$preset"
  local -a targets=()
  for target in "$@"; do targets+=(--target "$target"); done
  cmake --build --preset "$preset" -j "$(jobs)" "${targets[@]}" || die "can't build $preset"
}

# build_folder PRESET: where the preset's build lies.
build_folder() {
  case $1 in
    dev) printf 'build' ;;
    *) printf 'build-%s' "$1" ;;
  esac
}

# run_tests PRESET [CTEST OPTION]...: all tests, off-screen, several at a time.
run_tests() {
  local preset=$1
  shift
  env -u DISPLAY -u WAYLAND_DISPLAY QT_QPA_PLATFORM=offscreen \
    ctest --preset "$preset" -j "$(jobs)" "$@"
}
