#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Takes the pictures of the authoring tool in docs/pictures, of the release
# build on a screen of its own. They are committed, so that only who changes how
# the tool looks runs this.
# Needs ImageMagick (Debian: imagemagick).
set -eu
cd "$(dirname "$0")/.."

if ! command -v import >/dev/null 2>&1; then
  echo "$0: please install ImageMagick (Debian: imagemagick)" >&2
  exit 1
fi
if [ -z "${TUTORIAL_TAKE_PICTURES:-}" ]; then
  TUTORIAL_TAKE_PICTURES=1 TUTORIAL_SCREEN=1290x800 exec scripts/with-display.sh "$0"
fi

folder=$(mktemp -d)
demo=
trap '[ -z "$demo" ] || kill "$demo"; rm -rf "$folder"' EXIT
export HOME=$folder XDG_CONFIG_HOME=$folder/config
mkdir -p "$XDG_CONFIG_HOME/SOLVANTA"
printf '[General]\nTutorialEditor.geometry=@Rect(640 170 630 620)\n' \
  >"$XDG_CONFIG_HOME/SOLVANTA/TUTORIAL.conf"
cp demo/scenarios/first-steps.js "$folder/garden.js"

build/release/bin/tutorial-demo --edit "$folder/garden.js" >"$folder/log" 2>&1 &
demo=$!
tool=$(timeout 20 xdotool search --sync --onlyvisible --name '^garden' | head -n 1)
window=$(timeout 20 xdotool search --sync --onlyvisible --name 'Map Workshop' | head -n 1)
xdotool windowmove "$window" 4 24 windowactivate --sync "$tool"
sleep 1

# take PICTURE [CROP]
take() {
  sleep 2
  import -window root ${2:+-crop "$2" +repage} -strip "docs/pictures/$1.png"
}

# The second step of the third group.
xdotool key Home Down Down Right Down Down
take authoring

# The group that it belongs to is cut, and pasted above the one before.
xdotool key Left Left ctrl+x Up ctrl+v alt+e
take undo "630x330+640+145"
xdotool key Escape ctrl+z ctrl+z

sed -i 's/Take the <b>bucket/Use the <b>bucket/' "$folder/garden.js"
take notice "630x645+640+145"
