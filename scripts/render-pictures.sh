#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Renders the drawings in resource/svg to the pictures in resource/png, at one,
# two and three times their size. The pictures are committed, so that only who
# changes a drawing runs this.
# Needs rsvg-convert (Debian: librsvg2-bin).
set -eu
cd "$(dirname "$0")/../resource"

if ! command -v rsvg-convert >/dev/null 2>&1; then
  echo "$0: please install rsvg-convert (Debian: librsvg2-bin)" >&2
  exit 1
fi

# SCALE SUFFIX: the described size, and the ones for scaled screens beside it.
render() {
  local scale=$1 suffix=$2 width=$((76 * $1)) height=$((159 * $1)) drawn icon
  # The two sides of a symmetric drawing come out of the renderer a shade apart:
  # the right half of the arrow is the left one, mirrored.
  drawn=$(rsvg-convert --zoom "$scale" svg/arrow.svg | base64 --wrap 0)
  rsvg-convert --output "png/arrow$suffix.png" <<EOF
<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" width="$width" height="$height">
  <svg id="half" width="$((width / 2))" height="$height">
    <image width="$width" height="$height" xlink:href="data:image/png;base64,$drawn"/>
  </svg>
  <use xlink:href="#half" transform="matrix(-1 0 0 1 $width 0)"/>
</svg>
EOF
  for icon in click double_click right_click eye wait keyboard; do
    rsvg-convert --zoom "$scale" svg/icons.svg --export-id "$icon" --output "png/$icon$suffix.png"
  done
}

render 1 ""
render 2 @2x
render 3 @3x
