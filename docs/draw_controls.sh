#!/usr/bin/env bash
# docs/draw_controls.sh: builds the program that draws the controls and writes docs/images/controls/*.png.
# Needs no display. The same version of Qt and the same fonts always give the same files.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scripts/setup.sh tests draw_controls
images=docs/images/controls
mkdir -p "$images"
export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
for scale in 1 2; do
  QT_SCALE_FACTOR=$scale build/release/docs/draw_controls/draw_controls "$images"
done
