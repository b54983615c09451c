#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the three Debian packages, and names them on standard output.
#
#   scripts/packages.sh [FOLDER]     (build/packages)
#
# TUTORIAL_QT: the Qt to build with, 5 (the default) or 6.
set -eu
cd "$(dirname "$0")/.."

folder=${1:-build/packages}
qt=${TUTORIAL_QT:-5}
build=build/packages-qt$qt
# As Debian builds its packages: the same folder's name is in none of them, and
# nothing is missing from the programs that would make them harder to attack.
flags=$(dpkg-buildflags --get CXXFLAGS)
flags+=" $(dpkg-buildflags --get CPPFLAGS) -ffile-prefix-map=$PWD=."
{
  cmake -S . -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DTUTORIAL_QT="$qt" -DTUTORIAL_BENCH=OFF \
    -DCMAKE_CXX_FLAGS="$flags" \
    -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" \
    -DCMAKE_SHARED_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)"
  cmake --build "$build" --target installed_files
  mkdir -p "$folder"
  rm -f "$folder"/tutorial*.deb
  (cd "$build" && umask 022 && cpack -B packages)
  cp "$build"/packages/tutorial*.deb "$folder"
} >&2
ls "$folder"/tutorial*.deb
