#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs what was built into an empty folder and uses it as a host's maker does:
# the notes example is built against it by CMake, with either of the libraries, and
# a small program with the flags that pkg-config tells.
#
#   tests/install/install.sh SOURCE BUILD FOLDER [CMAKE-OPTION ...]
#
# What is installed is then in FOLDER/prefix, the built example in FOLDER/notes-build.
set -eu

source=$(realpath "$1")
build=$2
folder=$3
shift 3
rm -rf "$folder"
mkdir -p "$folder"
prefix=$folder/prefix

fail() {
  echo "$0: $*" >&2
  exit 1
}

cmake --install "$build" --prefix "$prefix" >/dev/null
for file in bin/tutorial bin/tutorial-lint bin/tutorial-demo share/tutorial/card.qss \
  share/man/man1/tutorial{,-lint,-demo}.1.gz; do
  [ -s "$prefix/$file" ] || fail "$file is not installed"
done
# Nothing that is installed needs this tree.
if grep -rIl "$source" "$prefix"; then fail "the files above name the source folder"; fi
if ldd "$prefix/bin/tutorial" | grep -q libXtst; then fail "tutorial needs libXtst"; fi

cp -r "$source/examples/notes" "$folder/notes"
for shared in ON OFF; do
  cmake -S "$folder/notes" -B "$folder/notes-build" -G Ninja -DCMAKE_BUILD_TYPE=Debug \
    -DCMAKE_PREFIX_PATH="$prefix" -DBUILD_SHARED_LIBS="$shared" "$@" >"$folder/cmake.log" 2>&1 \
    || { cat "$folder/cmake.log"; fail "the example does not find the kit"; }
  ninja -C "$folder/notes-build" notes >"$folder/ninja.log" 2>&1 \
    || { cat "$folder/ninja.log"; fail "the example does not build"; }
  if ninja -C "$folder/notes-build" -t commands notes | grep -q libXtst; then
    fail "a host is linked with libXtst"
  fi
  case $(ldd "$folder/notes-build/notes") in
    *libTutorialHost*) [ "$shared" = ON ] || fail "the static library was not used" ;;
    *) [ "$shared" = OFF ] || fail "the shared library was not used" ;;
  esac
done
ninja -C "$folder/notes-build" >"$folder/ninja.log" 2>&1 \
  || { cat "$folder/ninja.log"; fail "the example's autoplay does not build"; }

cat >"$folder/least.cpp" <<'EOF'
#include <TutorialHost/Host>
#include <QApplication>
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    return TutorialHost::Host(&window).check(QStringLiteral("/no/file")).size() == 1 ? 0 : 1;
}
EOF
export PKG_CONFIG_PATH=$prefix/lib/pkgconfig
for file in "$prefix"/lib*/*/pkgconfig; do PKG_CONFIG_PATH+=:$file; done
read -ra flags < <(pkg-config --cflags --libs TutorialHost)
"${CXX:-c++}" -std=c++17 -fPIC "$folder/least.cpp" -o "$folder/least" "${flags[@]}"
LD_LIBRARY_PATH=$(pkg-config --variable=libdir TutorialHost) QT_QPA_PLATFORM=offscreen \
  "$folder/least" || fail "the small program does not run"
pkg-config --exists --print-errors TutorialAutoplay
