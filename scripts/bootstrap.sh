#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what building, testing and demonstrating the project needs.
# Needs Debian (or a system that uses its packages) and the right to install
# packages; elsewhere it says what to install and stops with an error.
set -eu

packages=(
  # compiler and build system
  g++ cmake ninja-build clang-format
  # what looks for faults without running anything
  cppcheck shellcheck
  # the fuzzers' compiler, its run-time libraries, and names in their reports
  clang libclang-rt-dev llvm
  # Qt 5: libraries, headers, moc and rcc, and the translation tools
  qtbase5-dev qtbase5-dev-tools qttools5-dev qttools5-dev-tools
  # Qt 6, the same, and what its headers ask for
  qt6-base-dev qt6-tools-dev qt6-tools-dev-tools qt6-l10n-tools libgl-dev
  # Qt's own texts in other languages
  qttranslations5-l10n qt6-translations-l10n
  # the demo's pointer and keyboard: X11 and its test extension
  libx11-dev libxcb1-dev libxtst-dev
  # a display without a screen: server, window manager, compositor, tools
  xvfb openbox picom xdotool x11-utils xrestop xauth
  # the host that is no Qt program
  python3 python3-tk
  # Debian's packages, and the flags of the installed library
  dpkg-dev file lintian pkg-config
  # a plain font for the windows
  fonts-dejavu-core
)

if ! command -v apt-get >/dev/null 2>&1; then
  cat >&2 <<EOF
$0: this system does not install Debian packages. Please install, by the names
that your system has for them: a C++17 compiler, clang 14 or newer with libFuzzer
and the sanitizers, CMake 3.24 or newer, Ninja, Qt 5.15 (base with private tools,
Linguist tools), Qt 6.4 (the same), the X11 and XTest development files, Xvfb, openbox, picom,
xdotool, xprop, xwininfo and xrestop, cppcheck, shellcheck, Python 3 with Tk, and the DejaVu fonts. In Debian they are:
  ${packages[*]}
Then run scripts/test.sh or scripts/demo.sh with TUTORIAL_SKIP_BOOTSTRAP=1.
EOF
  exit 1
fi

missing=()
for package in "${packages[@]}"; do
  if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
    missing+=("$package")
  fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

root=()
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null 2>&1; then
    echo "$0: run as root, or install first: ${missing[*]}" >&2
    exit 1
  fi
  root=(sudo)
fi

echo "installing: ${missing[*]}"
"${root[@]}" apt-get update -q
"${root[@]}" env DEBIAN_FRONTEND=noninteractive \
  apt-get install -q -y --no-install-recommends "${missing[@]}"
