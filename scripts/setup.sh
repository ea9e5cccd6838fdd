#!/usr/bin/env bash
# scripts/setup.sh [target...]: installs the Debian packages that are missing, configures the release preset
# and builds the targets (default: all). Logs go to build/, a failing step shows the end of its own.
# It may be interrupted and run again at any time; with nothing to install it needs no network.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

packages=(
  g++ cmake ninja-build ccache pkg-config
  libboost-dev       # the special functions, headers only
  qt6-base-dev       # the components
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools  # their translations and the Designer plugin
  libqt6opengl6-dev  # what qt6-tools-dev expects of programs that load forms
  fonts-dejavu-core  # what the tests of widgets draw with
  libcli11-dev       # the command line
  libgtest-dev       # the tests
  libfmt-dev         # the test of the formatter of amounts
  libbenchmark-dev   # the benchmarks, and the libraries that they compare with
  libgsl-dev libeigen3-dev liblapack-dev r-mathlib
  doxygen            # the check of the documentation
)

# step <log> <what it does> <command...>: runs a command with its output in build/<log>.
step() {
  local log=build/$1 what=$2
  shift 2
  printf '%s ...\n' "$what"
  if ! "$@" >"$log" 2>&1 </dev/null; then
    tail -n 200 "$log" >&2
    printf '%s: failed; the whole output is in %s\n' "$what" "$log" >&2
    return 1
  fi
}

is_installed() {
  # One line an architecture.
  dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# The lists may be out of date or missing; whether they serve shows when the packages are fetched.
apt_install() {
  local as_root=(env DEBIAN_FRONTEND=noninteractive)
  [[ $(id -u) == 0 ]] || as_root=(sudo "${as_root[@]}")
  local options=(-o DPkg::Lock::Timeout=300 -o Acquire::Retries=3)
  "${as_root[@]}" apt-get "${options[@]}" update || true
  "${as_root[@]}" apt-get "${options[@]}" install --yes --no-install-recommends "$@"
}

install_missing() {
  local missing=() package
  if ! command -v dpkg-query >/dev/null; then
    printf 'Not a Debian system: expecting what these packages hold: %s\n' "${packages[*]}"
    return
  fi
  for package in "${packages[@]}"; do
    is_installed "$package" || missing+=("$package")
  done
  [[ ${#missing[@]} == 0 ]] && return
  if [[ $(id -u) != 0 ]] && ! command -v sudo >/dev/null; then
    printf 'Missing packages, and neither root nor sudo to install them: %s\n' "${missing[*]}" >&2
    return 1
  fi
  step packages.log "Installing ${missing[*]}" apt_install "${missing[@]}"
}

# ccache fails, and every compilation with it, where it cannot write its files.
usable_ccache() {
  local directory
  directory=$(ccache --get-config cache_dir) && mkdir -p "$directory" && [[ -w $directory ]] && echo ccache
}

# A build directory that was copied from elsewhere, or half made, is configured afresh.
configure() {
  local options=(--preset release -D CMAKE_CXX_COMPILER_LAUNCHER="$(usable_ccache)")
  cmake "${options[@]}" || cmake --fresh "${options[@]}"
}

mkdir -p build
install_missing
step configure.log "Configuring build/release" configure
step build.log "Building" cmake --build --preset release --parallel "$(nproc)" --target "${@:-all}"
