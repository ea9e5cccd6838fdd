#!/usr/bin/env bash
# run_shell_blocks.sh <source directory> <build directory> <empty directory>: runs every block of shell commands in
# README.md, CONTRIBUTING.md and docs/, as a reader would. The blocks run in a directory that looks like a checkout
# whose build/release is the build directory. The list below names the blocks that cannot run here, with the reason.
# Another test runs the console blocks of docs/command_line.md and docs/command_line/, and compares their output.
set -euo pipefail
source=$1 build=$2 scratch=$3
failures=0

# Keys: document and start of the block.
declare -A cannot_run=(
  ["README.md: ./run "]="CI runs both on a bare system"
  ["CONTRIBUTING.md: ./test"]="runs all tests, including this one"
  ["CONTRIBUTING.md: cmake --preset asan-ubsan"]="builds everything with sanitizers"
  ["docs/gallery.md: build/release/bin/qorvex-gallery "]="needs a display"
  ["docs/controls/designer.md: QT_PLUGIN_PATH="]="needs a display"
  ["docs/performance.md: benchmarks/run"]="takes long and needs an idle machine and libraries that tests do not"
  ["CONTRIBUTING.md: benchmarks/run"]="the same"
)

# fail <message>...
fail() {
  printf '%s\n' "$@" >&2
  failures=$((failures + 1))
}

# reason_not_to_run <document> <block>: whether the block is in the list.
reason_not_to_run() {
  local start
  for start in "${!cannot_run[@]}"; do
    if [[ "$1: $2" == "$start"* ]]; then
      unset "cannot_run[$start]"
      return
    fi
  done
  return 1
}

# The block with its placeholders filled in.
filled_in() {
  local block=${1//<directory>/$scratch/installed}
  printf '%s' "${block//program.cpp/examples/quick_start.cpp}"
}

# run_block <document> <line> <block>
run_block() {
  local block output
  if reason_not_to_run "$1" "$3"; then return; fi
  block=$(filled_in "$3")
  if [[ $block =~ \<[a-z\ ]+\> ]]; then
    fail "$1:$2: unknown placeholder ${BASH_REMATCH[0]}"
  elif ! output=$(cd "$scratch" && bash -euc "$block" 2>&1 </dev/null); then
    fail "$1:$2: these commands fail:" "$block" "$(tail -n 20 <<<"$output")"
  fi
}

# read_document <document>: runs its blocks.
read_document() {
  local line number=0 start kind= block=
  local command='^ *(\$ |\./|build/|docs/[a-z_]*\.(sh|py)|scripts/|cmake |ctest |doxygen |g\+\+ |qorvex |qorvex-gallery )'
  while IFS= read -r line; do
    number=$((number + 1))
    if [[ $line != '```'* ]]; then
      [[ -z $kind ]] || block+=$line$'\n'
      [[ -n $kind || ! $line =~ $command ]] || fail "$1:$number: a command outside a block: $line"
    elif [[ -z $kind ]]; then
      kind=${line#'```'} start=$number block=
    else
      case "$kind $1" in
        sh\ *) run_block "$1" "$start" "$block" ;;
        "console docs/command_line"* | cmake\ * | cpp\ * | r\ * | text\ *) ;;
        *) fail "$1:$start: a block of an unknown kind: ${kind:-none}" ;;
      esac
      kind=
    fi
  done <"$source/$1"
  [[ -z $kind ]] || fail "$1:$start: a block without an end"
}

# Programs built here run only once.
export CMAKE_BUILD_TYPE=Debug

rm -rf "$scratch"
mkdir -p "$scratch/build"
for entry in "$source"/*; do
  [[ $entry == */build ]] || ln -s "$entry" "$scratch/"
done
ln -s "$build" "$scratch/build/release"

cd "$source"
documents=(README.md CONTRIBUTING.md $(find docs -name '*.md' | sort))
[[ ${#documents[@]} -gt 10 ]] || fail "only ${#documents[@]} documents were found"
for document in "${documents[@]}"; do read_document "$document"; done
for start in "${!cannot_run[@]}"; do fail "in the list of blocks that cannot run, but in no document: $start"; done
[[ $failures == 0 ]]
