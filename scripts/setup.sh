#!/usr/bin/env bash
# scripts/setup.sh programs|tests|benchmarks [target...]: installs the Debian packages that are missing, configures
# build/release and builds the targets.
#
#   programs    only what ./run needs: the command line and the desktop program
#   tests       everything except benchmarks whose peers are missing (default: every target)
#   benchmarks  everything, with the peers that the benchmarks compare with
#
# Logs go to build/; a failing step shows the end of its log. The script can be interrupted and run again at any time,
# and needs no network if nothing is missing. A build directory that is configured for tests stays so.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

purpose=${1:-}
packages=(
  g++ cmake ninja-build
  qt6-base-dev       # the components, and threads for the desktop program
  qt6-svg-dev        # pictures of diagrams as SVG
  libcli11-dev       # the command line
  rapidjson-dev      # its JSON documents
  fonts-dejavu-core  # the font of pictures and widget tests
)
parts=(-D QORVEX_BENCHMARKS=ON -D QORVEX_DESIGNER=ON -D QORVEX_EXAMPLES=ON -D QORVEX_TESTS=ON
  -D QORVEX_TRANSLATIONS=ON)
test_packages=(
  qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools  # translations, and the plugin of Qt Designer
  libqt6opengl6-dev  # needed by qt6-tools-dev for programs that load forms
  libgtest-dev
  libboost-dev       # integers and floating-point numbers of any size, headers only
  libeigen3-dev      # the example that shares matrices with Eigen
  libfmt-dev         # tests of formatting amounts, vectors and matrices
  libmpfr-dev        # exact values of the elementary functions
  python3-mpmath     # checks that their tables are those of the scripts
  xvfb openbox       # tests of widgets with a window manager
  appstream desktop-file-utils  # tests of the entries of the desktop program in menus and software centres
  qemu-user-static   # the self-test on other processors
  pkg-config         # tests of installed libraries
  doxygen            # tests of the documentation
)
case $purpose in
  programs)
    parts=("${parts[@]/%=ON/=OFF}")
    targets=(qorvex qorvex-gallery)
    ;;
  tests)
    packages+=("${test_packages[@]}")
    targets=(all)
    ;;
  benchmarks)
    packages+=("${test_packages[@]}" libbenchmark-dev libgsl-dev libhwy-dev liblapack-dev r-mathlib
      datamash miller r-base-core  # programs that describe files
    )
    targets=(all)
    ;;
  *)
    sed -n '2,/^set/{/^#/s/^# \{0,1\}//p}' "${BASH_SOURCE[0]}" >&2
    exit 2
    ;;
esac
shift
[[ $# == 0 ]] || targets=("$@")

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
  # One line per architecture.
  dpkg-query --show --showformat='${db:Status-Status}\n' "$1" 2>/dev/null | grep -qx installed
}

# An update that fails does not matter if the old lists still work.
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
    printf 'Not a Debian system; assuming that the contents of these packages are installed: %s\n' "${packages[*]}"
    return
  fi
  for package in "${packages[@]}"; do
    is_installed "$package" || missing+=("$package")
  done
  [[ ${#missing[@]} == 0 ]] && return
  if [[ $(id -u) != 0 ]] && ! command -v sudo >/dev/null; then
    printf 'Missing packages, and no root or sudo to install them: %s\n' "${missing[*]}" >&2
    return 1
  fi
  step packages.log "Installing ${missing[*]}" apt_install "${missing[@]}"
}

# The compiler launcher: ccache if it is installed and can write its directory (otherwise every compilation would fail).
# It caches compilations with precompiled headers only with these settings.
usable_ccache() {
  local directory
  directory=$(ccache --get-config cache_dir 2>/dev/null) && mkdir -p "$directory" && [[ -w $directory ]] &&
    echo 'cmake;-E;env;CCACHE_SLOPPINESS=pch_defines,time_macros;ccache'
}

# A build directory that was copied or is incomplete is configured from scratch.
configure() {
  # The German texts of the programs, where their tools are installed.
  if is_installed qt6-l10n-tools && is_installed qt6-tools-dev; then
    parts=("${parts[@]/%TRANSLATIONS=OFF/TRANSLATIONS=ON}")
  fi
  local options=(--preset release -D CMAKE_CXX_COMPILER_LAUNCHER="$(usable_ccache)") changed=("${parts[@]}")
  [[ $purpose == programs && -f build/release/CMakeCache.txt ]] && changed=()
  cmake "${options[@]}" "${changed[@]}" || cmake --fresh "${options[@]}" "${parts[@]}"
}

mkdir -p build
install_missing
step configure.log "Configuring build/release" configure
step build.log "Building" cmake --build --preset release --parallel "$(nproc)" --target "${targets[@]}"
