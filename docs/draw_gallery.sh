#!/usr/bin/env bash
# docs/draw_gallery.sh: builds the desktop program and writes its pictures to docs/images/gallery.
# Needs no display. The same version of Qt and the same fonts always give the same files.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh programs qorvex-gallery
gallery=build/release/bin/qorvex-gallery
images=docs/images/gallery
dark=$(mktemp -d)
trap 'rm -r "$dark"' EXIT
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$dark}
"$gallery" --screenshot "$images"
"$gallery" --dark --screenshot "$dark"
cp "$dark/distribution.png" "$images/distribution_dark.png"
